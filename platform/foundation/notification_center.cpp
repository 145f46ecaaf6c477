#include "platform/foundation/notification_center.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace halvern {

struct NotificationCenter::Registrations {
    struct Entry {
        quint64 id;
        const void* observer;
        QString name;
        const void* object;
        Handler handler;
    };

    std::mutex mutex;
    std::vector<Entry> entries;
    quint64 lastId = 0;

    std::vector<Entry> matching(const QString& name, const void* object)
    {
        const std::scoped_lock lock(mutex);
        std::vector<Entry> result;
        std::copy_if(entries.begin(), entries.end(), std::back_inserter(result), [&](const Entry& entry) {
            return entry.name == name && (!entry.object || entry.object == object);
        });
        return result;
    }

    bool holds(quint64 id)
    {
        const std::scoped_lock lock(mutex);
        return std::any_of(entries.begin(), entries.end(),
                           [id](const Entry& entry) { return entry.id == id; });
    }
};

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
    const std::scoped_lock lock(registrations_->mutex);
    registrations_->entries.push_back({++registrations_->lastId, observer, name, object, std::move(handler)});
}

void NotificationCenter::removeObserver(const void* observer)
{
    // The handlers are destroyed outside the lock: a capture's last reference may call back into the centre.
    std::vector<Registrations::Entry> removed;
    const std::scoped_lock lock(registrations_->mutex);
    auto& entries = registrations_->entries;
    const auto first = std::stable_partition(
        entries.begin(), entries.end(), [observer](const auto& entry) { return entry.observer != observer; });
    removed.assign(std::make_move_iterator(first), std::make_move_iterator(entries.end()));
    entries.erase(first, entries.end());
}

void NotificationCenter::post(const QString& name, const void* object, const QString& description)
{
    const Notification notification{name, object, description};
    for (const auto& entry : registrations_->matching(name, object)) {
        // An earlier handler may have removed this one.
        if (registrations_->holds(entry.id))
            entry.handler(notification);
    }
}

} // namespace halvern
