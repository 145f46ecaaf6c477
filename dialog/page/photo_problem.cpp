// SPDX-License-Identifier: MIT
#include "dialog/page/photo_problem.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <optional>

namespace halvern {

namespace {

struct PhotoProblemWords {
    Q_DECLARE_TR_FUNCTIONS(PhotoProblem)
};

QString pattern(PhotoFault fault)
{
    switch (fault) {
    case PhotoFault::none:
        break;
    case PhotoFault::missing:
        return PhotoProblemWords::tr("There is no file \"%1\". Check its name.");
    case PhotoFault::isFolder:
        return PhotoProblemWords::tr(
            "\"%1\" is a folder without photos. Name one that holds photos, or photos.");
    case PhotoFault::unreadable:
        return PhotoProblemWords::tr("\"%1\" cannot be opened. Check that you may read it.");
    case PhotoFault::empty:
        return PhotoProblemWords::tr("\"%1\" is empty. Copy it from the camera again.");
    case PhotoFault::noPicture:
        return PhotoProblemWords::tr(
            "\"%1\" is not a picture that can be printed. Use a JPEG, PNG, TIFF, WebP, HEIF, "
            "AVIF or PDF file.");
    case PhotoFault::cameraRaw:
        return PhotoProblemWords::tr(
            "\"%1\" is camera RAW, which has to be developed before it can be printed. Export it "
            "as JPEG or TIFF from your photo program and print that.");
    case PhotoFault::unsupported:
        return PhotoProblemWords::tr(
            "\"%1\" is of a kind that cannot be read here. Export it as JPEG, or as TIFF with 8 "
            "or 16 bits, from your photo program and print that.");
    case PhotoFault::highRange:
        return PhotoProblemWords::tr(
            "\"%1\" is an HDR picture, which is brighter than paper can be. Export it as JPEG "
            "without HDR from your photo program and print that.");
    case PhotoFault::damaged:
        return PhotoProblemWords::tr(
            "\"%1\" is damaged and cannot be read. Export it from your photo program again.");
    case PhotoFault::partMissing:
        return PhotoProblemWords::tr(
            "\"%1\" is damaged: a part of the picture is missing. Copy it from the camera "
            "again, or export it again.");
    case PhotoFault::tooLarge:
        return PhotoProblemWords::tr(
            "\"%1\" is too large to print. Make a copy with fewer pixels and print that.");
    case PhotoFault::locked:
        return PhotoProblemWords::tr(
            "\"%1\" is locked with a password. Save a copy without one and print that.");
    case PhotoFault::changed:
        return PhotoProblemWords::tr("\"%1\" has changed meanwhile. Open it again.");
    case PhotoFault::crashed:
        return PhotoProblemWords::tr(
            "\"%1\" made the program that reads photos fail: it is damaged, or made to do harm. "
            "Export it from your photo program again.");
    case PhotoFault::stuck:
        return PhotoProblemWords::tr(
            "\"%1\" takes too long to read: it is damaged, or made to do harm. Export it from "
            "your photo program again.");
    case PhotoFault::noReader:
        return PhotoProblemWords::tr(
            "\"%1\" cannot be read: the program that reads photos, halvern-decode, is not "
            "installed beside this one or cannot be started. Install the dialog again.");
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
