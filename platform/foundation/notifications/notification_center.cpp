// SPDX-License-Identifier: MIT
#include "platform/foundation/notifications/notification_center.h"

#include "platform/foundation/notifications/observer_registry.h"

#include <utility>

namespace halvern {

struct NotificationCenter::Registrations : ObserverRegistry<const void*, Handler> {};

NotificationCenter& NotificationCenter::defaultCenter()
{
    // Never destroyed: panels may be released after main() has returned.
    static NotificationCenter* const center = std::make_unique<NotificationCenter>().release();
    return *center;
}

NotificationCenter::NotificationCenter() : registrations_(std::make_unique<Registrations>()) {}

NotificationCenter::~NotificationCenter() = default;

void NotificationCenter::addObserver(const void* observer, const QString& name, const void* object,
                                     Handler handler)
{
    registrations_->add(observer, name, object, std::move(handler));
}

void NotificationCenter::removeObserver(const void* observer)
{
    registrations_->remove(observer);
}

void NotificationCenter::post(const QString& name, const void* object, const QString& description)
{
    registrations_->deliver(Notification{name, object, description});
}

} // namespace halvern
