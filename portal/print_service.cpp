// SPDX-License-Identifier: MIT
#include "portal/print_service.h"

#include "portal/prepare_call.h"
#include "portal/print_call.h"
#include "portal/sent_job.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusPendingReply>

#include <algorithm>

namespace halvern {

namespace {

const QString kName = QStringLiteral("org.freedesktop.impl.portal.desktop.tessarin");
const QString kRequest = QStringLiteral("org.freedesktop.impl.portal.Request");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
constexpr auto kGoneLookUp = std::chrono::milliseconds(20);
constexpr auto kLongestTakingBack = std::chrono::seconds(5);

} // namespace

PrintService::PrintService(PortalTimes times) : times_(times), tokens_(times.token), life_(times.idle)
{
    new PrintAdaptor(this);
    callers_.setConnection(QDBusConnection::sessionBus());
    callers_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&callers_, &QDBusServiceWatcher::serviceUnregistered, this, [this](const QString& caller) {
        callers_.removeWatchedService(caller);
        for (PortalCall* call : findChildren<PortalCall*>()) {
            if (call->caller() == caller)
                call->close();
        }
    });
    connect(&tokens_, &TokenStore::emptied, this, [this] { heldForTokens_.reset(); });
    connect(&life_, &Life::over, this, &PrintService::leave);
}

PrintService::~PrintService()
{
    // They use what goes next.
    qDeleteAll(findChildren<PortalCall*>());
    qDeleteAll(findChildren<SentJob*>());
}

QString PrintService::enter()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return tr("There is no session bus: %1.").arg(bus.lastError().message());
    const bool isThere = bus.registerObject(kPortalPath, this) &&
                         bus.registerVirtualObject(kPortalPath + QStringLiteral("/request"), &requests_,
                                                   QDBusConnection::SubPath);
    if (!isThere || !bus.registerService(kName))
        return tr("Another halvern-print-portal runs in this session already.");
    return {};
}

// Whoever calls from now on starts a new program; what came before is still served.
void PrintService::leave()
{
    if (isEnding_)
        return;
    QDBusConnection::sessionBus().unregisterService(kName);
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!findChild<PortalCall*>())
                Q_EMIT over();
            else
                QDBusConnection::sessionBus().registerService(kName);
        },
        Qt::QueuedConnection);
}

void PrintService::end()
{
    if (std::exchange(isEnding_, true))
        return;
    // The name stays: whoever gives it up is ended by the session's manager at once.
    notices_.leave();
    for (PortalCall* call : findChildren<PortalCall*>())
        call->close();
    QTimer::singleShot(times_.sending, this, &PrintService::giveUp);
    auto* look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [this, look] {
        if (isOnItsWay())
            return;
        look->stop();
        Q_EMIT over();
    });
    look->start(kGoneLookUp);
}

void PrintService::giveUp()
{
    for (PortalCall* call : findChildren<PortalCall*>())
        call->giveUp();
    for (SentJob* job : findChildren<SentJob*>()) {
        if (job->isOnItsWay())
            job->giveUp();
    }
    QTimer::singleShot(kLongestTakingBack, this, &PrintService::over);
}

// What the print server has whole needs nobody here any more.
bool PrintService::isOnItsWay() const
{
    const QList<SentJob*> jobs = findChildren<SentJob*>();
    return findChild<PortalCall*>() || notices_.isTelling() ||
           std::ranges::any_of(jobs, [](const SentJob* job) { return job->isOnItsWay(); });
}

void PrintService::begin(PortalCall* call)
{
    if (isEnding_) {
        const std::unique_ptr<PortalCall> late(call);
        late->giveUp();
        return;
    }
    call->setParent(this);
    callers_.addWatchedService(call->caller());
    lookForCaller(call);
    connect(call, &PortalCall::over, call, [this, call] {
        if (!tokens_.isEmpty())
            heldForTokens_ = life_.hold();
        call->deleteLater();
    });
    call->start();
}

// It may have gone before it was watched.
void PrintService::lookForCaller(PortalCall* call)
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question.setArguments({call->caller()});
    auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), call);
    connect(answer, &QDBusPendingCallWatcher::finished, call, [call, answer] {
        const QDBusPendingReply<bool> isThere = *answer;
        answer->deleteLater();
        if (!isThere.isError() && !isThere.value())
            call->close();
    });
}

void PrintService::prepare(CallDetails details, const QVariantMap& settings, const QVariantMap& pageSetup,
                           const QDBusMessage& message)
{
    const ApplicationSettings read(settings, pageSetup);
    for (const QString& key : read.refused())
        qInfo("\"%s\" of the application's settings is left out.", qUtf8Printable(key));
    begin(new PrepareCall({panels_, tokens_, notices_, life_}, std::move(details), read, message));
}

void PrintService::print(CallDetails details, const QDBusUnixFileDescriptor& document,
                         const QDBusMessage& message)
{
    auto* call = new PrintCall({panels_, tokens_, notices_, life_}, std::move(details), document, message);
    connect(call, &PrintCall::sent, this, [this](SentJob* job) {
        job->setParent(this);
        connect(job, &SentJob::over, job, &QObject::deleteLater);
    });
    begin(call);
}

bool PrintService::close(const QString& handle, const QString& caller)
{
    for (PortalCall* call : findChildren<PortalCall*>()) {
        if (call->handle() != handle || call->caller() != caller)
            continue;
        call->close();
        return true;
    }
    return false;
}

QString RequestTree::introspect(const QString&) const
{
    return QStringLiteral("<interface name=\"%1\"><method name=\"Close\"/></interface>").arg(kRequest);
}

bool RequestTree::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    const bool isForRequest = message.interface().isEmpty() || message.interface() == kRequest;
    // Everybody on the bus may ask; only whoever opened it closes it.
    if (!isForRequest || message.member() != QLatin1StringView("Close") ||
        !service_.close(message.path(), message.service()))
        return false;
    connection.send(message.createReply());
    return true;
}

uint PrintAdaptor::PreparePrint(const QDBusObjectPath& handle, const QString& application,
                                const QString& parentWindow, const QString& title,
                                const QVariantMap& settings, const QVariantMap& pageSetup,
                                const QVariantMap& options, const QDBusMessage& message, QVariantMap&)
{
    service_->prepare({handle.path(), application, parentWindow, title, options}, settings, pageSetup,
                      message);
    return 0;
}

uint PrintAdaptor::Print(const QDBusObjectPath& handle, const QString& application,
                         const QString& parentWindow, const QString& title,
                         const QDBusUnixFileDescriptor& document, const QVariantMap& options,
                         const QDBusMessage& message, QVariantMap&)
{
    service_->print({handle.path(), application, parentWindow, title, options}, document, message);
    return 0;
}

} // namespace halvern
