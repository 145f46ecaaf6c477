// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/plugin_loader.h"
#include "dialog/window/access_dialogs.h"
#include "portal/life.h"
#include "portal/portal_call.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QDBusVirtualObject>

namespace halvern {

/// How long things are kept.
struct PortalTimes {
    std::chrono::milliseconds idle = std::chrono::seconds(60);
    std::chrono::milliseconds token = std::chrono::minutes(10);
    std::chrono::milliseconds sending = std::chrono::seconds(5); ///< at the program's end
};

class PrintService;

/// The objects at the handles of calls. All of them are there before their calls are: a call that is taken
/// back at once must not be missed.
class RequestTree : public QDBusVirtualObject {
public:
    explicit RequestTree(PrintService& service) : service_(service) {}

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    PrintService& service_;
};

/// The desktop's print portal, as far as it shows dialogs and prints: what the portal's front end calls. Main
/// thread only.
class PrintService : public QObject {
    Q_OBJECT

public:
    explicit PrintService(PortalTimes times = {});
    ~PrintService() override;

    /// Puts the service on the session bus. The sentence why it cannot be; empty if it is there.
    QString enter();

    void prepare(CallDetails details, const QVariantMap& settings, const QVariantMap& pageSetup,
                 const QDBusMessage& message);
    void print(CallDetails details, const QDBusUnixFileDescriptor& document, const QDBusMessage& message);

    /// Takes a call back. False if `caller` has made none with that handle.
    bool close(const QString& handle, const QString& caller);

    /// Ends the service, whatever is going on: nobody reaches it any more, and dialogs are answered as
    /// failed. What was accepted has the time for sending to get to the print server; then it is taken back,
    /// and the user told. over() follows in any case, some seconds after that at most.
    void end();

Q_SIGNALS:
    /// Nothing has been going on for a while, or end() was called, and nobody reaches the service any more.
    void over();

private:
    void begin(PortalCall* call);
    void lookForCaller(PortalCall* call);
    void leave();
    void giveUp();
    bool isOnItsWay() const;

    PortalTimes times_;
    AccessDialogs access_{nullptr}; ///< for documents that are sent without a dialog
    PluginLoader panels_;
    TokenStore tokens_;
    Notices notices_;
    Life life_;
    std::shared_ptr<void> heldForTokens_;
    QDBusServiceWatcher callers_;
    RequestTree requests_{*this};
    bool isEnding_ = false;
};

/// The service's object on the bus.
class PrintAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")

public:
    explicit PrintAdaptor(PrintService* service) : QDBusAbstractAdaptor(service), service_(service) {}

public Q_SLOTS:
    uint PreparePrint(const QDBusObjectPath& handle, const QString& application, const QString& parentWindow,
                      const QString& title, const QVariantMap& settings, const QVariantMap& pageSetup,
                      const QVariantMap& options, const QDBusMessage& message, QVariantMap& results);
    uint Print(const QDBusObjectPath& handle, const QString& application, const QString& parentWindow,
               const QString& title, const QDBusUnixFileDescriptor& document, const QVariantMap& options,
               const QDBusMessage& message, QVariantMap& results);

private:
    PrintService* service_;
};

} // namespace halvern
