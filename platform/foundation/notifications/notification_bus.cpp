// SPDX-License-Identifier: MIT
#include "platform/foundation/notifications/notification_bus.h"

#include <systemd/sd-bus.h>

#include <chrono>
#include <cstring>
#include <memory>

namespace halvern::notification_bus {

namespace {

using Clock = std::chrono::steady_clock;
using Bus = std::unique_ptr<sd_bus, decltype([](sd_bus* bus) { sd_bus_close_unref(bus); })>;
using Message = std::unique_ptr<sd_bus_message, decltype([](sd_bus_message* m) { sd_bus_message_unref(m); })>;

// The library's own blocking calls wait far longer for a bus that takes a connection and then says nothing.
template <class Done> int runUntil(sd_bus* bus, Clock::time_point deadline, const Done& done)
{
    while (!done()) {
        if (const int progress = sd_bus_process(bus, nullptr); progress < 0)
            return progress;
        else if (progress > 0)
            continue;
        const auto left =
            std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now()).count();
        if (left <= 0)
            return -ETIMEDOUT;
        if (const int waited = sd_bus_wait(bus, uint64_t(left)); waited < 0 && waited != -EINTR)
            return waited;
    }
    return 0;
}

int takeReply(sd_bus_message* reply, void* result, sd_bus_error*)
{
    const int error = sd_bus_message_get_errno(reply);
    *static_cast<int*>(result) = error > 0 ? -error : 1;
    return 0;
}

int postWithin(Clock::time_point deadline, const std::string& name, const std::string& object)
{
    sd_bus* opened = nullptr;
    if (const int status = sd_bus_open_system(&opened); status < 0)
        return status;
    const Bus bus(opened);
    if (const int status = runUntil(bus.get(), deadline, [&] { return sd_bus_is_ready(bus.get()) > 0; });
        status < 0)
        return status;
    if (const int status =
            sd_bus_emit_signal(bus.get(), kPath, kInterface, kMember, "ss", name.c_str(), object.c_str());
        status < 0)
        return status;
    // The bus handles what we send in order: once it has answered this, it has passed the signal on.
    int answer = 0;
    if (const int status =
            sd_bus_call_method_async(bus.get(), nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                     "org.freedesktop.DBus", "GetId", takeReply, &answer, "");
        status < 0)
        return status;
    const int status = runUntil(bus.get(), deadline, [&] { return answer != 0; });
    return status < 0 ? status : answer;
}

} // namespace

bool post(const std::string& name, const std::string& object, std::string* why,
          std::chrono::milliseconds patience)
{
    const int status = postWithin(Clock::now() + patience, name, object);
    if (status < 0 && why)
        *why = std::strerror(-status);
    return status >= 0;
}

} // namespace halvern::notification_bus
