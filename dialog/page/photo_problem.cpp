// SPDX-License-Identifier: MIT
#include "dialog/page/photo_problem.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace halvern {

namespace {

QString named(const char* text, const QString& path)
{
    return QCoreApplication::translate("PhotoProblem", text).arg(isolated(QDir::toNativeSeparators(path)));
}

} // namespace

namespace photo_problem {

QString damaged(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                   "\"%1\" is damaged and cannot be read. Export it from your photo "
                                   "program again."),
                 path);
}

QString partMissing(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                   "\"%1\" is damaged: a part of the picture is missing. Copy it "
                                   "from the camera again, or export it again."),
                 path);
}

QString tooLarge(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                   "\"%1\" is too large to print. Make a copy with fewer pixels and "
                                   "print that."),
                 path);
}

QString noPicture(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                   "\"%1\" is not a picture that can be printed. Use a JPEG, PNG, "
                                   "TIFF or PDF file."),
                 path);
}

QString locked(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                   "\"%1\" is locked with a password. Save a copy without one and "
                                   "print that."),
                 path);
}

QString changed(const QString& path)
{
    return named(QT_TRANSLATE_NOOP("PhotoProblem", "\"%1\" has changed meanwhile. Open it again."), path);
}

} // namespace photo_problem

QString fileProblem(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return named(QT_TRANSLATE_NOOP("PhotoProblem", "There is no file \"%1\". Check its name."), path);
    if (info.isDir())
        return named(QT_TRANSLATE_NOOP("PhotoProblem",
                                       "\"%1\" is a folder. Name the photos in it, for example *.jpg."),
                     path);
    if (!info.isReadable())
        return named(
            QT_TRANSLATE_NOOP("PhotoProblem", "\"%1\" cannot be opened. Check that you may read it."), path);
    if (!info.isFile())
        return photo_problem::noPicture(path);
    if (info.size() == 0)
        return named(QT_TRANSLATE_NOOP("PhotoProblem", "\"%1\" is empty. Copy it from the camera again."),
                     path);
    return {};
}

} // namespace halvern
