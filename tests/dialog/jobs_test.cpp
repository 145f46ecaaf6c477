// SPDX-License-Identifier: MIT
// The user's jobs, asked of a real print server and shown in their window.
#include "dialog/job/user_jobs.h"
#include "dialog/window/jobs_window.h"
#include "platform/printing/printer.h"
#include "tests/dialog/dialog_support.h"
#include "tests/support/scripted_server.h"

#include "platform/printing/cups_ppd.h"

#include <QTreeView>

namespace halvern {
namespace {

class JobsTest : public ServerTest {
protected:
    static void SetUpTestSuite()
    {
        ServerTest::SetUpTestSuite();
        ASSERT_TRUE(server->addQueue(q("First"), {}, {}, {q("--disabled")}));
        ASSERT_TRUE(server->addQueue(q("Second"), {}, {}, {q("--disabled")}));
    }

    static JobStage stageOn(const QString& queue, int id)
    {
        cups::Connection asked(nullptr);
        const UserJobs answer = askUserJobs(asked, queue, true);
        const int place = indexOfJob(answer.jobs, id);
        return place < 0 ? JobStage::unknown : answer.jobs[size_t(place)].status.stage;
    }

    static std::vector<PrinterInfo> printers()
    {
        std::vector<PrinterInfo> both(2);
        both[0].name = q("First");
        both[1].name = q("Second");
        return both;
    }

    static int send(const QString& title)
    {
        Printer(q("First"), {}).sendCommand(q("#CUPS-COMMAND\nReportStatus\n"), title);
        cups::Connection asked(nullptr);
        return askUserJobs(asked, q("First"), false).jobs.back().id;
    }
};

TEST_F(JobsTest, AJobIsHeldReleasedMovedAndCancelledAndARefusalIsASentence)
{
    const int id = send(q("A & B"));
    EXPECT_EQ(stageOn(q("First"), id), JobStage::blocked);

    const struct {
        JobDeed deed;
        const char* queue;
        const char* target;
        JobStage after;
        const char* where;
    } steps[] = {
        {JobDeed::hold, "First", "", JobStage::held, "First"},
        {JobDeed::release, "First", "", JobStage::blocked, "First"},
        {JobDeed::move, "First", "Second", JobStage::blocked, "Second"},
        {JobDeed::cancel, "Second", "", JobStage::cancelled, "Second"},
    };

    for (const auto& step : steps) {
        const ActionResult result = apply(step.deed, q(step.queue), id, q(step.target));
        EXPECT_EQ(result.problem, QString()) << int(step.deed);
        EXPECT_EQ(stageOn(q(step.where), id), step.after) << int(step.deed);
        EXPECT_EQ(stageOn(QString(), id), step.after) << int(step.deed);
    }
    EXPECT_EQ(stageOn(q("First"), id), JobStage::unknown);
    EXPECT_TRUE(apply(JobDeed::hold, q("Second"), id).problem.contains(q("as it is now")));
    EXPECT_TRUE(apply(JobDeed::release, q("Second"), 4711).problem.contains(q("4711 is not on")));
    EXPECT_TRUE(apply(JobDeed::move, q("Second"), id, q("Nowhere")).problem.contains(q("Nowhere")));
}

TEST_F(JobsTest, TheWindowFollowsTheServerAndOffersWhatIsPossible)
{
    const int id = send(q("Wedding"));
    JobsWindow window(q("First"), &JobsTest::printers, nullptr);
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    window.show();
    auto* table = window.findChild<QTreeView*>(q("jobs"));
    const auto stateIs = [&](const char* words) {
        const QModelIndex current = table->currentIndex();
        return current.isValid() && current.siblingAtColumn(1).data().toString().contains(q(words));
    };
    const auto button = [&](const char* name) { return window.findChild<QPushButton*>(q(name)); };
    ASSERT_TRUE(waitUntil([&] { return stateIs("Waiting: the printer is paused"); }));
    EXPECT_TRUE(button("holdJob")->isEnabled() && button("moveJob")->isEnabled());
    EXPECT_FALSE(button("releaseJob")->isEnabled() || button("repeatJob")->isEnabled());
    button("holdJob")->click();
    EXPECT_TRUE(waitUntil([&] { return stateIs("Held"); }));
    EXPECT_FALSE(button("holdJob")->isEnabled());
    button("cancelJob")->click();
    EXPECT_TRUE(waitUntil([&] { return stateIs("Cancelled"); }));
    EXPECT_FALSE(button("cancelJob")->isEnabled());
    EXPECT_EQ(stageOn(q("First"), id), JobStage::cancelled);

    // What the user has not chosen is not chosen when the chosen job has left the list.
    const int other = send(q("Other"));
    window.findChild<QCheckBox*>()->setChecked(false);
    EXPECT_TRUE(waitUntil([&] { return table->model()->rowCount() == 1; }));
    apply(JobDeed::hold, q("First"), other);
    EXPECT_TRUE(waitUntil([&] { return table->model()->index(0, 1).data().toString().contains(q("Held")); }));
    EXPECT_FALSE(button("cancelJob")->isEnabled());
}

TEST(JobsOfAStrangerTest, WhatAServerMakesUpDoesNoHarm)
{
    ScriptedServer server([](_ipp_s*) {
        cups::Ipp answer = scriptedAnswer();
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", -1);
        ippAddSeparator(answer.get());
        ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_NAME, "job-id", nullptr, "seven");
        ippAddSeparator(answer.get());
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", 7);
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", 99);
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-media-sheets-completed", -5);
        ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-printer-uri", 3);
        return answer;
    });
    cups::Connection asked(nullptr);
    const UserJobs answer = askUserJobs(asked, {}, false);
    ASSERT_EQ(answer.jobs.size(), 1U);
    EXPECT_EQ(answer.jobs[0].id, 7);
    EXPECT_EQ(jobPagesText(answer.jobs[0]), QString());
    EXPECT_FALSE(isPossible(JobDeed::hold, answer.jobs[0]));
}

} // namespace
} // namespace halvern
