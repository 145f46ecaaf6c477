// SPDX-License-Identifier: MIT
#include "dialog/job/job_submitter.h"

#include "dialog/job/auth_info.h"
#include "dialog/job/ipp_options.h"
#include "dialog/job/job_actions.h"
#include "dialog/server/local_queue.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QThread>
#include <QUuid>

#include <tuple>
#include <utility>

namespace halvern {

namespace {

constexpr int kLongestTitle = 255; // bytes of an IPP name
constexpr cups::Limits kLimits{std::chrono::seconds(5), std::chrono::seconds(5)};
constexpr int kTakeBackTries = 3;
// What tells a job from all others, also of the same photo, before it has a number. A server gives no filter
// what begins so.
constexpr const char* kMark = "job-halvern-mark";

struct JobSubmitterWords {
    Q_DECLARE_TR_FUNCTIONS(JobSubmitter)
};

QByteArray shortTitle(const QString& title)
{
    QString text = title;
    while (text.toUtf8().size() > kLongestTitle)
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text.toUtf8();
}

QByteArray resourceOf(const JobRequest& job)
{
    return "/printers/" + job.queue.toUtf8();
}

// The job that carries the mark: the server made it, and its answer was lost. 0 if there is none;
// nothing if the server does not say.
std::optional<int> findLostJob(const JobRequest& job, const QByteArray& mark)
{
    static const char* const kAttributes[] = {"job-id", kMark};
    cups::Connection server(nullptr, kLimits);
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOBS, job.queue);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (server.failed(answer))
        return std::nullopt;
    int id = 0;
    bool isMarked = false;
    for (ipp_attribute_t* a = ippFirstAttribute(answer.get()); a; a = ippNextAttribute(answer.get())) {
        const QByteArray name(ippGetName(a));
        if (name == "job-id")
            id = ippGetInteger(a, 0);
        else if (name == kMark)
            isMarked = ippGetString(a, 0, nullptr) == mark;
        else if (name.isEmpty())
            std::tie(id, isMarked) = std::pair(0, false); // the next job
        if (isMarked && id > 0)
            return id;
    }
    return 0;
}

// Whether the server has the job's document; nothing if it does not say. Of a job that has been printed it
// keeps none.
std::optional<bool> hasDocument(const JobRequest& job, int jobId)
{
    static const char* const kAttributes[] = {"number-of-documents", "job-state"};
    cups::Connection server(nullptr, kLimits);
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOB_ATTRIBUTES, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    if (!answer)
        return std::nullopt;
    ipp_attribute_t* const count = ippFindAttribute(answer.get(), kAttributes[0], IPP_TAG_INTEGER);
    ipp_attribute_t* const state = ippFindAttribute(answer.get(), kAttributes[1], IPP_TAG_ENUM);
    const int is = state ? ippGetInteger(state, 0) : 0;
    return (count && ippGetInteger(count, 0) > 0) || is == IPP_JSTATE_PROCESSING ||
           is == IPP_JSTATE_STOPPED || is == IPP_JSTATE_COMPLETED;
}

// The same, asked for some seconds. Of a server that does not say it, it is better to believe that it prints
// than that it does not: whoever follows the job finds out.
bool mayHaveDocument(const JobRequest& job, int jobId)
{
    for (int i = 0; i < kTakeBackTries; ++i) {
        if (const std::optional<bool> has = hasDocument(job, jobId))
            return *has;
        QThread::sleep(1);
    }
    return true;
}

// On connections of its own: the job's is broken, or in the middle of a document. The sentence if the job may
// still be there.
QString takeBack(const JobRequest& job, int jobId)
{
    for (int i = 0; i < kTakeBackTries; ++i) {
        const ActionResult result = cancelJob(job.queue, jobId);
        if (result.isAnswered && result.problem.isEmpty())
            return {};
        QThread::sleep(1);
    }
    return JobSubmitterWords::tr(" Job %1 may still be on the queue of \"%2\" without its "
                                 "pages: cancel it there before you print again.")
        .arg(QString::number(jobId), job.queue);
}

// With all that the job says of itself; null with a problem if it cannot be said.
cups::Ipp makeRequest(cups::Connection& server, const JobRequest& job, const cups::CancelFlag& cancelled,
                      AuthInfo& given, QString* problem)
{
    cups::Ipp request = cups::newRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 shortTitle(job.title).constData());
    *problem = addAuthInfo(server, request.get(), job.queue, job.asked, cancelled, given);
    if (!problem->isEmpty())
        return nullptr;
    for (const OptionValue& option : job.options) {
        *problem = addJobOption(request.get(), option,
                                job.hasTextCollections ? Collections::asText : Collections::whole);
        if (!problem->isEmpty())
            return nullptr;
    }
    return request;
}

