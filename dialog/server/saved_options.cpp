#include "dialog/server/saved_options.h"

#include "platform/printing/cups_ppd.h"

#include <QDir>
#include <QFile>

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

void readLine(const QByteArray& line, SavedOptions& saved)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    if (words.size() < 2)
        return;
    const bool isDefault = words[0].compare("default", Qt::CaseInsensitive) == 0;
    if (!isDefault && words[0].compare("dest", Qt::CaseInsensitive) != 0)
        return;
    const QString printer = QString::fromUtf8(words[1]);
    if (isDefault)
        saved.defaultPrinter = printer.section(QLatin1Char('/'), 0, 0);
    const QByteArray rest = line.mid(line.indexOf(words[1]) + words[1].size());
    cups_option_t* parsed = nullptr;
    const int count = cupsParseOptions(rest.trimmed().constData(), 0, &parsed);
    OptionValues& options = saved.byPrinter[printer];
    for (int i = 0; i < count; ++i)
        setOption(options, QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value));
    cupsFreeOptions(count, parsed);
}

} // namespace

SavedOptions readSavedOptions(const QStringList& paths)
{
    SavedOptions saved;
    for (const QString& path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd())
            readLine(file.readLine(), saved);
    }
    return saved;
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
