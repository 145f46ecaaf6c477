// SPDX-License-Identifier: MIT
#include "dialog/program/printer_inquiry.h"

#include "platform/printing/command_job.h"

#include <chrono>
#include <thread>

namespace halvern {

using End = InquiryResult::End;

InquiryResult askPrinterForReport(const QString& queue, const std::function<bool(int jobId)>& keepWaiting)
{
    CommandJob job(queue);
    if (job.processingJob() != 0)
        return {End::busy, 0};
    if (job.wasSilent())
        return {End::failed, 0};
    job.send({QStringLiteral("ReportStatus"), QStringLiteral("AutoConfigure")});
    if (job.id() <= 0)
        return {End::failed, 0};
    const auto pause = [] {
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
        return true;
    };
    switch (job.watch([&] { return !keepWaiting(job.id()); }, pause, CommandJob::AfterSilence::end)) {
    case CommandJob::End::completed:
        return {End::reported, job.id()};
    case CommandJob::End::failed:
        return {End::failed, job.id()};
    case CommandJob::End::enough:
        return {job.takeBack() ? End::abandoned : End::adrift, job.id()};
    case CommandJob::End::silent:
        break;
    }
    return {End::adrift, job.id()};
}

} // namespace halvern
