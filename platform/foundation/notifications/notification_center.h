// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace HALVERN_EXPORT halvern {

/// What an observer receives. `object` identifies the sender; it is compared, never dereferenced.
struct Notification {
    QString name;
    const void* object = nullptr;
    QString description;
};

/// The process's notification centre. Delivery is synchronous, on the posting thread, in the order of
/// registration. Every operation may be called from any thread, also from within a handler.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    static NotificationCenter& defaultCenter();

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    /// Registers `handler` for `name`; with an object, only for that object's notifications. `observer` is
    /// the key for removal. The same observer may be registered more than once and is then called more than
    /// once.
    void addObserver(const void* observer, const QString& name, const void* object, Handler handler);

    /// Removes all of the observer's registrations. A delivery that has begun on another thread may still
    /// end.
    void removeObserver(const void* observer);

    void post(const QString& name, const void* object, const QString& description = QString());

private:
    struct Registrations;
    std::unique_ptr<Registrations> registrations_;
};

} // namespace halvern
