// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace halvern {

/// Who observes what in a notification centre. `Object` is the type of the filter by sender; a filter that is
/// false (null, absent) lets every sender pass. Any thread.
template <class Object, class Handler> class ObserverRegistry {
public:
    struct Entry {
        quint64 id;
        const void* observer;
        QString name;
        Object object;
        Handler handler;
    };

    void add(const void* observer, const QString& name, Object object, Handler handler)
    {
        const std::scoped_lock lock(mutex_);
        entries_.push_back({++lastId_, observer, name, std::move(object), std::move(handler)});
    }

    void remove(const void* observer)
    {
        // The handlers are destroyed outside the lock: a capture's last reference may call back into the
        // centre.
        std::vector<Entry> removed;
        const std::scoped_lock lock(mutex_);
        const auto first = std::stable_partition(
            entries_.begin(), entries_.end(), [observer](const auto& e) { return e.observer != observer; });
        removed.assign(std::make_move_iterator(first), std::make_move_iterator(entries_.end()));
        entries_.erase(first, entries_.end());
    }

    bool isEmpty()
    {
        const std::scoped_lock lock(mutex_);
        return entries_.empty();
    }

    /// Calls the handlers that a notification is for, in the order of registration, without holding a lock.
    template <class Note> void deliver(const Note& note)
    {
        for (const Entry& entry : matching(note.name, note.object)) {
            // An earlier handler may have removed this one.
            if (holds(entry.id))
                entry.handler(note);
        }
    }

private:
    std::vector<Entry> matching(const QString& name, const Object& object)
    {
        const std::scoped_lock lock(mutex_);
        std::vector<Entry> result;
        std::copy_if(entries_.begin(), entries_.end(), std::back_inserter(result), [&](const Entry& entry) {
            return entry.name == name && (!entry.object || entry.object == object);
        });
        return result;
    }

    bool holds(quint64 id)
    {
        const std::scoped_lock lock(mutex_);
        return std::any_of(entries_.begin(), entries_.end(), [id](const Entry& e) { return e.id == id; });
    }

    std::mutex mutex_;
    std::vector<Entry> entries_;
    quint64 lastId_ = 0;
};

} // namespace halvern
