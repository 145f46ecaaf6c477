// SPDX-License-Identifier: MIT
#include "dialog/program/paper_table.h"

#include "dialog/program/terminal_table.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/list_text.h"
#include "platform/printing/ppd.h"

#include <QCoreApplication>

namespace halvern {

namespace {

constexpr qint64 kMinute = 60;
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;

struct TableWords {
    Q_DECLARE_TR_FUNCTIONS(PaperTable)
};

QString ageText(qint64 seconds)
{
    if (seconds < kMinute)
        return TableWords::tr("just now");
    if (seconds < 2 * kHour)
        return TableWords::tr("%1 min ago").arg(seconds / kMinute);
    if (seconds < 2 * kDay)
        return TableWords::tr("%1 h ago").arg(seconds / kHour);
    return TableWords::tr("%1 days ago").arg(seconds / kDay);
}

// A choice's text by its keyword, or by its place in the menu.
class ChoiceTexts {
public:
    ChoiceTexts(ppd_file_t* file, const QString& option, const std::function<QString(const QString&)>& words)
        : choices_(ppd::choices(file, option).value_or(QList<ppd::Choice>())), words_(words)
    {
    }

    QString ofKeyword(const QString& keyword) const
    {
        for (const ppd::Choice& choice : choices_) {
            if (choice.keyword == keyword)
                return words_(choice.text);
        }
        return keyword;
    }

    QString ofPlace(int place) const
    {
        return place < choices_.size() ? words_(choices_[place].text) : QString();
    }

private:
    QList<ppd::Choice> choices_;
    const std::function<QString(const QString&)>& words_;
};

QString resolutionsText(QList<int> dotsPerInch)
{
    std::sort(dotsPerInch.begin(), dotsPerInch.end());
    QStringList texts;
    for (const int dpi : dotsPerInch)
        texts.append(QString::number(dpi));
    return listText(texts) + QStringLiteral(" dpi");
}

} // namespace

QString paperHeading(const QString& queue, const LoadedPapers& loaded, const QDateTime& now)
{
    if (!loaded.lastUpdate)
        return TableWords::tr("%1: last updated never").arg(queue);
    const QString when = loaded.lastUpdate->toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    return TableWords::tr("%1: last updated %2 (%3)")
        .arg(queue, when, ageText(loaded.lastUpdate->secsTo(now)));
}

QString paperTable(const LoadedPapers& loaded, ppd_file_t* file,
                   const std::function<QString(const QString&)>& words)
{
    const ChoiceTexts surfaces(file, QStringLiteral("PaperSurface"), words);
    const ChoiceTexts tones(file, QStringLiteral("PaperTone"), words);
    QList<QStringList> rows;
    for (const bool rolls : {false, true}) {
        bool isFirst = true;
        for (const LoadedPaper& paper : loaded.papers) {
            if (paper.isRoll() != rolls)
                continue;
            if (std::exchange(isFirst, false))
                rows.append({rolls ? TableWords::tr("Roll") : TableWords::tr("Sheet"),
                             TableWords::tr("Surface"), TableWords::tr("Resolution"),
                             TableWords::tr("Tones")});
            QStringList toneTexts;
            for (const int place : paper.tones) {
                if (const QString text = tones.ofPlace(place); !text.isEmpty())
                    toneTexts.append(terminalText(text));
            }
            rows.append({terminalText(rolls ? paper.width : paper.sheetName),
                         paper.surface.isEmpty() ? QStringLiteral("-")
                                                 : terminalText(surfaces.ofKeyword(paper.surface)),
                         resolutionsText(paper.dotsPerInch), listText(toneTexts)});
        }
    }
    return alignedColumns(rows);
}

} // namespace halvern
