// SPDX-License-Identifier: MIT
#include "dialog/options/common_words.h"

#include "dialog/options/ppd_lookup.h"
#include "platform/printing/cups_ppd.h"

#include <algorithm>
#include <array>

namespace halvern {

namespace {

constexpr const char* kColourMode = "print-color-mode";
constexpr const char* kQuality = "print-quality";
constexpr const char* kIppMediaType = "media-type";
constexpr const char* kMediaSource = "media-source";

struct Keyword {
    const char* attribute;
    const char* keyword;
};

// The first that a PPD has is looked at.
constexpr std::array kKeywords{
    Keyword{kColourMode, "ColorModel"},    Keyword{kColourMode, "ColorMode"},
    Keyword{kColourMode, "HPColorMode"},   Keyword{kColourMode, "HPColorAsGray"},
    Keyword{kColourMode, "SelectColor"},   Keyword{kColourMode, "CNColorMode"},
    Keyword{kQuality, "cupsPrintQuality"}, Keyword{kQuality, "PrintQuality"},
    Keyword{kQuality, "StpQuality"},       Keyword{kQuality, "HPPrintQuality"},
    Keyword{kQuality, "BRPrintQuality"},   Keyword{kQuality, "OutputMode"},
    Keyword{kQuality, "Quality"},          Keyword{kIppMediaType, "MediaType"},
    Keyword{kMediaSource, "InputSlot"},
};

struct Word {
    const char* attribute;
    const char* word;
    std::array<const char*, 10> choices; ///< in the order in which they are tried
};

constexpr std::array kWords{
    Word{kColourMode,
         "monochrome",
         {"Gray", "Grayscale", "Greyscale", "KGray", "Black", "Mono", "Monochrome", "BlackWhite", "True"}},
    Word{kColourMode,
         "color",
         {"RGB", "Color", "Colour", "CMYK", "CMY", "KCMY", "sRGB", "AdobeRGB", "RGBW", "False"}},
    Word{kQuality, "draft", {"Draft", "Fast", "FastDraft", "Economy", "Economode", "Low"}},
    Word{kQuality, "normal", {"Normal", "Standard", "Medium"}},
    Word{kQuality, "high", {"High", "Best", "Photo", "Presentation"}},
    Word{kIppMediaType, "stationery", {"Plain", "PlainPaper", "Plain1", "Stationery"}},
    Word{kIppMediaType, "photographic", {"Photo", "PhotoPaper", "Photographic"}},
    Word{kIppMediaType,
         "photographic-glossy",
         {"Glossy", "GlossyPaper", "PhotoGlossy", "GlossyPhoto", "Gloss"}},
    Word{kIppMediaType, "photographic-matte", {"Matte", "PhotoMatte", "PhotopaperMatte", "MattePaper"}},
    Word{kIppMediaType, "photographic-semi-gloss", {"SemiGloss", "PhotoProSemiGloss", "Satin", "Luster"}},
    Word{kIppMediaType, "transparency", {"Transparency", "OHP"}},
    Word{kIppMediaType, "envelope", {"Envelope"}},
    Word{kIppMediaType, "labels", {"Labels"}},
    Word{kIppMediaType, "cardstock", {"Cardstock"}},
    Word{kIppMediaType, "stationery-letterhead", {"Letterhead"}},
    Word{kIppMediaType, "stationery-preprinted", {"Preprinted"}},
    Word{kIppMediaType, "stationery-prepunched", {"Prepunched"}},
    Word{kIppMediaType, "auto", {"Auto", "Automatic", "Any"}},
    Word{kMediaSource, "auto", {"Auto", "Automatic", "AutoSelect", "AutoSwitch", "Default"}},
    Word{kMediaSource, "manual", {"Manual", "ManualFeed", "ManualPaper"}},
    Word{kMediaSource, "by-pass-tray", {"MultiPurpose", "MPTray", "Bypass", "MultiTray"}},
    Word{kMediaSource, "main", {"Main", "Standard", "Cassette"}},
    Word{kMediaSource, "tray-1", {"Tray1", "1Tray", "Cassette1"}},
    Word{kMediaSource, "tray-2", {"Tray2", "2Tray", "Cassette2"}},
    Word{kMediaSource, "tray-3", {"Tray3", "3Tray", "Cassette3"}},
    Word{kMediaSource, "tray-4", {"Tray4", "4Tray", "Cassette4"}},
    Word{kMediaSource, "top", {"Upper"}},
    Word{kMediaSource, "middle", {"Middle"}},
    Word{kMediaSource, "bottom", {"Lower"}},
    Word{kMediaSource, "large-capacity", {"LargeCapacity", "LCT"}},
    Word{kMediaSource, "rear", {"Rear"}},
    Word{kMediaSource, "envelope", {"Envelope"}},
    Word{kMediaSource, "disc", {"CD", "Disc"}},
};

bool isOf(const Word& word, const QString& choice)
{
    return std::ranges::any_of(word.choices, [&](const char* known) {
        return known && choice.compare(QLatin1StringView(known), Qt::CaseInsensitive) == 0;
    });
}

const Word* find(const OptionValue& wanted)
{
    const auto* found = std::ranges::find_if(kWords, [&](const Word& word) {
        return wanted.key == QLatin1StringView(word.attribute) &&
               wanted.value == QLatin1StringView(word.word);
    });
    return found == kWords.end() ? nullptr : found;
}

} // namespace

QString optionForWords(ppd_file_t* file, const QString& attribute)
{
    for (const Keyword& row : kKeywords) {
        const QString key = QLatin1StringView(row.keyword);
        if (attribute == QLatin1StringView(row.attribute) && ppd_lookup::option(file, key))
            return key;
    }
    return {};
}

std::optional<OptionValue> choiceForWord(ppd_file_t* file, const OptionValue& word,
                                         const QMap<QString, QString>& now)
{
    const QString key = optionForWords(file, word.key);
    if (key.isEmpty())
        return std::nullopt;
    const Word* known = find(word);
    if (known && isOf(*known, now.value(key)))
        return OptionValue{key, now.value(key)};
    if (known) {
        for (const char* choice : known->choices) {
            if (choice && ppd_lookup::listedChoice(file, key, QLatin1StringView(choice)))
                return OptionValue{
                    key, QString::fromUtf8(
                             ppd_lookup::listedChoice(file, key, QLatin1StringView(choice))->choice)};
        }
    }
    const ppd_choice_t* own = ppd_lookup::listedChoice(file, key, word.value);
    return own ? std::optional(OptionValue{key, QString::fromUtf8(own->choice)}) : std::nullopt;
}

QString wordForChoice(ppd_file_t* file, const QString& attribute, const QMap<QString, QString>& now)
{
    const QString key = optionForWords(file, attribute);
    const QString choice = key.isEmpty() ? QString() : now.value(key);
    for (const Word& word : kWords) {
        if (attribute == QLatin1StringView(word.attribute) && isOf(word, choice))
            return QLatin1StringView(word.word);
    }
    const bool isNamedByPrinter =
        attribute == QLatin1StringView(kIppMediaType) || attribute == QLatin1StringView(kMediaSource);
    return isNamedByPrinter ? choice : QString();
}

} // namespace halvern
