// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

namespace halvern {

class SystemBusListener;

/// What a screen is called: by its plug, and by whoever made it.
struct ScreenName {
    QString plug;
    QString model;
    QString serial;
    bool isOnly = false; ///< the computer has no other one

    bool operator==(const ScreenName&) const = default;
};

/// The file of the profile that the system's colour service has for a queue, or for a screen; empty if it has
/// none, or if there is no such service. Both wait for its answers, two seconds at most: for a worker.
QString servicesProfileForQueue(const QString& queue);
QString servicesProfileForScreen(const ScreenName& screen);

/// Says when the colour service has something new. Main thread only; never waits.
class ColourServiceWatch : public QObject {
    Q_OBJECT

public:
    explicit ColourServiceWatch(QObject* parent);
    ~ColourServiceWatch() override;

    /// Whether news would be heard.
    bool isOpen() const;

Q_SIGNALS:
    void changed();

private:
    std::unique_ptr<SystemBusListener> listener_;
    QTimer soon_; // one change comes as several signals
};

} // namespace halvern
