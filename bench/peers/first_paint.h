// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

/// Calls back once after the next painting of a window, when the event loop is free again. Main thread only;
/// belongs to the window.
class FirstPaint : public QObject {
public:
    FirstPaint(QWidget& window, std::function<void()> done) : QObject(&window), done_(std::move(done))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && done_)
            QTimer::singleShot(0, this, std::exchange(done_, {}));
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> done_;
};
