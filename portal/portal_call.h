// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/window/parent_window.h"
#include "portal/application_settings.h"
#include "portal/notices.h"
#include "portal/token_store.h"

#include <QDBusMessage>

namespace halvern {

class Life;
class PanelSource;
class PrintDialog;

/// What the calls of one program share. It outlives them.
struct PortalRoom {
    PanelSource& panels;
    TokenStore& tokens;
    Notices& notices;
    Life& life;
};

/// The answers of the portal.
enum class PortalResponse : uint { done = 0, cancelled = 1, failed = 2 };

/// What every call says.
struct CallDetails {
    QString handle; ///< the path of the object that ends the call
    QString application;
    QString parentWindow;
    QString title;
    QVariantMap options;
};

/// A call that is answered when its dialog has been. Main thread only.
class PortalCall : public QObject {
    Q_OBJECT

public:
    /// Makes the answer to `message` a late one.
    PortalCall(PortalRoom room, CallDetails details, const QDBusMessage& message);
    /// Answers, if nobody has.
    ~PortalCall() override;

    virtual void start() = 0;

    /// Closes what is open, and answers that the call has failed. What was accepted still goes to the
    /// printer.
    virtual void close();

    /// After close(): ends what has still not come to its end, and tells the user of it.
    virtual void giveUp() { close(); }

    const QString& caller() const { return caller_; }

    const QString& handle() const { return details_.handle; }

Q_SIGNALS:
    /// Answered, and nothing is left to do.
    void over();

protected:
    /// The answer; later ones are not sent.
    void answer(PortalResponse response, const QVariantMap& results = {});

    bool isAnswered() const { return isAnswered_; }

    /// Shows a dialog above the application's window.
    void showDialog(PrintDialog& dialog);

    QString text(const char* option) const;

    bool isSet(const char* option, bool otherwise = false) const;

    /// What the user calls the application; empty if nobody knows.
    const QString& applicationsName() const { return applicationsName_; }

    PortalRoom room_;
    CallDetails details_;
    std::shared_ptr<void> keepsAlive_;

private:
    QDBusMessage message_;
    QString caller_;
    QString applicationsName_;
    std::shared_ptr<QWindow> parent_;
    bool isAnswered_ = false;
};

} // namespace halvern
