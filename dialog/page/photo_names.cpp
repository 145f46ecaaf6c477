// SPDX-License-Identifier: MIT
#include "dialog/page/photo_names.h"

#include "dialog/page/photo_problem.h"
#include "platform/foundation/string_additions.h"

#include <QDir>
#include <QFileInfo>

namespace halvern {

QStringList photoSuffixes()
{
    return {QStringLiteral("jpg"),  QStringLiteral("jpeg"), QStringLiteral("png"),  QStringLiteral("tif"),
            QStringLiteral("tiff"), QStringLiteral("webp"), QStringLiteral("heic"), QStringLiteral("heif"),
            QStringLiteral("hif"),  QStringLiteral("avif"), QStringLiteral("pdf"),  QStringLiteral("bmp"),
            QStringLiteral("gif")};
}

QStringList photosInFolder(const QString& folder)
{
    QStringList patterns;
    for (const QString& suffix : photoSuffixes())
        patterns.append(QStringLiteral("*.") + suffix);
    QStringList names =
        KSTRVL_NSStringAdditions::sortedNumerically(QDir(folder).entryList(patterns, QDir::Files));
    for (QString& name : names)
        name = QDir(folder).filePath(name);
    return names;
}

QStringList withFoldersOpened(const QStringList& names, QStringList* problems)
{
    QStringList files;
    for (const QString& name : names) {
        if (!QFileInfo(name).isDir()) {
            files.append(name);
            continue;
        }
        const QStringList photos = photosInFolder(name);
        if (photos.isEmpty())
            problems->append(photoProblem(PhotoFault::isFolder, name));
        files.append(photos);
    }
    return files;
}

} // namespace halvern
