// SPDX-License-Identifier: MIT
#include "dialog/options/page_fit.h"

#include "dialog/options/paper_shape.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_model.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include <cups/pwg.h>

namespace halvern {

namespace {

const QString kPaperWidth = QStringLiteral("PaperWidth");
const QString kResolution = QStringLiteral("Resolution");
const QString kPaperName = QStringLiteral("PaperName");

// Names are round: "102x152" is 101.6 by 152.4 mm, and "127x178" is 127 by 177.8.
constexpr double kFitRounding = 1.0;
// Below, "13x18" may be centimetres, and "8x10" inches.
constexpr double kLeastMillimetres = 50.0;

struct FitWords {
    Q_DECLARE_TR_FUNCTIONS(PageFit)
};

double tenthsOf(const QString& code)
{
    return leadingInteger(code) / 10.0;
}

double area(const QSizeF& size)
{
    return size.width() * size.height();
}

double stretch(const QSizeF& size)
{
    const QSizeF page = upright(size);
    return page.height() / page.width();
}

// Less is better.
std::array<double, 3> rank(const QSizeF& page, const QSizeF& wanted, const PaperRoom& room)
{
    if (!room.isRoll)
        return {0.0, 0.0, -area(page)};
    const double roll = room.width.value_or(0.0);
    const auto isAsWide = [roll](double points) {
        return std::abs(points / kPointsPerMillimetre - roll) <= kFitRounding;
    };
    const bool fills = isAsWide(page.width()) || isAsWide(page.height());
    return {fills ? 0.0 : 1.0, std::abs(stretch(page) - stretch(wanted)), -area(page)};
}

} // namespace

std::optional<QSizeF> sizeInName(const QString& name)
{
    static const QRegularExpression kMeasures(
        QStringLiteral("(?<![\\d.])(\\d+(?:\\.\\d+)?) ?[x\u00d7] ?(\\d+(?:\\.\\d+)?)(?![\\d.])"));
    if (const QRegularExpressionMatch match = kMeasures.match(name); match.hasMatch()) {
        const QSizeF size(leadingDouble(match.captured(1)), leadingDouble(match.captured(2)));
        return upright(size).width() < kLeastMillimetres ? std::nullopt : std::optional(size);
    }
    const QStringList words = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (auto word = words.crbegin(); word != words.crend(); ++word) {
        if (word->size() < 2)
            continue;
        if (const pwg_media_t* media = pwgMediaForPPD(word->toUtf8().constData()))
            return QSizeF(media->width / 100.0, media->length / 100.0);
    }
    return std::nullopt;
}

PaperRoom paperRoom(const PrinterOffer& offer, const QMap<QString, QString>& choices,
                    const QString& sheetTitle)
{
    const QString feed = choices.value(kPaperFeed);
    if (feed == QLatin1StringView("Roll")) {
        const double width = tenthsOf(choices.value(kPaperWidth));
        return {width > 0.0 ? std::optional(width) : std::nullopt, std::nullopt, true};
    }
    if (feed != QLatin1StringView("Sheet"))
        return {};
    if (const std::optional<QSizeF> size = sizeInName(sheetTitle))
        return {size->width(), size->height(), false};
    const auto loaded = std::ranges::find_if(offer.papers, [&](const LoadedPaper& paper) {
        return !paper.isRoll() && paper.sheetName == choices.value(kPaperName);
    });
    if (loaded == offer.papers.end() || tenthsOf(loaded->widthCode) <= 0.0)
        return {};
    return {tenthsOf(loaded->widthCode), std::nullopt, false};
}

bool isOn(const QSizeF& page, const PaperRoom& room)
{
    const QSizeF sides = upright(page) / kPointsPerMillimetre;
    if (!room.width)
        return true;
    if (!room.length)
        return sides.width() <= *room.width + kFitRounding;
    const QSizeF paper = upright(QSizeF(*room.width, *room.length));
    return sides.width() <= paper.width() + kFitRounding && sides.height() <= paper.height() + kFitRounding;
}

QString bestPage(const QList<NamedPage>& pages, const QSizeF& wanted, const PaperRoom& room)
{
    const NamedPage* best = nullptr;
    for (const NamedPage& page : pages) {
        if (isOn(page.points, room) &&
            (!best || rank(page.points, wanted, room) < rank(best->points, wanted, room)))
            best = &page;
    }
    return best ? best->keyword : QString();
}

QString fittingSheet(const PpdModel& model, const PrinterOffer& offer)
{
    const QSizeF page = model.sheet().paper;
    QStringList known;
    for (const ChoiceItem& choice : model.option(kPaperName).choices)
        known.append(choice.text);
    QMap<QString, QString> choices = model.values();
    // Of equal ones the one that the PPD names first, then by name.
    std::map<std::tuple<double, qsizetype, QString>, QString> fitting;
    for (const LoadedPaper& paper : offer.papers) {
        choices.insert(kPaperName, paper.sheetName);
        const PaperRoom room = paperRoom(offer, choices, paper.sheetName);
        if (paper.isRoll() || room.isRoll || !room.width || !room.length || !isOn(page, room) ||
            !isOffered(offer, choices, kResolution))
            continue;
        const qsizetype place = known.indexOf(paper.sheetName);
        fitting[{*room.width * *room.length, place < 0 ? known.size() : place, paper.sheetName}] =
            paper.sheetName;
    }
    return fitting.empty() ? QString() : fitting.begin()->second;
}

bool isPageOnPaper(const PpdModel& model, const PrinterOffer& offer)
{
    const QString sheet = model.choiceText(kPaperName, model.value(kPaperName));
    return isOn(model.sheet().paper, paperRoom(offer, model.values(), sheet));
}

std::optional<PageMisfit> findMisfit(const PpdModel& model, const PrinterOffer& offer)
{
    const QString sheet = model.choiceText(kPaperName, model.value(kPaperName));
    const PaperRoom room = paperRoom(offer, model.values(), sheet);
    const QSizeF chosen = model.sheet().paper;
    if (isOn(chosen, room))
        return std::nullopt;
    const QString page = isolated(model.choiceText(kPageSize, model.value(kPageSize)));
    PageMisfit misfit;
    misfit.sentence = room.isRoll
                          ? FitWords::tr("The paper size \"%1\" is wider than the roll (%2).")
                                .arg(page, isolated(model.choiceText(kPaperWidth, model.value(kPaperWidth))))
                          : FitWords::tr("The paper size \"%1\" is larger than the paper \"%2\".")
                                .arg(page, isolated(sheet));
    QList<NamedPage> pages;
    for (int i = 0; i < model.file()->num_sizes; ++i) {
        const ppd_size_t& size = model.file()->sizes[i];
        const QString keyword = QString::fromUtf8(size.name);
        if (model.goesWithTheRest(kPageSize, keyword))
            pages.append({keyword, QSizeF(double(size.width), double(size.length))});
    }
    misfit.fitting = bestPage(pages, chosen, room);
    misfit.fittingText = model.choiceText(kPageSize, misfit.fitting);
    return misfit;
}

} // namespace halvern
