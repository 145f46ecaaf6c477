// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>

namespace halvern {

/// Counts what keeps the program alive, and says when nothing has for a while. Main thread only.
class Life : public QObject {
    Q_OBJECT

public:
    explicit Life(std::chrono::milliseconds patience = std::chrono::seconds(60))
    {
        end_.setSingleShot(true);
        end_.setInterval(patience);
        connect(&end_, &QTimer::timeout, this, &Life::over);
        end_.start();
    }

    /// The program lives as long as the result does, and a while longer.
    std::shared_ptr<void> hold()
    {
        if (const std::shared_ptr<void> held = held_.lock())
            return held;
        end_.stop();
        const std::shared_ptr<void> held(this, [self = QPointer<Life>(this)](void*) {
            if (self)
                self->end_.start();
        });
        held_ = held;
        return held;
    }

Q_SIGNALS:
    void over();

private:
    QTimer end_;
    std::weak_ptr<void> held_;
};

} // namespace halvern