int createJob(cups::Connection& server, const JobRequest& job, const cups::CancelFlag& cancelled,
              QString* problem)
{
    const QByteArray mark = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    AuthInfo given;
    const auto send = [&]() -> cups::Ipp {
        cups::Ipp request = makeRequest(server, job, cancelled, given, problem);
        if (!request)
            return nullptr;
        ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, kMark, nullptr, mark.constData());
        return server.request(std::move(request), resourceOf(job).constData());
    };
    cups::Ipp answer = send();
    const bool isGone = answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND;
    if (isGone && !job.madeFrom.isEmpty()) {
        *problem = createLocalQueue(job.queue, job.madeFrom, cancelled);
        answer = problem->isEmpty() ? send() : nullptr;
    }
    if (!problem->isEmpty())
        return 0;
    if (server.failed(answer)) {
        *problem = server.error();
        const std::optional<int> lost = !answer && server.mayBeDone() ? findLostJob(job, mark) : 0;
        if (!lost)
            *problem += JobSubmitterWords::tr(
                            " A job without its pages may still be on the queue of \"%1\": look there before "
                            "you print again.")
                            .arg(job.queue);
        else if (*lost > 0)
            *problem += takeBack(job, *lost);
        return 0;
    }
    const int jobId = cups::jobIdOf(answer);
    rememberAuthInfo(server, job.queue, jobId, given);
    if (jobId == 0)
        *problem = JobSubmitterWords::tr("The print server gave the job no number. Look into its error log.");
    return jobId;
}

bool sendDocument(cups::Connection& server, const JobRequest& job, int jobId, const cups::NextPiece& document,
                  bool* isWritten, QString* problem)
{
    cups::Ipp request = cups::newRequest(IPP_OP_SEND_DOCUMENT, job.queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 shortTitle(job.title).constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 job.format.toUtf8().constData());
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", 1);
    const auto nextPiece = [&]() -> std::optional<QByteArray> {
        std::optional<QByteArray> piece = document();
        *isWritten = piece && piece->isEmpty();
        return piece;
    };
    const cups::Ipp answer = server.request(std::move(request), resourceOf(job).constData(), nextPiece);
    if (!server.failed(answer))
        return true;
    *problem = server.error();
    // Only the answer may be lost.
    return *isWritten && !answer && !server.isCancelled() && mayHaveDocument(job, jobId);
}

} // namespace

SubmitResult submitJob(const JobRequest& job, const cups::NextPiece& nextPiece,
                       const cups::CancelFlag& cancelled)
{
    SubmitResult result;
    // A first photo that cannot be read makes no job.
    std::optional<QByteArray> first = nextPiece();
    result.wasCancelled = cancelled->load();
    result.isDocumentAtFault = !first;
    if (!first || result.wasCancelled)
        return result;
    cups::Connection server(cancelled);
    if (!server.isConnected()) {
        result.problem = server.error();
        return result;
    }
    const auto document = [&] {
        std::optional<QByteArray> piece = first ? std::exchange(first, std::nullopt) : nextPiece();
        result.isDocumentAtFault = !piece;
        return piece;
    };
    const int jobId = createJob(server, job, cancelled, &result.problem);
    bool isWritten = false;
    if (jobId > 0 && sendDocument(server, job, jobId, document, &isWritten, &result.problem))
        return {jobId, {}, false};
    result.wasCancelled = server.isCancelled();
    if (jobId > 0) {
        const QString left = takeBack(job, jobId);
        // It may have been whole, and printed, before that.
        if (isWritten && left.isEmpty() && hasDocument(job, jobId).value_or(false))
            return {jobId, {}, false};
        const bool isServerAtFault = !result.wasCancelled && !result.isDocumentAtFault;
        result.problem = isServerAtFault ? result.problem + left : left;
    }
    return result;
}

} // namespace halvern
