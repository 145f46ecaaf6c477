// SPDX-License-Identifier: MIT
#include "dialog/session/seen_printers.h"

#include "platform/foundation/user_defaults.h"

namespace halvern {

namespace {

const QString kSeenPrintersKey = QStringLiteral("PrintersSeen");
constexpr qsizetype kMostPrinters = 100;

// "2026-11-21 Name", the newest first.
QStringList readLines(const QVariantMap& values)
{
    return values.value(kSeenPrintersKey).toStringList().mid(0, kMostPrinters);
}

QString nameIn(const QString& line)
{
    return line.section(QLatin1Char(' '), 1);
}

} // namespace

void SeenPrinters::note(const QString& name)
{
    const QDate today = QDate::currentDate();
    if (name.isEmpty() || last(name) == today)
        return;
    UserDefaults::standardUserDefaults().changeGlobal([&](QVariantMap& values) {
        QStringList lines = readLines(values);
        lines.removeIf([&](const QString& line) { return nameIn(line) == name; });
        lines.prepend(today.toString(Qt::ISODate) + QLatin1Char(' ') + name);
        values.insert(kSeenPrintersKey, lines.mid(0, kMostPrinters));
    });
}

QDate SeenPrinters::last(const QString& name)
{
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    for (const QString& line : readLines(defaults.persistentDomain(UserDefaults::globalDomain()))) {
        if (nameIn(line) == name)
            return QDate::fromString(line.section(QLatin1Char(' '), 0, 0), Qt::ISODate);
    }
    return {};
}

} // namespace halvern
