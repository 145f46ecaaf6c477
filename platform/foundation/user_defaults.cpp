// SPDX-License-Identifier: MIT
#include "platform/foundation/user_defaults.h"

#include "platform/foundation/log.h"
#include "platform/foundation/whole_file.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <cstdio>

namespace halvern {

namespace {

constexpr int kLockMilliseconds = 200; // whoever holds it writes one small file

QString settingsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/halvern/print.ini");
}

// Nothing if there is a file that cannot be read: what it holds is not to be written over.
std::optional<QVariantMap> readAll(const QString& path)
{
    QVariantMap values;
    // A pipe would never end.
    if (!QFileInfo(path).isFile())
        return values;
    const QSettings settings(path, QSettings::IniFormat);
    if (settings.status() == QSettings::AccessError)
        return std::nullopt;
    for (const QString& key : settings.allKeys())
        values.insert(key, settings.value(key));
    return values;
}

bool isSame(const QVariantMap& read, const QVariantMap& wanted)
{
    if (read.keys() != wanted.keys())
        return false;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (read.value(it.key()).toString() != it->toString())
            return false;
    }
    return true;
}

QVariantMap valuesOf(const QString& domain, const QVariantMap& all)
{
    const QString prefix = domain + QLatin1Char('/');
    QVariantMap values;
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        if (it.key().startsWith(prefix))
            values.insert(it.key().mid(prefix.size()), it.value());
    }
    return values;
}

bool moveFile(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// QSettings takes a full disk for a success and leaves an empty file. So it writes beside the file, and what
// it wrote is read again under another name, because it keeps in memory what it knows under the first one.
bool writeWhole(const QString& path, const QVariantMap& values)
{
    const QFileInfo before(path);
    if (!QDir().mkpath(before.path()) || (before.exists() && !before.isFile()))
        return false;
    const QString target = before.exists() ? before.canonicalFilePath() : path;
    const QString draft = target + QStringLiteral(".draft");
    const QString proof = target + QStringLiteral(".new");
    // Without a value QSettings would make no file.
    if (!QFile(draft).open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    {
        QSettings settings(draft, QSettings::IniFormat);
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            settings.setValue(it.key(), it.value());
        settings.sync();
    }
    const bool isWritten = moveFile(draft, proof) && isSame(readAll(proof).value_or(QVariantMap()), values);
    if (isWritten && moveFile(proof, target))
        return true;
    QFile::remove(draft);
    QFile::remove(proof);
    return false;
}

} // namespace

UserDefaults& UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults;
    return defaults;
}

QString UserDefaults::globalDomain()
{
    return QStringLiteral("Global");
}

QVariantMap UserDefaults::persistentDomain(const QString& domain) const
{
    return valuesOf(domain, readAll(settingsPath()).value_or(QVariantMap()));
}

void UserDefaults::changeDomain(const QString& domain, const std::function<void(QVariantMap& values)>& change)
{
    const QString path = settingsPath();
    const QString prefix = domain + QLatin1Char('/');
    QDir().mkpath(QFileInfo(path).path());
    const FileLock lock(path + QStringLiteral(".lock"), kLockMilliseconds);
    std::optional<QVariantMap> read;
    if (lock.isHeld())
        read = readAll(path);
    bool isWritten = read.has_value();
    if (isWritten) {
        QVariantMap& all = *read;
        const QVariantMap before = valuesOf(domain, all);
        QVariantMap values = before;
        change(values);
        if (values == before)
            return;
        all.removeIf(
            [&](std::pair<const QString&, QVariant&> entry) { return entry.first.startsWith(prefix); });
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            all.insert(prefix + it.key(), it.value());
        isWritten = writeWhole(path, all);
    }
    if (!isWritten)
        logLine(QStringLiteral("could not write the user's defaults to %1").arg(path));
}

void UserDefaults::changeGlobal(const std::function<void(QVariantMap& values)>& change)
{
    changeDomain(globalDomain(), change);
}

void UserDefaults::setPersistentDomain(const QVariantMap& values, const QString& domain)
{
    changeDomain(domain, [&](QVariantMap& kept) { kept = values; });
}

QVariant UserDefaults::objectForKey(const QString& key) const
{
    return persistentDomain(globalDomain()).value(key);
}

} // namespace halvern
