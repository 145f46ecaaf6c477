// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class QMessageBox;

namespace halvern {

/// Tells the user what went wrong, since applications do not: in a notification of the desktop that opens a
/// window with the whole of it, or, where nobody shows notifications, in that window at once. Main thread
/// only, never waits.
class Notices : public QObject {
    Q_OBJECT

public:
    Notices();

    /// `keeps` is held until the user has been told, or does not want to be.
    void tell(const QString& application, const QString& sentence, const std::shared_ptr<void>& keeps);

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

    QHash<uint, Notice> shown_;
};

} // namespace halvern
