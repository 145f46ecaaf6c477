// SPDX-License-Identifier: MIT
#include "portal/notices.h"

#include "platform/foundation/display_text.h"
#include "platform/toolkit/plain_text.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMessageBox>
#include <QTimer>

namespace halvern {

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kNotificationsPath = QStringLiteral("/org/freedesktop/Notifications");
constexpr int kNoticePatience = 3000; // milliseconds
constexpr auto kLongestShown = std::chrono::minutes(10);

} // namespace

Notices::Notices()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.connect(kService, kNotificationsPath, kService, QStringLiteral("ActionInvoked"), this,
                SLOT(act(uint, QString)));
    bus.connect(kService, kNotificationsPath, kService, QStringLiteral("NotificationClosed"), this,
                SLOT(forget(uint)));
    services_.setConnection(bus);
    services_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    services_.addWatchedService(kService);
    // Its buttons have gone with it.
    connect(&services_, &QDBusServiceWatcher::serviceUnregistered, this, [this] { shown_.clear(); });
}

void Notices::tell(const QString& application, const QString& sentence, const std::shared_ptr<void>& keeps)
{
    const Notice notice{application.isEmpty() ? tr("Printing")
                                              : tr("Printing from %1").arg(isolated(application)),
                        sentence, keeps};
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kNotificationsPath, kService, QStringLiteral("Notify"));
    const QStringList actions =
        isLeaving_ ? QStringList()
                   : QStringList{QStringLiteral("default"), tr("Show"), QStringLiteral("show"), tr("Show")};
    // The body is markup.
    call.setArguments({QStringLiteral("halvern-print"), 0U, QStringLiteral("printer"), notice.title,
                       displayText(sentence).toHtmlEscaped(), actions,
                       QVariantMap{{QStringLiteral("urgency"), QVariant::fromValue(uchar(2))}}, -1});
    ++telling_;
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, kNoticePatience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, notice] {
        answer->deleteLater();
        --telling_;
        const QDBusPendingReply<uint> number = *answer;
        if (!number.isError())
            take(number.value(), notice);
        else if (isLeaving_)
            qWarning("%s", qUtf8Printable(notice.sentence));
        else
            show(notice);
    });
}

void Notices::take(uint number, const Notice& notice)
{
    if (isLeaving_)
        return;
    shown_.insert(number, notice);
    QTimer::singleShot(kLongestShown, this, [this, number] { forget(number); });
}

void Notices::leave()
{
    isLeaving_ = true;
    shown_.clear();
}

void Notices::act(uint number, const QString&)
{
    if (shown_.contains(number))
        show(shown_.take(number));
}

void Notices::forget(uint number)
{
    shown_.remove(number);
}

void Notices::show(const Notice& notice)
{
    auto* box = new QMessageBox(QMessageBox::Warning, QString(), QString(), QMessageBox::Close);
    box->setObjectName(QStringLiteral("failure"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    setPlainTitle(box, notice.title);
    box->setText(displayText(notice.sentence)); // plain: its format says so
    box->setProperty("keeps", QVariant::fromValue(notice.keeps));
    box->setWindowModality(Qt::NonModal);
    connect(this, &QObject::destroyed, box, &QObject::deleteLater);
    box->show();
}

} // namespace halvern
