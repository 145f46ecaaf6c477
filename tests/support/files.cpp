#include "tests/support/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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

} // namespace halvern
