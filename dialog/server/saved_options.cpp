// SPDX-License-Identifier: MIT
#include "dialog/server/saved_options.h"

#include "platform/printing/cups_ppd.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace halvern {

namespace {

void setOption(OptionValues& options, const QString& key, const QString& value)
{
    for (OptionValue& option : options) {
        if (option.key == key) {
            option.value = value;
            return;
        }
    }
    options.append({key, value});
}

// The line's next word; the rest stays in `line`.
QByteArray takeWord(QByteArray& line)
{
    line = line.trimmed();
    qsizetype end = 0;
    while (end < line.size() && line[end] != ' ' && line[end] != '\t')
        ++end;
    const QByteArray word = line.left(end);
    line = line.mid(end).trimmed();
    return word;
}

void readLine(QByteArray line, SavedOptions& saved)
{
    const QByteArray kind = takeWord(line);
    const QString printer = QString::fromUtf8(takeWord(line));
    const bool isDefault = kind.compare("default", Qt::CaseInsensitive) == 0;
    if (printer.isEmpty() || (!isDefault && kind.compare("dest", Qt::CaseInsensitive) != 0))
        return;
    if (isDefault)
        saved.defaultPrinter = printer;
    cups_option_t* parsed = nullptr;
    const int count = cupsParseOptions(line.constData(), 0, &parsed);
    OptionValues& options = saved.byPrinter[printer];
    for (int i = 0; i < count; ++i)
        setOption(options, QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value));
    cupsFreeOptions(count, parsed);
}

} // namespace

QString queueOf(const QString& printer)
{
    return printer.section(QLatin1Char('/'), 0, 0);
}

OptionValues SavedOptions::optionsOf(const QString& printer) const
{
    OptionValues options = byPrinter.value(queueOf(printer));
    if (printer != queueOf(printer)) {
        for (const OptionValue& own : byPrinter.value(printer))
            setOption(options, own.key, own.value);
    }
    return options;
}

SavedOptions readSavedOptions(const QStringList& paths)
{
    SavedOptions saved;
    for (const QString& path : paths) {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd())
            readLine(file.readLine(), saved);
    }
    return saved;
}

QString startingPrinter(const QString& asked, const SavedOptions& saved)
{
    return asked.isEmpty() ? saved.defaultPrinter : asked;
}

SavedOptions readSavedOptions()
{
    const QString serverRoot = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    SavedOptions saved = readSavedOptions(
        {serverRoot + QStringLiteral("/lpoptions"), QDir::homePath() + QStringLiteral("/.cups/lpoptions")});
    for (const char* variable : {"PRINTER", "LPDEST"}) {
        const QString name = qEnvironmentVariable(variable);
        // "lp" is what some shells set for no printer in particular.
        if (!name.isEmpty() && name != QLatin1StringView("lp"))
            saved.defaultPrinter = name;
    }
    return saved;
}

} // namespace halvern
