// SPDX-License-Identifier: MIT
#include "dialog/page/photo_problem.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace halvern {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(PhotoProblem)
};

QString pattern(PhotoFault fault)
{
    switch (fault) {
    case PhotoFault::missing:
        return Words::tr("There is no file \"%1\". Check its name.");
    case PhotoFault::isFolder:
        return Words::tr("\"%1\" is a folder. Name the photos in it, for example *.jpg.");
    case PhotoFault::unreadable:
        return Words::tr("\"%1\" cannot be opened. Check that you may read it.");
    case PhotoFault::empty:
        return Words::tr("\"%1\" is empty. Copy it from the camera again.");
    case PhotoFault::noPicture:
        return Words::tr("\"%1\" is not a picture that can be printed. Use a JPEG, PNG, TIFF or PDF file.");
    case PhotoFault::damaged:
        return Words::tr("\"%1\" is damaged and cannot be read. Export it from your photo program again.");
    case PhotoFault::partMissing:
        return Words::tr("\"%1\" is damaged: a part of the picture is missing. Copy it from the camera "
                         "again, or export it again.");
    case PhotoFault::tooLarge:
        return Words::tr("\"%1\" is too large to print. Make a copy with fewer pixels and print that.");
    case PhotoFault::locked:
        return Words::tr("\"%1\" is locked with a password. Save a copy without one and print that.");
    case PhotoFault::changed:
        return Words::tr("\"%1\" has changed meanwhile. Open it again.");
    }
    return {};
}

std::optional<PhotoFault> faultOf(const QFileInfo& file)
{
    if (!file.exists())
        return PhotoFault::missing;
    if (file.isDir())
        return PhotoFault::isFolder;
    if (!file.isReadable())
        return PhotoFault::unreadable;
    if (!file.isFile())
        return PhotoFault::noPicture;
    if (file.size() == 0)
        return PhotoFault::empty;
    return std::nullopt;
}

} // namespace

QString photoProblem(PhotoFault fault, const QString& path)
{
    return pattern(fault).arg(isolated(QDir::toNativeSeparators(path)));
}

QString fileProblem(const QString& path)
{
    const std::optional<PhotoFault> fault = faultOf(QFileInfo(path));
    return fault ? photoProblem(*fault, path) : QString();
}

} // namespace halvern
