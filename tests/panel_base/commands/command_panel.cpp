// SPDX-License-Identifier: MIT
#include "tests/panel_base/commands/command_panel.h"

#include "platform/foundation/threads/work_queue.h"

#include <QThread>

namespace halvern {

const QStringList kReportAndConfigure{q("ReportStatus"), q("AutoConfigure")};

void CommandPanel::ppdDidUpdate()
{
    called(updates);
}

void CommandPanel::ppdUpdateDidAbort()
{
    called(aborts);
}

void CommandPanel::called(std::atomic<int>& counter)
{
    if (QThread::currentThread() == QCoreApplication::instance()->thread())
        hooksRanOnTheMainThread = true;
    if (inHook)
        inHook(*this);
    ++counter;
}

int CommandPanel::activeJobIDForDesinationName(const QString& destination)
{
    if (const auto once = std::exchange(whileAsking, nullptr))
        once(*this);
    return KSTRVLBasePDEHalvern::activeJobIDForDesinationName(destination);
}

std::shared_ptr<CommandPanel> makeCommandPanel(const char* queue)
{
    auto host = std::make_shared<FakeHost>();
    host->printer = std::make_shared<Printer>(q(queue), q("halvern://virtual/test"));
    return makePanel<CommandPanel>(host);
}

void CommandTest::TearDown()
{
    EXPECT_TRUE(waitForWorkQueues(1000 * kPatience));
    drainMainQueue();
}

int CommandTest::sendForeignJob(const char* queue)
{
    jobs::Server connection;
    const QString name = QLatin1StringView(queue);
    const int job = connection.createJob(name, q("somebody's"));
    EXPECT_TRUE(connection.sendDocument(name, job, q("d"), jobs::kCommandFormat, "#CUPS-COMMAND\n"));
    return job;
}

jobs::JobList CommandTest::list(const char* queue, jobs::Which which)
{
    return jobs::Server().jobs(QLatin1StringView(queue), which);
}

int CommandTest::stateOf(const char* queue, int job)
{
    const int state = jobs::stateOf(active(queue), job);
    return state != 0 ? state : jobs::stateOf(list(queue, jobs::Which::completed), job);
}

bool CommandTest::reaches(const char* queue, int job, int state)
{
    return waitUntil([&] { return stateOf(queue, job) == state; });
}

int CommandTest::onlyJob(const char* queue)
{
    int job = 0;
    waitUntil([&] {
        const jobs::JobList all = active(queue);
        job = all.size() == 1 ? all.first().id : 0;
        return job != 0;
    });
    return job;
}

} // namespace halvern
