// SPDX-License-Identifier: MIT
#include "dialog/page/colour_service.h"

#include "platform/foundation/notifications/system_bus_listener.h"

#include <QMap>
#include <QStringList>

#include <systemd/sd-bus.h>

#include <chrono>
#include <cstdlib>

namespace halvern {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 2s;
constexpr int kSoonMilliseconds = 200;
constexpr const char* kService = "org.freedesktop.ColorManager";
constexpr const char* kPath = "/org/freedesktop/ColorManager";
constexpr const char* kDevice = "org.freedesktop.ColorManager.Device";
constexpr const char* kProfileInterface = "org.freedesktop.ColorManager.Profile";

struct CloseBus {
    void operator()(sd_bus* bus) const
    {
        sd_bus_close(bus);
        sd_bus_unref(bus);
    }
};

struct UnrefMessage {
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};

using Bus = std::unique_ptr<sd_bus, CloseBus>;
using Message = std::unique_ptr<sd_bus_message, UnrefMessage>;

// A bus that accepts a connection and then says nothing is as good as none.
Bus openBus()
{
    sd_bus* opened = nullptr;
    if (sd_bus_open_system(&opened) < 0)
        return nullptr;
    Bus bus(opened);
    const Clock::time_point end = Clock::now() + kPatience;
    sd_bus_set_method_call_timeout(bus.get(), uint64_t(std::chrono::microseconds(kPatience).count()));
    while (sd_bus_is_ready(bus.get()) == 0) {
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end - Clock::now());
        const int progress = sd_bus_process(bus.get(), nullptr);
        if (progress < 0 || left <= 0us ||
            (progress == 0 && sd_bus_wait(bus.get(), uint64_t(left.count())) < 0))
            return nullptr;
    }
    return bus;
}

Message property(sd_bus* bus, const QByteArray& path, const char* interface, const char* name,
                 const char* type)
{
    sd_bus_message* reply = nullptr;
    sd_bus_get_property(bus, kService, path.constData(), interface, name, nullptr, &reply, type);
    return Message(reply);
}

QString textProperty(sd_bus* bus, const QByteArray& path, const char* interface, const char* name)
{
    const Message reply = property(bus, path, interface, name, "s");
    const char* text = nullptr;
    return reply && sd_bus_message_read(reply.get(), "s", &text) > 0 ? QString::fromUtf8(text) : QString();
}

QList<QByteArray> paths(sd_bus_message* message)
{
    QList<QByteArray> list;
    const char* path = nullptr;
    if (message && sd_bus_message_enter_container(message, 'a', "o") > 0) {
        while (sd_bus_message_read(message, "o", &path) > 0)
            list.append(path);
    }
    return list;
}

QMap<QString, QString> notes(sd_bus* bus, const QByteArray& device)
{
    QMap<QString, QString> map;
    const Message reply = property(bus, device, kDevice, "Metadata", "a{ss}");
    const char* key = nullptr;
    const char* value = nullptr;
    if (reply && sd_bus_message_enter_container(reply.get(), 'a', "{ss}") > 0) {
        while (sd_bus_message_read(reply.get(), "{ss}", &key, &value) > 0)
            map.insert(QString::fromUtf8(key), QString::fromUtf8(value));
    }
    return map;
}

QByteArray pathAnswer(sd_bus_message* reply)
{
    const char* path = nullptr;
    return reply && sd_bus_message_read(reply, "o", &path) > 0 ? QByteArray(path) : QByteArray();
}

bool isScreen(sd_bus* bus, const QByteArray& device, const ScreenName& screen)
{
    const QString plug = notes(bus, device).value(QStringLiteral("XRANDR_name"));
    if (!plug.isEmpty())
        return plug == screen.plug;
    return !screen.model.isEmpty() && textProperty(bus, device, kDevice, "Model") == screen.model &&
           textProperty(bus, device, kDevice, "Serial") == screen.serial;
}

QByteArray deviceOf(sd_bus* bus, const ScreenName& screen)
{
    sd_bus_message* reply = nullptr;
    sd_bus_call_method(bus, kService, kPath, kService, "GetDevicesByKind", nullptr, &reply, "s", "display");
    const Message held(reply);
    const QList<QByteArray> devices = paths(reply);
    for (const QByteArray& device : devices) {
        if (isScreen(bus, device, screen))
            return device;
    }
    return screen.isOnly && devices.size() == 1 ? devices.first() : QByteArray();
}

} // namespace

QString servicesProfileForQueue(const QString& queue)
{
    const Bus bus = openBus();
    if (!bus)
        return {};
    const QByteArray id = "cups-" + queue.toUtf8();
    sd_bus_message* reply = nullptr;
    sd_bus_call_method(bus.get(), kService, kPath, kService, "FindDeviceById", nullptr, &reply, "s",
                       id.constData());
    const QByteArray device = pathAnswer(Message(reply).get());
    if (device.isEmpty())
        return {};
    reply = nullptr;
    sd_bus_call_method(bus.get(), kService, device.constData(), kDevice, "GetProfileForQualifiers", nullptr,
                       &reply, "as", 1, "*");
    const QByteArray profile = pathAnswer(Message(reply).get());
    return profile.isEmpty() ? QString() : textProperty(bus.get(), profile, kProfileInterface, "Filename");
}

QString servicesProfileForScreen(const ScreenName& screen)
{
    const Bus bus = openBus();
    const QByteArray device = bus ? deviceOf(bus.get(), screen) : QByteArray();
    if (device.isEmpty())
        return {};
    const QList<QByteArray> profiles = paths(property(bus.get(), device, kDevice, "Profiles", "ao").get());
    return profiles.isEmpty() ? QString()
                              : textProperty(bus.get(), profiles.first(), kProfileInterface, "Filename");
}

ColourServiceWatch::ColourServiceWatch(QObject* parent)
    : QObject(parent),
      listener_(std::make_unique<SystemBusListener>([this](const QString&, const QString&) { soon_.start(); },
                                                    kService))
{
    soon_.setSingleShot(true);
    soon_.setInterval(kSoonMilliseconds);
    connect(&soon_, &QTimer::timeout, this, &ColourServiceWatch::changed);
    listener_->open();
}

ColourServiceWatch::~ColourServiceWatch() = default;

bool ColourServiceWatch::isOpen() const
{
    return listener_->isSubscribed();
}

} // namespace halvern
