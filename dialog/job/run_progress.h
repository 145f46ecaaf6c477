// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

#include <chrono>

namespace halvern {

/// What is told of a run while its photos are sent. Main thread only.
class RunProgress {
public:
    explicit RunProgress(int photos) : photos_(photos) {}

    int photos() const { return photos_; }

    void start() { clock_.start(); }

    /// A pause is no part of the time from which what is left is reckoned.
    void setPaused(bool paused);

    bool isPaused() const { return isPaused_; }

    /// The words for a share of the photos, 0 to 1.
    QString words(double share) const;

private:
    std::chrono::milliseconds spent() const;

    int photos_;
    QElapsedTimer clock_;
    qint64 pausedAt_ = 0;
    qint64 pausedFor_ = 0;
    bool isPaused_ = false;
};

/// "about 3 minutes left"; empty where it is too early to tell, or not worth it.
QString timeLeft(double share, std::chrono::milliseconds spent);

} // namespace halvern
