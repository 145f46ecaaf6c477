#include "dialog/program/printer_inquiry.h"

#include "platform/printing/command_job.h"
#include "platform/printing/job_watch.h"

#include <chrono>
#include <thread>

namespace halvern {

namespace {

using End = InquiryResult::End;
using Which = jobs::Which;

constexpr std::chrono::milliseconds kLookUp(250);

bool isBusy(jobs::Server& server, const QString& queue)
{
    for (const jobs::Job& job : server.jobs(queue, Which::active)) {
        if (job.state == jobs::kProcessing)
            return true;
    }
    return false;
}

End watch(jobs::Server& server, const QString& queue, int job, const std::function<bool(int)>& keepWaiting)
{
    JobWatch state(job);
    std::atomic<bool> isEnough = false;
    for (;;) {
        switch (state.step()) {
        case JobWatch::Step::lookAtUnloadFlag:
            isEnough = !keepWaiting(job);
            state.looked(&isEnough);
            break;
        case JobWatch::Step::askForActiveJobs:
            state.gotActiveJobs(server.jobs(queue, Which::active));
            break;
        case JobWatch::Step::sleep:
            std::this_thread::sleep_for(kLookUp);
            state.slept(0);
            break;
        case JobWatch::Step::askForCompletedJobs:
            if (server.wasSilent())
                return End::adrift;
            state.gotCompletedJobs(server.jobs(queue, Which::completed));
            break;
        case JobWatch::Step::bailOut:
            return server.cancelAndPurge(queue, job) ? End::abandoned : End::adrift;
        case JobWatch::Step::reportUpdate:
            return End::reported;
        case JobWatch::Step::reportAbort:
            return server.wasSilent() ? End::adrift : End::failed;
        }
    }
}

} // namespace

InquiryResult askPrinterForReport(const QString& queue, const std::function<bool(int jobId)>& keepWaiting)
{
    jobs::Server server;
    if (isBusy(server, queue))
        return {End::busy, 0};
    if (server.wasSilent())
        return {End::failed, 0};
    const int job = server.createJob(queue, QStringLiteral("Updating status ..."));
    if (job <= 0)
        return {End::failed, 0};
    server.sendDocument(
        queue, job, QStringLiteral("CommandJob"), jobs::kCommandFormat,
        commandFile({QStringLiteral("ReportStatus"), QStringLiteral("AutoConfigure")}).toUtf8());
    return {watch(server, queue, job, keepWaiting), job};
}

} // namespace halvern
