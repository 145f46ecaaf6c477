// SPDX-License-Identifier: MIT
#include "dialog/job/run_progress.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

constexpr double kLeastSpent = 3.0; // seconds, before anything can be said
constexpr double kLeastLeft = 10.0; // seconds that are worth a word
constexpr double kMinute = 60.0;
constexpr double kMostMinutes = 90.0; // hours are said beyond that

struct RunProgressWords {
    Q_DECLARE_TR_FUNCTIONS(PrintRun)
};

} // namespace

QString timeLeft(double share, std::chrono::milliseconds spent)
{
    const double seconds = std::chrono::duration<double>(spent).count();
    if (seconds < kLeastSpent || share <= 0.0)
        return {};
    const double left = seconds / share * (1.0 - share);
    if (left < kLeastLeft)
        return {};
    const double minutes = std::ceil(left / kMinute);
    if (minutes <= 1.0)
        return RunProgressWords::tr("less than a minute left");
    if (minutes <= kMostMinutes)
        return RunProgressWords::tr("about %1 minutes left").arg(int(minutes));
    return RunProgressWords::tr("about %1 hours left").arg(int(std::lround(minutes / kMinute)));
}

void RunProgress::setPaused(bool paused)
{
    if (paused == isPaused_)
        return;
    isPaused_ = paused;
    if (paused)
        pausedAt_ = clock_.elapsed();
    else
        pausedFor_ += clock_.elapsed() - pausedAt_;
}

std::chrono::milliseconds RunProgress::spent() const
{
    return std::chrono::milliseconds((isPaused_ ? pausedAt_ : clock_.elapsed()) - pausedFor_);
}

QString RunProgress::words(double share) const
{
    if (photos_ <= 1)
        return RunProgressWords::tr("Sending the photo...");
    const int done = std::clamp(int(std::lround(share * photos_)), 0, photos_);
    if (isPaused_)
        return RunProgressWords::tr("Paused: %1 of %2 photos are sent.").arg(done).arg(photos_);
    const QString sentence =
        RunProgressWords::tr("Sending photo %1 of %2").arg(std::min(done + 1, photos_)).arg(photos_);
    const QString left = timeLeft(share, spent());
    return left.isEmpty() ? sentence + QStringLiteral("...") : sentence + QStringLiteral(": ") + left;
}

} // namespace halvern
