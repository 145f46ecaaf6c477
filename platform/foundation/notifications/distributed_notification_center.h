// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace HALVERN_EXPORT halvern {

/// What an observer of another process's notification receives. `object` names the sender: the device URI of
/// a printer.
struct DistributedNotification {
    QString name;
    std::optional<QString> object;
};

/// The system-wide notification centre: what the printing system's other processes post on the system bus
/// (notification_bus.h) is delivered on the main thread, from its event loop, in the order of registration.
///
/// The first registration starts to connect, without waiting: a bus that is missing or slow holds up nobody.
/// Without a bus nothing is ever delivered; that is logged once, and the next registration tries again. A bus
/// that breaks off is looked for again, more and more seldom, as long as somebody observes. All operations
/// may be called from any thread, also from within a handler.
class DistributedNotificationCenter {
public:
    using Handler = std::function<void(const DistributedNotification&)>;

    static DistributedNotificationCenter& defaultCenter();

    DistributedNotificationCenter();
    ~DistributedNotificationCenter();
    DistributedNotificationCenter(const DistributedNotificationCenter&) = delete;
    DistributedNotificationCenter& operator=(const DistributedNotificationCenter&) = delete;

    /// Registers `handler` for `name`; with an object, only for notifications that carry exactly that object.
    /// `observer` is the key for removal, compared and never dereferenced. The same observer may be
    /// registered more than once and is then called more than once.
    void addObserver(const void* observer, const QString& name, const std::optional<QString>& object,
                     Handler handler);

    /// Removes all of the observer's registrations. A delivery that has begun on the main thread may still
    /// end.
    void removeObserver(const void* observer);

    /// Posts to all processes, this one included. Blocks for five seconds at most; for the printer's side and
    /// for tests, not for a thread that a user waits for. False, with the reason, if the bus did not take it.
    static bool post(const QString& name, const QString& object, QString* why = nullptr);

    /// Hands a notification to this process's observers, as if it had come from the bus. Main thread only.
    void deliver(const DistributedNotification& notification);

    /// True while the bus delivers to this centre. Main thread only.
    bool isConnected() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace halvern
