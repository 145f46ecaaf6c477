// SPDX-License-Identifier: MIT
#include "dialog/session/profile_shelf.h"

#include "dialog/page/colour_profile.h"
#include "dialog/page/screen_colours.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/threads/work_queue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

constexpr qint64 kLargestProfile = 64 * 1024 * 1024;
constexpr int kTryAgain = 1000; // milliseconds

struct ProfileShelfWords {
    Q_DECLARE_TR_FUNCTIONS(ColourManagement)
};

PrinterProfile failed(const QString& path, const QString& problem)
{
    PrinterProfile profile;
    profile.path = path;
    profile.problem = problem.arg(isolated(QDir::toNativeSeparators(path)));
    return profile;
}

PrinterProfile beingRead(const QString& path)
{
    PrinterProfile profile =
        failed(path, ProfileShelfWords::tr("The color profile \"%1\" is being read. Wait a moment."));
    profile.isRead = false;
    return profile;
}

} // namespace

PrinterProfile readPrinterProfile(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kLargestProfile || !file.open(QIODevice::ReadOnly))
        return failed(
            path, ProfileShelfWords::tr("The color profile \"%1\" cannot be read. Choose another one, or let "
                                        "the printer manage colors."));
    const QByteArray bytes = file.readAll();
    const OpenProfile profile = openProfile(bytes);
    if (!profile || !canConvertTo(profile))
        return failed(
            path, ProfileShelfWords::tr("\"%1\" is no color profile of a printer. Choose another one, or let "
                                        "the printer manage colors."));
    const QString name = profileName(profile);
    return {bytes,
            path,
            name.isEmpty() ? QFileInfo(path).completeBaseName() : name,
            {},
            channelsOf(profile) == 1,
            canProof(bytes)};
}

PrinterProfile ProfileShelf::find(const QString& path)
{
    Entry& entry = entries_[path];
    const bool isFirst = !entry.age.isValid();
    const bool isStale = !entry.profile.problem.isEmpty() && entry.age.hasExpired(kTryAgain);
    if (isFirst)
        entry.profile = beingRead(path);
    if ((isFirst || isStale) && !entry.isBeingRead) {
        entry.isBeingRead = true;
        entry.age.start();
        read(path);
    }
    return entries_.value(path).profile;
}

bool ProfileShelf::isReading() const
{
    return std::ranges::any_of(entries_, [](const Entry& entry) { return !entry.profile.isRead; });
}

void ProfileShelf::read(const QString& path)
{
    QPointer<ProfileShelf> self(this);
    WorkQueue().async([self, path] {
        const PrinterProfile profile = readPrinterProfile(path);
        mainQueue().async([self, profile] {
            if (!self)
                return;
            Entry& entry = self->entries_[profile.path];
            const bool isNew = entry.profile != profile;
            entry = {profile, {}, false};
            entry.age.start();
            if (isNew)
                Q_EMIT self->changed();
        });
    });
}

} // namespace halvern
