// SPDX-License-Identifier: MIT
#include "printer/notify/after_job.h"

#include "platform/foundation/notifications/notification_bus.h"

#include <cups/cups.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <unistd.h>

namespace halvern {

namespace {

constexpr std::chrono::milliseconds kInterval{20};
constexpr std::chrono::seconds kPatience{30};

bool isProcessing(int job)
{
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://localhost/jobs/" + std::to_string(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "job-state");
    ipp_t* answer = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs/");
    ipp_attribute_t* state = ippFindAttribute(answer, "job-state", IPP_TAG_ENUM);
    const bool processing = state != nullptr && ippGetInteger(state, 0) == IPP_JSTATE_PROCESSING;
    ippDelete(answer);
    return processing;
}

void waitAndPost(int job, const std::string& deviceUri)
{
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (isProcessing(job) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(kInterval);
    notification_bus::post(notification_bus::kPrinterInfoDidUpdate, deviceUri);
    notification_bus::post(notification_bus::kPrinterPaperDidUpdate, deviceUri);
}

} // namespace

void notifyAfterJob(int job, const std::string& deviceUri)
{
    if (::fork() != 0)
        return;
    // CUPS waits for the ends of its pipes.
    for (int descriptor = 0; descriptor < 64; ++descriptor)
        ::close(descriptor);
    // If the bus or the server hangs.
    ::alarm(60);
    waitAndPost(job, deviceUri);
    ::_exit(0);
}

} // namespace halvern
