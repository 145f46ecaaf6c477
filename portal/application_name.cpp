// SPDX-License-Identifier: MIT
#include "portal/application_name.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QStandardPaths>

namespace halvern {

namespace {

constexpr qint64 kMostEntryBytes = 256 * 1024;

// The names of the entry's first group by their languages; "" is the one for all others.
QMap<QString, QString> namesIn(const QString& path)
{
    QMap<QString, QString> names;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return names;
    bool isInGroup = false;
    for (const QString& line : QString::fromUtf8(file.read(kMostEntryBytes)).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('[')))
            isInGroup = line.trimmed() == QLatin1StringView("[Desktop Entry]");
        const QString key = line.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = line.section(QLatin1Char('='), 1).trimmed();
        if (isInGroup && key == QLatin1StringView("Name"))
            names.insert(QString(), value);
        else if (isInGroup && key.startsWith(QLatin1StringView("Name[")) && key.endsWith(QLatin1Char(']')))
            names.insert(key.mid(5).chopped(1), value);
    }
    return names;
}

} // namespace

QString applicationName(const QString& identifier)
{
    // It becomes part of a path.
    if (identifier.isEmpty() || identifier.contains(QLatin1Char('/')))
        return {};
    const QString path =
        QStandardPaths::locate(QStandardPaths::ApplicationsLocation, identifier + QStringLiteral(".desktop"));
    const QMap<QString, QString> names = path.isEmpty() ? QMap<QString, QString>() : namesIn(path);
    const QString locale = QLocale().name();
    for (const QString& language : {locale, locale.section(QLatin1Char('_'), 0, 0), QString()}) {
        if (names.contains(language))
            return names.value(language);
    }
    // "org.example.TextEditor"
    return identifier.section(QLatin1Char('.'), -1);
}

} // namespace halvern
