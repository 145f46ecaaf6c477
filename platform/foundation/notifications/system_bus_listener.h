// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QObject>
#include <QSocketNotifier>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

struct sd_bus;

namespace HALVERN_EXPORT halvern {

/// One connection to the system bus that listens for posted notifications, or for whatever a service says,
/// driven by the main thread's event
/// loop; no call of it blocks. Main thread only.
///
/// This is not the toolkit's own D-Bus module, because that one serves all buses of a process on one thread:
/// a system bus that accepts a connection and then says nothing holds up the session bus, and with it the
/// main thread and the program's end.
class SystemBusListener : public QObject {
    Q_OBJECT
public:
    using Received = std::function<void(const QString& name, const QString& object)>;

    /// `received` is called from within the connection's own work: it must not run an event loop. With
    /// a `service`, which outlives the listener, its every signal is heard, by its name and the object that
    /// it is about.
    explicit SystemBusListener(Received received, const char* service = nullptr);
    ~SystemBusListener() override;

    /// Starts to connect and subscribes. 0, or a negative errno when there is no bus at all.
    int open();

    /// True once the bus has confirmed the subscription.
    bool isSubscribed() const { return subscribed_; }

Q_SIGNALS:

    /// The connection has failed, or broken off after it was subscribed, for the reason of the negative
    /// errno. The listener is of no further use; delete it later.
    void lost(int status, bool wasSubscribed);

private:
    struct Calls;

    int subscribe();
    void process();
    void watch();
    void fail(int status);

    struct Unref {
        void operator()(sd_bus* bus) const;
    };

    Received received_;
    const char* service_;
    std::unique_ptr<sd_bus, Unref> bus_;
    std::unique_ptr<QSocketNotifier> readable_;
    std::unique_ptr<QSocketNotifier> writable_;
    QTimer deadline_;
    int installStatus_ = 0;
    bool subscribed_ = false;
};

} // namespace halvern
