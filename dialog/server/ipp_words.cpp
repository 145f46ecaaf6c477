// SPDX-License-Identifier: MIT
#include "dialog/server/ipp_words.h"

#include "dialog/options/tray_words.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

struct IppWordsWords {
    Q_DECLARE_TR_FUNCTIONS(IppWords)
};

struct Row {
    const char* keyword;
    const char* words;
};

constexpr std::array kOptions{
    Row{"media", QT_TRANSLATE_NOOP("IppWords", "Paper size")},
    Row{"media-source", QT_TRANSLATE_NOOP("IppWords", "Paper source")},
    Row{"media-type", QT_TRANSLATE_NOOP("IppWords", "Paper type")},
    Row{"sides", QT_TRANSLATE_NOOP("IppWords", "Two-sided")},
    Row{"print-color-mode", QT_TRANSLATE_NOOP("IppWords", "Color")},
    Row{"print-quality", QT_TRANSLATE_NOOP("IppWords", "Quality")},
    Row{"printer-resolution", QT_TRANSLATE_NOOP("IppWords", "Resolution")},
    Row{"output-bin", QT_TRANSLATE_NOOP("IppWords", "Output tray")},
    Row{"print-content-optimize", QT_TRANSLATE_NOOP("IppWords", "Best for")},
    Row{"print-rendering-intent", QT_TRANSLATE_NOOP("IppWords", "Rendering intent")},
};

// The values of several attributes: none of them means two things.
constexpr std::array kValues{
    Row{"auto", QT_TRANSLATE_NOOP("IppWords", "Automatic")},
    Row{"one-sided", QT_TRANSLATE_NOOP("IppWords", "Off")},
    Row{"two-sided-long-edge", QT_TRANSLATE_NOOP("IppWords", "Long edge")},
    Row{"two-sided-short-edge", QT_TRANSLATE_NOOP("IppWords", "Short edge")},
    Row{"color", QT_TRANSLATE_NOOP("IppWords", "Color")},
    Row{"monochrome", QT_TRANSLATE_NOOP("IppWords", "Black and white")},
    Row{"auto-monochrome", QT_TRANSLATE_NOOP("IppWords", "Automatic, black and white")},
    Row{"bi-level", QT_TRANSLATE_NOOP("IppWords", "Black only")},
    Row{"3", QT_TRANSLATE_NOOP("IppWords", "Draft")},
    Row{"4", QT_TRANSLATE_NOOP("IppWords", "Normal")},
    Row{"5", QT_TRANSLATE_NOOP("IppWords", "High")},
    Row{"photo", QT_TRANSLATE_NOOP("IppWords", "Photo")},
    Row{"face-up", QT_TRANSLATE_NOOP("IppWords", "Face up")},
    Row{"face-down", QT_TRANSLATE_NOOP("IppWords", "Face down")},
    Row{"text", QT_TRANSLATE_NOOP("IppWords", "Text")},
    Row{"graphic", QT_TRANSLATE_NOOP("IppWords", "Graphics")},
    Row{"text-and-graphic", QT_TRANSLATE_NOOP("IppWords", "Text and graphics")},
    Row{"perceptual", QT_TRANSLATE_NOOP("IppWords", "Perceptual")},
    Row{"relative", QT_TRANSLATE_NOOP("IppWords", "Relative")},
    Row{"saturation", QT_TRANSLATE_NOOP("IppWords", "Saturation")},
    Row{"absolute", QT_TRANSLATE_NOOP("IppWords", "Absolute")},
};

// "tray-1" -> "Tray 1"
QString spelled(const QString& keyword)
{
    QString text = keyword;
    text.replace(QLatin1Char('-'), QLatin1Char(' ')).replace(QLatin1Char('_'), QLatin1Char(' '));
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

template <typename Rows> QString wordsIn(const Rows& rows, const QString& keyword)
{
    const auto found =
        std::ranges::find_if(rows, [&](const Row& row) { return keyword == QLatin1StringView(row.keyword); });
    return found == rows.end() ? spelled(keyword) : IppWordsWords::tr(found->words);
}

} // namespace

QString ippOptionWords(const QString& attribute)
{
    return wordsIn(kOptions, attribute);
}

QString ippWords(const QString& attribute, const QString& value)
{
    if (attribute == QLatin1StringView("printer-resolution"))
        return QString(value).replace(QLatin1StringView("dpi"), QLatin1StringView(" dpi"));
    if (attribute == QLatin1StringView("media-source"))
        return traySourceWords(value);
    if (attribute == QLatin1StringView("media-type"))
        return mediaTypeWords(value);
    return wordsIn(kValues, value);
}

} // namespace halvern
