// SPDX-License-Identifier: MIT
// Sending, following and acting on jobs, with a print server that the tests play.
#include "dialog/job/job_follower.h"
#include "dialog/job/job_submitter.h"
#include "dialog/job/print_run.h"
#include "tests/support/scripted_server.h"

#include <cups/cups.h>

namespace halvern {
namespace {

cups::Ipp jobAnswer(int id, int state, const char* reason = "none")
{
    cups::Ipp answer = scriptedAnswer();
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", id);
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", state);
    ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", nullptr, reason);
    return answer;
}

cups::Ipp listedJob(int documents, const QByteArray& mark)
{
    cups::Ipp answer = scriptedAnswer();
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "number-of-documents", documents);
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 7);
    ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_NAME, "job-name", nullptr, "title");
    ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-halvern-mark", nullptr, mark.constData());
    return answer;
}

SubmitResult send(const QString& title = q("title"), const QStringList& asked = {})
{
    int left = 2;
    const auto nextPiece = [&left]() -> std::optional<QByteArray> {
        return left-- > 0 ? QByteArray(100000, 'x') : QByteArray();
    };
    JobRequest job{q("Queue"), title, {}};
    job.asked = asked;
    return submitJob(job, nextPiece, cups::makeCancelFlag());
}

/// Gives the passwords one after the other, to be kept for later.
struct Passwords : cups::AccessQuestions {
    std::optional<cups::Login> askLogin(const cups::LoginQuestion& question, const cups::CancelFlag&) override
    {
        refusals += question.wasRefused;
        return cups::Login{q("ann"), left.takeFirst(), true, true};
    }

    void loginWasRight(const cups::Place&, const cups::Login& login) override { proven += login.password; }

    bool askCertificate(const cups::CertificateQuestion&, const cups::CancelFlag&) override { return true; }

    QStringList left{q("wrong"), q("right")};
    QStringList proven;
    int refusals = 0;
};

} // namespace

TEST(Jobs, WhatDoesNotArriveWholeIsTakenBack)
{
    const struct {
        const char* name;
        int created;   // the job's number; 0: the answer is lost
        int documents; // that the server has afterwards
        int job;
        bool isCancelled;
    } cases[] = {{"the document's answer is lost", 7, 1, 7, false},
                 {"the document is lost", 7, 0, 0, true},
                 {"the number is lost", 0, 0, 0, true},
                 {"another job of that title has none yet", 0, -1, 0, false},
                 {"a number that is none", -7, 0, 0, false}};

    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        QByteArray mark;
        const ScriptedServer server([&](ipp_t* request) -> cups::Ipp {
            switch (ippGetOperation(request)) {
            case IPP_OP_CREATE_JOB:
                if (ipp_attribute_t* sent = ippFindAttribute(request, "job-halvern-mark", IPP_TAG_KEYWORD))
                    mark = ippGetString(sent, 0, nullptr);
                return c.created ? jobAnswer(c.created, IPP_JSTATE_HELD) : nullptr;
            case IPP_OP_SEND_DOCUMENT:
                return nullptr;
            default:
                return c.documents < 0 ? listedJob(0, "another") : listedJob(c.documents, mark);
            }
        });
        const SubmitResult result = send();
        EXPECT_EQ(result.jobId, c.job);
        EXPECT_EQ(result.problem.isEmpty(), c.job > 0);
        EXPECT_EQ(server.asked().contains(q("Cancel-Job")), c.isCancelled);
    }
}

