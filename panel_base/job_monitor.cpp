// SPDX-License-Identifier: MIT
#include "panel_base/base_panel.h"
#include "platform/foundation/log.h"
#include "platform/foundation/threads/semaphore.h"
#include "platform/foundation/threads/work_queue.h"
#include "platform/printing/command_job.h"
#include "platform/printing/job_watch.h"
#include "platform/printing/patience.h"

#include <array>
#include <cstring>
#include <new>

#include <unistd.h>

namespace halvern {

namespace {

constexpr useconds_t kPollInterval = 500000;

constexpr std::array<const char*, 7> kStateWords{"pending",  "held",    "processing", "stopped",
                                                 "canceled", "aborted", "completed"};

// Nothing if the answer is late.
std::optional<jobs::JobList> activeJobs(const QString& destination)
{
    return cups::askPatiently<std::optional<jobs::JobList>>(
        [destination] { return jobs::Server().jobs(destination, jobs::Which::active); }, std::nullopt);
}

} // namespace

struct KSTRVLBasePDEHalvern::WatchedJob {
    std::shared_ptr<KSTRVLBasePDEHalvern> panel;
    const std::atomic<bool>* unloadFlag;
    std::unique_ptr<char[]> destination;
    std::unique_ptr<char[]> deviceURI;
    int id;
};

int KSTRVLBasePDEHalvern::activeJobIDForDesinationName(const QString& destination)
{
    return cups::askPatiently<int>([destination] { return CommandJob(destination).processingJob(); }, 0);
}

QString KSTRVLBasePDEHalvern::stringForCupsJobState(int state)
{
    if (state < jobs::kPending || state > jobs::kCompleted)
        return QStringLiteral("unknown");
    return QString::fromLatin1(kStateWords[size_t(state - jobs::kPending)]);
}

std::unique_ptr<char[]> KSTRVLBasePDEHalvern::copyForWatch(const std::optional<QString>& text)
{
    const QByteArray bytes = text.value_or(QString()).toUtf8();
    std::unique_ptr<char[]> copy(new (std::nothrow) char[size_t(bytes.size()) + 1]);
    if (copy)
        std::memcpy(copy.get(), bytes.constData(), size_t(bytes.size()) + 1);
    return copy;
}

void KSTRVLBasePDEHalvern::waitForJobCompletion(int jobID)
{
    auto destination = copyForWatch(destinationName());
    auto uri = destination ? copyForWatch(printerDeviceURI()) : nullptr;
    if (!destination || !uri) {
        logLine(QStringLiteral("memory allocation error"));
        return;
    }
    pdeUnloadSemaphore.set(std::make_shared<Semaphore>(0));
    const auto watched = std::make_shared<WatchedJob>(
        WatchedJob{shared_from_this(), &pdePluginDidUnload, std::move(destination), std::move(uri), jobID});
    // A watch that never begins, for want of a thread, leaves the panel free.
    if (!WorkQueue().async([watched] { watch(*watched); }))
        pdeUnloadSemaphore.set(nullptr);
}

void KSTRVLBasePDEHalvern::watch(WatchedJob& job)
{
    CommandJob command(QString::fromUtf8(job.destination.get()), job.id);
    const CommandJob::End end =
        command.watch([&] { return !job.unloadFlag || *job.unloadFlag; },
                      [] { return usleep(kPollInterval) == 0; }, CommandJob::AfterSilence::ask);
    if (end == CommandJob::End::enough) {
        command.takeBack();
        return job.panel->watchDidBailOut();
    }
    job.destination.reset();
    if (end == CommandJob::End::completed)
        job.panel->ppdDidUpdate();
    else
        job.panel->ppdUpdateDidAbort();
    job.panel->watchDidEnd(job);
}

void KSTRVLBasePDEHalvern::watchDidBailOut()
{
    logLine(QStringLiteral("bailing out of wait loop bc pde plugin unloaded."));
    // The signal lets a waiting destruction go on, which then lets go of the semaphore; ours keeps it valid
    // until the call is over.
    const std::shared_ptr<Semaphore> semaphore = pdeUnloadSemaphore.get();
    if (semaphore && !semaphore->signal())
        pdeUnloadSemaphore.set(nullptr);
}

void KSTRVLBasePDEHalvern::watchDidEnd(WatchedJob& job)
{
    job.deviceURI.reset();
    // Only now is the panel ready for another command: one sent from within the hook is refused.
    pdeUnloadSemaphore.exchange(nullptr);
}

int KSTRVLBasePDEHalvern::jobStateForDesinationName_JobID_waitWhileInProcess(const QString& destination,
                                                                             int jobID, bool wait)
{
    int state = 0;
    for (;;) {
        // A job that is no longer active counts as completed here; a late answer says nothing of it.
        if (const std::optional<jobs::JobList> active = activeJobs(destination)) {
            state = jobs::stateOf(*active, jobID);
            if (state == 0)
                state = jobs::kCompleted;
        }
        logLine(QStringLiteral("Cups Job %1 is %2").arg(jobID).arg(stringForCupsJobState(state)));
        if (!wait || !isUnderWay(state) || usleep(kPollInterval) != 0)
            return state;
    }
}

void KSTRVLBasePDEHalvern::ppdUpdateDidComplete(const Notification&)
{
    ppdDidUpdate();
}

void KSTRVLBasePDEHalvern::ppdUpdateDidAbort(const Notification&)
{
    ppdUpdateDidAbort();
}

std::optional<QStringList>
KSTRVLBasePDEHalvern::statesForDestinationName(const std::optional<QString>& destination)
{
    if (!destination)
        return std::nullopt;
    return cups::askPatiently<std::optional<QStringList>>(
        [destination = *destination] { return jobs::Server().stateReasons(destination); }, std::nullopt);
}

std::optional<QStringList> KSTRVLBasePDEHalvern::printerStateReasons()
{
    return statesForDestinationName(destinationName());
}

} // namespace halvern
