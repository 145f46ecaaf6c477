// SPDX-License-Identifier: MIT
#include "platform/foundation/notifications/system_bus_listener.h"

#include "platform/foundation/notifications/notification_bus.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <limits>
#include <utility>

#include <poll.h>
#include <time.h>

namespace halvern {

namespace {

quint64 monotonicMicroseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return quint64(now.tv_sec) * 1000000 + quint64(now.tv_nsec) / 1000;
}

// The notifier may be the one whose event is being handled.
void retire(std::unique_ptr<QSocketNotifier>& notifier)
{
    if (!notifier)
        return;
    notifier->setEnabled(false);
    notifier.release()->deleteLater();
}

} // namespace

/// What the library calls back, with the listener as its data.
struct SystemBusListener::Calls {
    static int matched(sd_bus_message* message, void* listener, sd_bus_error*)
    {
        auto* self = static_cast<SystemBusListener*>(listener);
        const char* name = sd_bus_message_get_member(message);
        const char* object = sd_bus_message_get_path(message);
        // A notification of another shape is nobody's.
        if (!self->service_ && sd_bus_message_read(message, "ss", &name, &object) <= 0)
            return 0;
        self->received_(QString::fromUtf8(name), QString::fromUtf8(object));
        return 0;
    }

    static int installed(sd_bus_message* message, void* data, sd_bus_error*)
    {
        auto* listener = static_cast<SystemBusListener*>(data);
        const int error = sd_bus_message_get_errno(message);
        listener->installStatus_ = error > 0 ? -error : 0;
        listener->subscribed_ = error <= 0;
        return 0;
    }
};

void SystemBusListener::Unref::operator()(sd_bus* bus) const
{
    // Not flushed: nothing that we send is worth a wait.
    sd_bus_close(bus);
    sd_bus_unref(bus);
}

SystemBusListener::SystemBusListener(Received received, const char* service)
    : received_(std::move(received)), service_(service)
{
    deadline_.setSingleShot(true);
    connect(&deadline_, &QTimer::timeout, this, &SystemBusListener::process);
}

SystemBusListener::~SystemBusListener() = default;

int SystemBusListener::open()
{
    sd_bus* bus = nullptr;
    if (const int status = sd_bus_open_system(&bus); status < 0)
        return status;
    bus_.reset(bus);
    const int status = subscribe();
    if (status < 0)
        return status;
    watch();
    return 0;
}

int SystemBusListener::subscribe()
{
    if (service_)
        return sd_bus_match_signal_async(bus_.get(), nullptr, service_, nullptr, nullptr, nullptr,
                                         &Calls::matched, &Calls::installed, this);
    return sd_bus_match_signal_async(bus_.get(), nullptr, nullptr, notification_bus::kPath,
                                     notification_bus::kInterface, notification_bus::kMember, &Calls::matched,
                                     &Calls::installed, this);
}

void SystemBusListener::process()
{
    for (;;) {
        const int progress = sd_bus_process(bus_.get(), nullptr);
        if (progress < 0)
            return fail(progress);
        if (installStatus_ < 0)
            return fail(installStatus_);
        if (progress == 0)
            break;
    }
    watch();
}

void SystemBusListener::watch()
{
    const int fd = sd_bus_get_fd(bus_.get());
    const int events = sd_bus_get_events(bus_.get());
    if (fd < 0 || events < 0)
        return fail(std::min(fd, events));
    // While connecting, the library may go on to another address and with it to another socket.
    if (!readable_ || readable_->socket() != fd) {
        retire(readable_);
        retire(writable_);
        readable_ = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Read);
        writable_ = std::make_unique<QSocketNotifier>(fd, QSocketNotifier::Write);
        connect(readable_.get(), &QSocketNotifier::activated, this, &SystemBusListener::process);
        connect(writable_.get(), &QSocketNotifier::activated, this, &SystemBusListener::process);
    }
    readable_->setEnabled((events & POLLIN) != 0);
    writable_->setEnabled((events & POLLOUT) != 0);
    uint64_t until = 0;
    if (sd_bus_get_timeout(bus_.get(), &until) < 0 || until == std::numeric_limits<uint64_t>::max())
        return deadline_.stop();
    const uint64_t now = monotonicMicroseconds();
    const uint64_t milliseconds = until > now ? (until - now + 999) / 1000 : 0;
    deadline_.start(int(std::min<uint64_t>(milliseconds, 3600000)));
}

void SystemBusListener::fail(int status)
{
    deadline_.stop();
    retire(readable_);
    retire(writable_);
    bus_.reset();
    Q_EMIT lost(status, std::exchange(subscribed_, false));
}

} // namespace halvern
