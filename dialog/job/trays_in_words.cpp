// SPDX-License-Identifier: MIT
#include "dialog/job/trays_in_words.h"

#include "dialog/job/job_in_words.h"
#include "dialog/options/ppd_model.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/units.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace halvern {

namespace {

struct TraysInWordsWords {
    Q_DECLARE_TR_FUNCTIONS(TraysInWords)
};

QString widthInWords(double points)
{
    if (QLocale().measurementSystem() == QLocale::MetricSystem)
        return TraysInWordsWords::tr("%1 mm wide").arg(std::round(points / kPointsPerMillimetre));
    return TraysInWordsWords::tr("%1 in wide")
        .arg(QLocale().toString(std::round(points / kPointsPerInch * 10.0) / 10.0));
}

QString neededInWords(const QString& what, const QString& tray)
{
    return tray.isEmpty() ? TraysInWordsWords::tr("not loaded: needs %1 in the tray").arg(what)
                          : TraysInWordsWords::tr("not loaded: needs %1 in \"%2\"").arg(what, tray);
}

// Of "photographic" and "photographic-glossy" the one may be the other.
bool mayBeSame(const QString& one, const QString& other)
{
    return one.startsWith(other, Qt::CaseInsensitive) || other.startsWith(one, Qt::CaseInsensitive);
}

// `fitting` are the papers of the chosen size where it would be taken from, one at least.
std::optional<NotLoaded> findOtherKind(const PpdModel& model, const QList<TrayPaper>& trays,
                                       const QList<TrayPaper>& fitting, bool isFree)
{
    const QString key = QStringLiteral("MediaType");
    const QString kind = model.value(key);
    // A printer's words for a kind need not be those of its options: then nobody knows.
    const auto mayBeChosen = [&](const TrayPaper& paper) {
        const QString loaded = choiceFor(model, paper).type;
        return loaded.isEmpty() || mayBeSame(loaded, kind);
    };
    if (isAutomatic(kind) || std::ranges::any_of(fitting, mayBeChosen))
        return std::nullopt;
    const TrayPaper& paper = fitting.front();
    const QString wanted = isolated(model.choiceText(key, kind));
    const QString tray = isolated(trayText(model, paper));
    NotLoaded result;
    result.other = int(trays.indexOf(paper));
    result.otherText = paperTypeText(model, paper);
    result.shortly = neededInWords(wanted, isFree ? QString() : tray);
    result.sentence = TraysInWordsWords::tr("The paper type is \"%1\", but in \"%2\" there is \"%3\".")
                          .arg(wanted, tray, isolated(result.otherText));
    return result;
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
    const bool isFree = isAutomatic(slot);
    const auto isChosen = [&](const TrayPaper& paper) {
        return !isFree && choiceFor(model, paper).slot == slot;
    };
    const auto chosen = std::ranges::find_if(trays, isChosen);
    // Of a tray that the printer does not speak of nobody knows anything: it may be a feed by hand.
    if (!isFree && chosen == trays.end())
        return std::nullopt;
    const auto other =
        std::ranges::find_if(trays, [&](const TrayPaper& paper) { return isPageOf(page, paper); });
    // Some say of a feed that several papers are in it.
    QList<TrayPaper> fitting;
    std::ranges::copy_if(trays, std::back_inserter(fitting), [&](const TrayPaper& paper) {
        return (isFree || isChosen(paper)) && isPageOf(page, paper);
    });
    if (!fitting.isEmpty())
        return findOtherKind(model, trays, fitting, isFree);
    const QString size = isolated(pageInWords(model, model.value(QStringLiteral("PageSize"))));
    const bool isElsewhere = other != trays.end();
    const TrayPaper& instead = isElsewhere ? *other : trays.front();
    NotLoaded result;
    result.other = isElsewhere ? int(std::distance(trays.begin(), other)) : 0;
    result.otherText = isElsewhere ? trayText(model, instead) : paperInWords(model, instead);
    result.shortly = neededInWords(size, isFree ? QString() : isolated(trayText(model, *chosen)));
    result.sentence =
        isElsewhere
            ? TraysInWordsWords::tr("The paper size \"%1\" is not in \"%2\", but in \"%3\".")
                  .arg(size, isolated(trayText(model, *chosen)), isolated(trayText(model, instead)))
            : TraysInWordsWords::tr("The paper size \"%1\" is not loaded. There is \"%2\" in \"%3\".")
                  .arg(size, isolated(paperInWords(model, instead)), isolated(trayText(model, instead)));
    return result;
}

} // namespace halvern
