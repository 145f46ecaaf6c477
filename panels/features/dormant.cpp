// SPDX-License-Identifier: MIT
#include "panels/features/features_panel.h"

#include "platform/foundation/log.h"
#include "platform/foundation/notifications/notification_center.h"

#include <array>

#include <pwd.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr std::array<QLatin1StringView, 5> kWindowingPrefixes{
    QLatin1StringView("NSWindow"), QLatin1StringView("NSMenu"), QLatin1StringView("NSApplication"),
    QLatin1StringView("_NSWindow"), QLatin1StringView("NSView")};

QString loginName()
{
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return QStringLiteral("");
    return QString::fromLocal8Bit(found->pw_name);
}

} // namespace

QString RZFeaturesPDEHalvern::logfile()
{
    return QStringLiteral("/var/log/halvern/HalvernPDE%1.log").arg(loginName());
}

void RZFeaturesPDEHalvern::noteLog(const Notification& notification)
{
    for (const QLatin1StringView prefix : kWindowingPrefixes) {
        if (notification.name.startsWith(prefix))
            return;
    }
    logLine(QStringLiteral("new notification: {name = %1; object = %2;}")
                .arg(notification.name, notification.description));
}

} // namespace halvern
