// SPDX-License-Identifier: MIT
#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <gtest/gtest.h>

namespace halvern {

QString writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        !file.setPermissions(file.permissions() | QFileDevice::ReadOther) ||
        file.write(content) != content.size())
        qFatal("the test's file %s could not be written", qPrintable(path));
    return path;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QString makeTestPhoto(const QString& path)
{
    QImage photo(600, 400, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            photo.setPixel(x, y, qRgb(x * 255 / 600, y * 255 / 400, 90));
    }
    EXPECT_TRUE(photo.save(path));
    return path;
}

} // namespace halvern
