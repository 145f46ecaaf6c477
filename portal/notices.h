// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class QMessageBox;

namespace halvern {

/// Tells the user what went wrong, since applications do not: in a notification of the desktop that opens a
/// window with the whole of it, or, where nobody shows notifications, in that window at once. A button is
/// answered for ten minutes, and as long as whoever shows it is there. Main thread only, never waits.
class Notices : public QObject {
    Q_OBJECT

public:
    Notices();

    /// `keeps` is held until the user has been told, or does not want to be.
    void tell(const QString& application, const QString& sentence, const std::shared_ptr<void>& keeps);

    /// From now on nobody is there whom a button would reach: what is shown is let go, and what is still told
    /// is in a notification without one, or in the log.
    void leave();

    /// Whether somebody is being told right now.
    bool isTelling() const { return telling_ > 0; }

private Q_SLOTS:
    void act(uint number, const QString& action);
    void forget(uint number);

private:
    struct Notice {
        QString title;
        QString sentence;
        std::shared_ptr<void> keeps;
    };

    void show(const Notice& notice);
    void take(uint number, const Notice& notice);

    QHash<uint, Notice> shown_;
    QDBusServiceWatcher services_;
    int telling_ = 0;
    bool isLeaving_ = false;
};

} // namespace halvern
