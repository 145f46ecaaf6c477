// SPDX-License-Identifier: MIT
#include "dialog/job/trays_in_words.h"

#include "dialog/job/job_in_words.h"
#include "dialog/options/ppd_model.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/units.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(TraysInWords)
};

QString widthInWords(double points)
{
    if (QLocale().measurementSystem() == QLocale::MetricSystem)
        return Words::tr("%1 mm wide").arg(std::round(points / kPointsPerMillimetre));
    return Words::tr("%1 in wide").arg(QLocale().toString(std::round(points / kPointsPerInch * 10.0) / 10.0));
}

} // namespace

QString paperInWords(const PpdModel& model, const TrayPaper& paper)
{
    if (paper.isRoll)
        return widthInWords(paper.points.width());
    const QString page = choiceFor(model, paper).page;
    return page.isEmpty() ? sizeInWords(paper.points) : pageInWords(model, page);
}

std::optional<NotLoaded> findNotLoaded(const PpdModel& model, const QList<TrayPaper>& trays)
{
    if (trays.isEmpty())
        return std::nullopt;
    const QSizeF page = model.sheet().paper;
    const QString slot = model.value(QStringLiteral("InputSlot"));
    const bool isFree = isAutomaticSlot(slot);
    const auto chosen = std::ranges::find_if(
        trays, [&](const TrayPaper& paper) { return !isFree && choiceFor(model, paper).slot == slot; });
    // Of a tray that the printer does not speak of nobody knows anything: it may be a feed by hand.
    if (!isFree && chosen == trays.end())
        return std::nullopt;
    const auto other =
        std::ranges::find_if(trays, [&](const TrayPaper& paper) { return isPageOf(page, paper); });
    if (isFree ? other != trays.end() : isPageOf(page, *chosen))
        return std::nullopt;
    const QString size = isolated(pageInWords(model, model.value(QStringLiteral("PageSize"))));
    const bool isElsewhere = other != trays.end();
    const TrayPaper& instead = isElsewhere ? *other : trays.front();
    NotLoaded result;
    result.other = isElsewhere ? int(std::distance(trays.begin(), other)) : 0;
    result.otherText = isElsewhere ? trayText(model, instead) : paperInWords(model, instead);
    result.shortly =
        isFree ? Words::tr("not loaded: needs %1 in the tray").arg(size)
               : Words::tr("not loaded: needs %1 in \"%2\"").arg(size, isolated(trayText(model, *chosen)));
    result.sentence =
        isElsewhere
            ? Words::tr("The paper size \"%1\" is not in \"%2\", but in \"%3\".")
                  .arg(size, isolated(trayText(model, *chosen)), isolated(trayText(model, instead)))
            : Words::tr("The paper size \"%1\" is not loaded. There is \"%2\" in \"%3\".")
                  .arg(size, isolated(paperInWords(model, instead)), isolated(trayText(model, instead)));
    return result;
}

} // namespace halvern
