// SPDX-License-Identifier: MIT
#include "dialog/preview/monitor_profile.h"

#include "dialog/page/screen_colours.h"
#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <cstdlib>
#include <utility>

#include <xcb/xcb.h>

namespace halvern {

namespace {

constexpr qint64 kLargestProfile = 16 * 1024 * 1024;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

struct Free {
    void operator()(void* p) const { std::free(p); }
};

template <class T> using Reply = std::unique_ptr<T, Free>;

bool isX11()
{
    return QGuiApplication::platformName() == QLatin1StringView("xcb");
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    const bool isThere = !path.isEmpty() && file.size() <= kLargestProfile && file.open(QIODevice::ReadOnly);
    return isThere ? file.read(kLargestProfile) : QByteArray();
}

// The property that the screen's profile is in, by its number.
quint32 profileAtom(xcb_connection_t* connection, int number)
{
    const QByteArray name = number == 0 ? "_ICC_PROFILE" : "_ICC_PROFILE_" + QByteArray::number(number);
    const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, uint16_t(name.size()), name.constData()), nullptr));
    return atom ? atom->atom : 0;
}

QByteArray rootProperty(xcb_connection_t* connection, quint32 atom)
{
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, screen->root, atom, XCB_ATOM_CARDINAL, 0, kLargestProfile / 4),
        nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

} // namespace

MonitorProfile::MonitorProfile(QWidget* widget)
    : QObject(widget), widget_(widget), watch_(new ColourServiceWatch(this))
{
    widget_->installEventFilter(this);
    connect(watch_, &ColourServiceWatch::changed, this, &MonitorProfile::read);
    if (isX11())
        QCoreApplication::instance()->installNativeEventFilter(this);
}

MonitorProfile::~MonitorProfile() = default;

bool MonitorProfile::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        if (const QWindow* window = widget_->window()->windowHandle())
            connect(window, &QWindow::screenChanged, this, &MonitorProfile::follow, Qt::UniqueConnection);
        follow();
    }
    return QObject::eventFilter(watched, event);
}

void MonitorProfile::follow()
{
    if (screen_ == widget_->screen())
        return;
    screen_ = widget_->screen();
    read();
}

MonitorProfile::Found MonitorProfile::find(const ScreenName& screen, int number)
{
    Found found;
    found.bytes = fileBytes(servicesProfileForScreen(screen));
    if (!isScreenProfile(found.bytes))
        found.bytes.clear();
    if (!isX11())
        return found;
    const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()))
        return found;
    found.atom = profileAtom(connection.get(), number);
    if (!found.bytes.isEmpty())
        return found;
    const QByteArray stored = rootProperty(connection.get(), found.atom);
    if (isScreenProfile(stored))
        found.bytes = stored;
    return found;
}

void MonitorProfile::read()
{
    isOutdated_ = isReading_;
    if (isReading_ || !screen_)
        return;
    isReading_ = true;
    const QList<QScreen*> screens = QGuiApplication::screens();
    const ScreenName name{screen_->name(), screen_->model(), screen_->serialNumber(), screens.size() == 1};
    QPointer<MonitorProfile> self(this);
    WorkQueue().async([self, name, number = int(screens.indexOf(screen_.data()))] {
        const Found found = find(name, number);
        mainQueue().async([self, found] {
            if (!self)
                return;
            self->isReading_ = false;
            self->atom_ = found.atom;
            if (std::exchange(self->isOutdated_, false))
                return self->read();
            if (std::exchange(self->bytes_, found.bytes) != found.bytes)
                Q_EMIT self->changed();
        });
    });
}

bool MonitorProfile::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (atom_ == 0 || eventType != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_property_notify_event_t*>(message);
    if ((event->response_type & 0x7F) == XCB_PROPERTY_NOTIFY && event->atom == atom_)
        read();
    return false;
}

} // namespace halvern
