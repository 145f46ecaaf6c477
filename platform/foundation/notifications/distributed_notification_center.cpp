// SPDX-License-Identifier: MIT
#include "platform/foundation/notifications/distributed_notification_center.h"

#include "platform/foundation/log.h"
#include "platform/foundation/notifications/notification_bus.h"
#include "platform/foundation/notifications/observer_registry.h"
#include "platform/foundation/notifications/system_bus_listener.h"
#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <cstring>
#include <utility>

namespace halvern {

namespace {

constexpr int kFirstRetryMs = 500;
constexpr int kLongestRetryMs = 60 * 1000;

} // namespace

struct DistributedNotificationCenter::State : std::enable_shared_from_this<State> {
    ObserverRegistry<std::optional<QString>, Handler> registry;
    // The rest belongs to the main thread. The application object owns the listener.
    QPointer<SystemBusListener> listener;
    bool logged = false;
    bool hadBus = false;
    bool retryIsDue = false;
    int retryMs = kFirstRetryMs;

    ~State()
    {
        // The last reference may go on any thread.
        if (listener)
            listener->deleteLater();
    }

    void connectToBus();
    void gone(int status);
};

void DistributedNotificationCenter::State::connectToBus()
{
    if (listener)
        return;
    const std::weak_ptr<State> weak = weak_from_this();
    listener = std::make_unique<SystemBusListener>([weak](const QString& name, const QString& object) {
                   // Handlers run from the main loop, where they may do what they like.
                   mainQueue().async([weak, name, object] {
                       const DistributedNotification notification{
                           name, object.isEmpty() ? std::nullopt : std::optional<QString>(object)};
                       if (const auto state = weak.lock())
                           state->registry.deliver(notification);
                   });
               }).release();
    listener->setParent(QCoreApplication::instance());
    QObject::connect(listener, &SystemBusListener::lost, listener, [weak](int status, bool wasSubscribed) {
        const auto state = weak.lock();
        if (!state)
            return;
        if (wasSubscribed) {
            state->hadBus = true;
            state->retryMs = kFirstRetryMs;
            state->logged = false;
        }
        state->gone(status);
    });
    if (const int status = listener->open(); status < 0)
        gone(status);
}

void DistributedNotificationCenter::State::gone(int status)
{
    if (!std::exchange(logged, true))
        logLine(QStringLiteral("printers' notifications do not arrive, the system bus has gone: %1")
                    .arg(QString::fromLocal8Bit(std::strerror(-status))));
    if (listener)
        listener->deleteLater();
    listener.clear();
    // A bus that was there is started anew by the system; one that never was is no use to wait for.
    if (!hadBus || retryIsDue || registry.isEmpty())
        return;
    retryIsDue = true;
    const std::weak_ptr<State> weak = weak_from_this();
    mainQueue().after(retryMs, [weak] {
        const auto state = weak.lock();
        if (!state)
            return;
        state->retryIsDue = false;
        state->connectToBus();
    });
    retryMs = std::min(2 * retryMs, kLongestRetryMs);
}

DistributedNotificationCenter& DistributedNotificationCenter::defaultCenter()
{
    // Never destroyed: panels may be released after main() has returned.
    static DistributedNotificationCenter* const center =
        std::make_unique<DistributedNotificationCenter>().release();
    return *center;
}

DistributedNotificationCenter::DistributedNotificationCenter() : state_(std::make_shared<State>()) {}

DistributedNotificationCenter::~DistributedNotificationCenter() = default;

void DistributedNotificationCenter::addObserver(const void* observer, const QString& name,
                                                const std::optional<QString>& object, Handler handler)
{
    state_->registry.add(observer, name, object, std::move(handler));
    mainQueue().async([state = state_] { state->connectToBus(); });
}

void DistributedNotificationCenter::removeObserver(const void* observer)
{
    state_->registry.remove(observer);
}

bool DistributedNotificationCenter::post(const QString& name, const QString& object, QString* why)
{
    std::string reason;
    const bool posted = notification_bus::post(name.toStdString(), object.toStdString(), &reason);
    if (!posted && why)
        *why = QString::fromStdString(reason);
    return posted;
}

void DistributedNotificationCenter::deliver(const DistributedNotification& notification)
{
    state_->registry.deliver(notification);
}

bool DistributedNotificationCenter::isConnected() const
{
    return state_->listener && state_->listener->isSubscribed();
}

} // namespace halvern
