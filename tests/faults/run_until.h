// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace halvern {

/// Runs the event loop until it is so; false after so many milliseconds.
inline bool runUntil(const std::function<bool()>& isSo, int milliseconds)
{
    constexpr int kLook = 5;
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (isSo() || clock.hasExpired(milliseconds))
            loop.quit();
    });
    look.start(kLook);
    loop.exec();
    return isSo();
}

} // namespace halvern
