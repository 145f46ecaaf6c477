// SPDX-License-Identifier: MIT
#include "dialog/job/job_command.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

// Said in words of the command line's own, or decided again by whoever prints.
constexpr std::array kSaidOtherwise{"copies", "Collate", "multiple-document-handling", "print-scaling"};

bool isSaidOtherwise(const QString& key)
{
    return std::ranges::any_of(kSaidOtherwise,
                               [&](const char* name) { return key == QLatin1StringView(name); });
}

bool isControl(QChar c)
{
    return c.category() == QChar::Other_Control;
}

QString inQuotes(const QString& text)
{
    return QLatin1Char('\'') + QString(text).replace(QLatin1Char('\''), QStringLiteral("'\\''")) +
           QLatin1Char('\'');
}

// No shell is without printf. What looks like a switch would be one of its own, and what it prints loses the
// line feeds at its end.
QString printed(const QString& word)
{
    QString format;
    qsizetype end = word.size();
    while (end > 0 && word[end - 1] == QLatin1Char('\n'))
        --end;
    for (const QChar c : word.first(end)) {
        if (isControl(c) || (c == QLatin1Char('-') && format.isEmpty())) {
            for (const char byte : QString(c).toUtf8())
                format += QStringLiteral("\\%1").arg(uint(uchar(byte)), 3, 8, QLatin1Char('0'));
        } else {
            if (c == QLatin1Char('%') || c == QLatin1Char('\\'))
                format += c;
            format += c;
        }
    }
    return QStringLiteral("\"$(printf %1)%2\"").arg(inQuotes(format), word.sliced(end));
}

} // namespace

QString shellQuoted(const QString& word)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_@%+=:,./-]+$"));
    if (plain.match(word).hasMatch())
        return word;
    return std::ranges::any_of(word, isControl) ? printed(word) : inQuotes(word);
}

QString commandFor(const JobToRepeat& job)
{
    QStringList words{QStringLiteral("halvern-print"), QStringLiteral("--no-dialog")};
    if (!job.server.isEmpty())
        words << QStringLiteral("--server") << job.server;
    words << QStringLiteral("-d") << job.printer;
    if (job.copies != 1)
        words << QStringLiteral("-n") << QString::number(job.copies);
    if (!job.ranges.isEmpty())
        words << QStringLiteral("--pages") << QString(job.ranges).remove(QLatin1Char(' '));
    if (job.photosPerJob > 0)
        words << QStringLiteral("--photos-per-job") << QString::number(job.photosPerJob);
    if (job.isReversed)
        words << QStringLiteral("--reverse-order");
    if (!job.orientation.isEmpty())
        words << QStringLiteral("--orientation") << job.orientation;
    words << job.photos << job.sheets << job.colours;
    if (!job.title.isEmpty())
        words << QStringLiteral("--job-title=") + job.title;
    for (const OptionValue& option : job.options) {
        if (!isSaidOtherwise(option.key))
            words << QStringLiteral("-o") << option.key + QLatin1Char('=') + option.value;
    }
    for (const QString& option : job.page)
        words << QStringLiteral("-o") << option;
    if (job.printsDamaged)
        words << QStringLiteral("--print-damaged");
    for (const QString& file : job.files)
        words << QFileInfo(file).absoluteFilePath();
    QStringList quoted;
    for (const QString& word : std::as_const(words))
        quoted.append(shellQuoted(word));
    return quoted.join(QLatin1Char(' '));
}

} // namespace halvern