TEST(Jobs, APrintersPasswordIsRightOnceAJobIsPrintedAndForgottenByTheJobThatIsTurnedDown)
{
    int last = 0;
    const ScriptedServer server([&](ipp_t* request) {
        ipp_attribute_t* id = ippFindAttribute(request, "job-id", IPP_TAG_INTEGER);
        if (ippGetOperation(request) == IPP_OP_CREATE_JOB)
            return jobAnswer(++last, IPP_JSTATE_PENDING);
        return ippGetInteger(id, 0) == 1 ? jobAnswer(1, IPP_JSTATE_HELD, "cups-held-for-authentication")
                                         : jobAnswer(2, IPP_JSTATE_COMPLETED);
    });
    const auto passwords = std::make_shared<Passwords>();
    cups::Access::shared().addQuestions(passwords);
    const auto look = [](int id) { askJobStatus(q("Queue"), id, cups::makeCancelFlag()); };
    const QStringList asked{q("username"), q("password")};
    EXPECT_EQ(send(q("title"), asked).jobId, 1);
    look(1);
    EXPECT_EQ(send(q("title"), asked).jobId, 2);
    EXPECT_EQ(passwords->refusals, 1);
    look(1); // is held still
    EXPECT_EQ(send(q("title"), asked).jobId, 3);
    EXPECT_EQ(passwords->proven, QStringList());
    look(2);
    look(3);
    EXPECT_EQ(passwords->proven, QStringList(q("right")));
    cups::Access::shared().removeQuestions(passwords.get());
}

TEST(Jobs, ALongTitleIsCutBetweenCharacters)
{
    QByteArray name;
    const ScriptedServer server([&](ipp_t* request) {
        if (ipp_attribute_t* title = ippFindAttribute(request, "job-name", IPP_TAG_NAME))
            name = ippGetString(title, 0, nullptr);
        return jobAnswer(7, IPP_JSTATE_PENDING);
    });
    EXPECT_EQ(send(QString(100, QChar(0x2603)) + q(".jpg")).jobId, 7);
    EXPECT_EQ(q(name), QString(85, QChar(0x2603)));
}

TEST(Jobs, AJobThatTheServerDoesNotKnowHasLeftTheQueueIfTheQueueIsThere)
{
    bool hasQueue = true;
    const ScriptedServer server([&](ipp_t* request) {
        const bool isKnown = hasQueue && ippGetOperation(request) == IPP_OP_GET_PRINTER_ATTRIBUTES;
        return scriptedAnswer(isKnown ? IPP_STATUS_OK : IPP_STATUS_ERROR_NOT_FOUND);
    });
    EXPECT_EQ(askJobStatus(q("Queue"), 7, cups::makeCancelFlag()).stage, JobStage::gone);
    hasQueue = false;
    EXPECT_EQ(askJobStatus(q("Queue"), 7, cups::makeCancelFlag()).stage, JobStage::lost);
}

TEST(Jobs, APrinterThatStoppedBlocksItsJobs)
{
    const ScriptedServer server([](ipp_t*) { return jobAnswer(7, IPP_JSTATE_PENDING, "printer-stopped"); });
    EXPECT_EQ(askJobStatus(q("Queue"), 7, cups::makeCancelFlag()).stage, JobStage::blocked);
}

TEST(Jobs, WhatIsNotAllowedIsSaidAndAnEndedJobNeedsNoCancelling)
{
    int status = IPP_STATUS_ERROR_NOT_POSSIBLE;
    const ScriptedServer server([&](ipp_t*) { return scriptedAnswer(status); });
    EXPECT_EQ(cancelJob(q("Queue"), 7).problem, QString());
    status = IPP_STATUS_ERROR_NOT_AUTHORIZED;
    const ActionResult result = applyRemedy(Remedy::resumePrinter, q("Queue"), 7);
    EXPECT_TRUE(result.isAnswered && result.problem.contains(q("does not let you resume \"Queue\"")))
        << qPrintable(result.problem);
}

TEST(Jobs, ALostAnswerIsNoNewsButAChangedTextIs)
{
    std::atomic<int> asked = 0;
    const ScriptedServer server([&](ipp_t*) -> cups::Ipp {
        if (++asked == 2)
            return nullptr;
        cups::Ipp answer = jobAnswer(7, IPP_JSTATE_PROCESSING);
        ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-printer-state-reasons", nullptr,
                     asked < 4 ? "none" : "media-jam");
        return answer;
    });
    QStringList told;
    JobFollower follower(q("Queue"), 7, {std::chrono::minutes(1), {}}, nullptr);
    QObject::connect(&follower, &JobFollower::changed,
                     [&](const JobStatus& s) { told.append(jobSentence(s, q("Queue"), 7)); });
    EXPECT_TRUE(waitUntil([&] { return told.size() > 1; }));
    EXPECT_EQ(told, (QStringList{q("Job 7 is printing on \"Queue\"."),
                                 q("Job 7 is printing on \"Queue\" (paper jam).")}));
}

