// SPDX-License-Identifier: MIT
#pragma once

#include "panel_base/base_panel.h"
#include "platform/printing/jobs.h"
#include "tests/support/test.h"

#include <atomic>

namespace halvern {

/// Counts the hooks' calls.
class CommandPanel : public KSTRVLBasePDEHalvern {
public:
    using KSTRVLBasePDEHalvern::ppdUpdateDidAbort;

    void ppdDidUpdate() override;
    void ppdUpdateDidAbort() override;
    int activeJobIDForDesinationName(const QString& destination) override;

    bool isWatching() const { return bool(pdeUnloadSemaphore); }

    using KSTRVLBasePDEHalvern::pdeUnloadSemaphore;

    std::atomic<int> updates = 0;
    std::atomic<int> aborts = 0;
    std::atomic<bool> hooksRanOnTheMainThread = false;
    /// Runs once, while the queue's active job is asked for.
    std::function<void(CommandPanel&)> whileAsking;
    /// Runs in the hook, before the watch has ended.
    std::function<void(CommandPanel&)> inHook;

private:
    void called(std::atomic<int>& counter);
};

/// A panel with a printer of the name.
std::shared_ptr<CommandPanel> makeCommandPanel(const char* queue);

extern const QStringList kReportAndConfigure;

/// After each test no watch is left.
class CommandTest : public ServerTest {
protected:
    void TearDown() override;

    /// Sends the usual commands and returns once that is done or refused.
    static void send(CommandPanel& panel)
    {
        offMainThread([&] { panel.sendPrinterCommands(kReportAndConfigure); });
    }

    /// A command job that is not the panel's.
    static int sendForeignJob(const char* queue);

    static jobs::JobList active(const char* queue) { return list(queue, jobs::Which::active); }

    static jobs::JobList list(const char* queue, jobs::Which which);

    /// The job's state, in whichever list it is; 0 if it is in neither.
    static int stateOf(const char* queue, int job);
    static bool reaches(const char* queue, int job, int state);

    /// The only active job of the queue, once there is one.
    static int onlyJob(const char* queue);

    LogCapture log;
};

} // namespace halvern
