// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/colour_service.h"

#include <QAbstractNativeEventFilter>
#include <QByteArray>
#include <QObject>
#include <QPointer>

class QScreen;
class QWidget;

namespace halvern {

/// The ICC profile of the screen that a widget is on, as the system's colour service has it, else the X11
/// server's root window. It comes from a worker, and again when one of these has another one or the widget
/// moves to another screen. Main thread only; never waits.
class MonitorProfile : public QObject, public QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// `widget` outlives it.
    explicit MonitorProfile(QWidget* widget);
    ~MonitorProfile() override;

    /// Empty: none is known, the screen is taken for an sRGB one.
    const QByteArray& bytes() const { return bytes_; }

    /// What of X11 comes by.
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Found {
        QByteArray bytes;
        quint32 atom = 0;
    };

    static Found find(const ScreenName& screen, int number);
    void follow();
    void read();

    QWidget* widget_;
    ColourServiceWatch* watch_;
    QPointer<QScreen> screen_;
    QByteArray bytes_;
    quint32 atom_ = 0; // X11's name for where the profile is; 0: not known
    bool isReading_ = false;
    bool isOutdated_ = false; // what is being read
};

} // namespace halvern