TEST(Jobs, ASilentServerIsToldAndHearsOfACancelWhenItIsBack)
{
    std::atomic<bool> isSilent = true;
    std::atomic<bool> isCancelled = false;
    const ScriptedServer server([&](ipp_t* request) -> cups::Ipp {
        if (isSilent)
            return nullptr;
        isCancelled = isCancelled || ippGetOperation(request) == IPP_OP_CANCEL_JOB;
        return jobAnswer(7, isCancelled ? IPP_JSTATE_CANCELED : IPP_JSTATE_PROCESSING);
    });
    bool isTold = false;
    JobFollower follower(q("Queue"), 7, {std::chrono::milliseconds(50), {}}, nullptr);
    QObject::connect(&follower, &JobFollower::changed,
                     [&](const JobStatus& s) { isTold = s.stage == JobStage::unknown; });
    EXPECT_TRUE(waitUntil([&] { return isTold; }));
    follower.cancel();
    EXPECT_TRUE(waitUntil([&] { return server.asked().contains(q("Cancel-Job")); }));
    isSilent = false;
    EXPECT_TRUE(waitUntil([&] { return follower.status().stage == JobStage::cancelled; }));
}

TEST(Jobs, ARunSaysPrintedOnlyOfWhatIsKnownToBe)
{
    const struct {
        int first;
        int last; // 0: the server does not know the job any more
        int sheets;
        bool isPrinted;
        bool isUnknown;
        JobStage stage;
    } cases[] = {
        {IPP_JSTATE_PROCESSING, 0, 0, true, false, JobStage::gone},
        {IPP_JSTATE_STOPPED, 0, 0, false, true, JobStage::gone},
        {IPP_JSTATE_PROCESSING, IPP_JSTATE_CANCELED, 0, false, false, JobStage::cancelled},
        {IPP_JSTATE_PROCESSING, IPP_JSTATE_CANCELED, 2, false, false, JobStage::aborted},
    };

    QTemporaryDir folder;
    const QString document = writeFile(folder.filePath(q("a.pdf")), "x");
    for (const auto& c : cases) {
        std::atomic<bool> hasTold = false;
        const ScriptedServer server([&](ipp_t* request) -> cups::Ipp {
            const ipp_op_t asked = ippGetOperation(request);
            if (asked == IPP_OP_GET_PRINTER_ATTRIBUTES)
                return scriptedAnswer();
            if (hasTold && c.last == 0)
                return scriptedAnswer(IPP_STATUS_ERROR_NOT_FOUND);
            cups::Ipp answer = jobAnswer(7, hasTold ? c.last : c.first);
            ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-media-sheets-completed", c.sheets);
            return answer;
        });
        PrintRun run({q("Queue"), q("title"), {}}, document, nullptr);
        PrintOutcome outcome;
        QObject::connect(&run, &PrintRun::followed, [&] { hasTold = true; });
        QObject::connect(&run, &PrintRun::finished, [&](const PrintOutcome& end) { outcome = end; });
        run.start();
        EXPECT_TRUE(waitUntil([&] { return run.isOver(); }));
        EXPECT_EQ(outcome.printed, c.isPrinted) << qPrintable(outcome.sentence);
        EXPECT_EQ(outcome.isEndUnknown(), c.isUnknown);
        EXPECT_EQ(outcome.stage, c.stage) << qPrintable(outcome.sentence);
    }
}

TEST(Jobs, AFollowerGivesUpWhenItsPatienceEnds)
{
    const ScriptedServer server([](ipp_t*) -> cups::Ipp { return nullptr; });
    bool hasEnded = false;
    JobFollower follower(q("Queue"), 7, {std::chrono::milliseconds(50), std::chrono::milliseconds(500)},
                         nullptr);
    QObject::connect(&follower, &JobFollower::ended, [&] { hasEnded = true; });
    EXPECT_TRUE(waitUntil([&] { return hasEnded; }));
    EXPECT_EQ(follower.status().stage, JobStage::unknown);
}

} // namespace halvern
