// SPDX-License-Identifier: MIT
#include "dialog/options/printer_offer.h"

#include "platform/foundation/numbers.h"
#include "platform/printing/ppd.h"

#include <algorithm>
#include <array>

namespace halvern {

namespace {

using Choices = QMap<QString, QString>;

bool ability(ppd_file_t* file, const char* attribute)
{
    const std::optional<QString> value = ppd::attribute(file, QString::fromLatin1(attribute));
    return value && value->compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
}

QString choice(const Choices& choices, const char* key)
{
    return choices.value(QLatin1StringView(key));
}

bool feedsSheet(const Choices& choices)
{
    return choice(choices, "PaperFeed") == QLatin1StringView("Sheet");
}

bool isFeedOffered(const PrinterOffer& offer, const Choices& choices)
{
    const bool sheet = feedsSheet(choices);
    if (sheet && !offer.feedsSheets)
        return false;
    return offer.papers.isEmpty() || std::ranges::any_of(offer.papers, [sheet](const LoadedPaper& paper) {
               return paper.isRoll() != sheet;
           });
}

// Whether one of the papers of this kind has what is wanted; with no paper of the kind, anything will do.
template <typename IsOfKind, typename HasIt>
bool someHas(const PrinterOffer& offer, IsOfKind isOfKind, HasIt hasIt)
{
    bool met = false;
    for (const LoadedPaper& paper : offer.papers) {
        if (!isOfKind(paper))
            continue;
        if (hasIt(paper))
            return true;
        met = true;
    }
    return !met;
}

bool isSheetOffered(const PrinterOffer& offer, const Choices& choices)
{
    const QString name = choice(choices, "PaperName");
    return someHas(
        offer, [](const LoadedPaper& paper) { return !paper.isRoll(); },
        [&](const LoadedPaper& paper) { return paper.sheetName == name; });
}

bool isWidthOffered(const PrinterOffer& offer, const Choices& choices)
{
    const QString width = choice(choices, "PaperWidth");
    return someHas(
        offer, [](const LoadedPaper& paper) { return paper.isRoll(); },
        [&](const LoadedPaper& paper) { return paper.widthCode == width; });
}

bool isSurfaceOffered(const PrinterOffer& offer, const Choices& choices)
{
    const QString width = choice(choices, "PaperWidth");
    const QString surface = choice(choices, "PaperSurface");
    return someHas(
        offer, [&](const LoadedPaper& paper) { return paper.isRoll() && paper.widthCode == width; },
        [&](const LoadedPaper& paper) { return paper.surface == surface; });
}

bool isResolutionOffered(const PrinterOffer& offer, const Choices& choices)
{
    const int dotsPerInch = leadingInteger(choice(choices, "Resolution"));
    const bool sheet = feedsSheet(choices);
    const auto isChosen = [&](const LoadedPaper& paper) {
        if (paper.isRoll() == sheet)
            return false;
        return sheet ? paper.sheetName == choice(choices, "PaperName")
                     : paper.widthCode == choice(choices, "PaperWidth") &&
                           paper.surface == choice(choices, "PaperSurface");
    };
    return someHas(offer, isChosen,
                   [&](const LoadedPaper& paper) { return paper.dotsPerInch.contains(dotsPerInch); });
}

bool isTurningOffered(const PrinterOffer& offer, const Choices& choices)
{
    return choice(choices, "TwoSided") == QLatin1StringView("None") ||
           (feedsSheet(choices) && offer.turnsSheets);
}

struct Check {
    const char* key;
    bool (*isOffered)(const PrinterOffer& offer, const Choices& choices);
};

constexpr std::array kChecks{
    Check{"PaperFeed", isFeedOffered},        Check{"PaperName", isSheetOffered},
    Check{"PaperWidth", isWidthOffered},      Check{"PaperSurface", isSurfaceOffered},
    Check{"Resolution", isResolutionOffered}, Check{"TwoSided", isTurningOffered},
};

const Check* checkOf(const QString& key)
{
    const auto* found =
        std::ranges::find_if(kChecks, [&](const Check& row) { return key == QLatin1StringView(row.key); });
    return found == kChecks.end() ? nullptr : found;
}

} // namespace

PrinterOffer readPrinterOffer(ppd_file_t* file)
{
    return {readLoadedPapers(file).papers, ability(file, "VLXExtraFeatures"), ability(file, "VLXDuplex")};
}

bool dependsOnOffer(const QString& key)
{
    return checkOf(key) != nullptr;
}

bool isOffered(const PrinterOffer& offer, const QMap<QString, QString>& choices, const QString& key)
{
    const Check* check = checkOf(key);
    return !check || check->isOffered(offer, choices);
}

} // namespace halvern
