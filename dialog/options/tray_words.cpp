// SPDX-License-Identifier: MIT
#include "dialog/options/tray_words.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

struct NamedText {
    const char* keyword;
    const char* text;
};

constexpr std::array kSources{
    NamedText{"main", QT_TRANSLATE_NOOP("TrayWords", "Main tray")},
    NamedText{"photo", QT_TRANSLATE_NOOP("TrayWords", "Photo tray")},
    NamedText{"alternate", QT_TRANSLATE_NOOP("TrayWords", "Second tray")},
    NamedText{"top", QT_TRANSLATE_NOOP("TrayWords", "Upper tray")},
    NamedText{"middle", QT_TRANSLATE_NOOP("TrayWords", "Middle tray")},
    NamedText{"bottom", QT_TRANSLATE_NOOP("TrayWords", "Lower tray")},
    NamedText{"rear", QT_TRANSLATE_NOOP("TrayWords", "Rear feed")},
    NamedText{"side", QT_TRANSLATE_NOOP("TrayWords", "Side tray")},
    NamedText{"manual", QT_TRANSLATE_NOOP("TrayWords", "Manual feed")},
    NamedText{"by-pass-tray", QT_TRANSLATE_NOOP("TrayWords", "Bypass tray")},
    NamedText{"large-capacity", QT_TRANSLATE_NOOP("TrayWords", "Large tray")},
    NamedText{"envelope", QT_TRANSLATE_NOOP("TrayWords", "Envelope feed")},
    NamedText{"disc", QT_TRANSLATE_NOOP("TrayWords", "Disc tray")},
    NamedText{"main-roll", QT_TRANSLATE_NOOP("TrayWords", "Roll")},
    NamedText{"alternate-roll", QT_TRANSLATE_NOOP("TrayWords", "Second roll")},
};

constexpr std::array kTypes{
    NamedText{"stationery", QT_TRANSLATE_NOOP("TrayWords", "Plain paper")},
    NamedText{"stationery-lightweight", QT_TRANSLATE_NOOP("TrayWords", "Thin paper")},
    NamedText{"stationery-heavyweight", QT_TRANSLATE_NOOP("TrayWords", "Heavy paper")},
    NamedText{"stationery-inkjet", QT_TRANSLATE_NOOP("TrayWords", "Inkjet paper")},
    NamedText{"stationery-coated", QT_TRANSLATE_NOOP("TrayWords", "Coated paper")},
    NamedText{"stationery-letterhead", QT_TRANSLATE_NOOP("TrayWords", "Letterhead")},
    NamedText{"stationery-fine", QT_TRANSLATE_NOOP("TrayWords", "Fine paper")},
    NamedText{"photographic", QT_TRANSLATE_NOOP("TrayWords", "Photo paper")},
    NamedText{"photographic-glossy", QT_TRANSLATE_NOOP("TrayWords", "Glossy photo paper")},
    NamedText{"photographic-high-gloss", QT_TRANSLATE_NOOP("TrayWords", "High-gloss photo paper")},
    NamedText{"photographic-semi-gloss", QT_TRANSLATE_NOOP("TrayWords", "Semi-gloss photo paper")},
    NamedText{"photographic-satin", QT_TRANSLATE_NOOP("TrayWords", "Satin photo paper")},
    NamedText{"photographic-matte", QT_TRANSLATE_NOOP("TrayWords", "Matte photo paper")},
    NamedText{"photographic-film", QT_TRANSLATE_NOOP("TrayWords", "Photo film")},
    NamedText{"cardstock", QT_TRANSLATE_NOOP("TrayWords", "Card")},
    NamedText{"envelope", QT_TRANSLATE_NOOP("TrayWords", "Envelopes")},
    NamedText{"labels", QT_TRANSLATE_NOOP("TrayWords", "Labels")},
    NamedText{"transparency", QT_TRANSLATE_NOOP("TrayWords", "Transparencies")},
    NamedText{"disc", QT_TRANSLATE_NOOP("TrayWords", "Discs")},
};

template <size_t N> const char* find(const std::array<NamedText, N>& names, const QString& keyword)
{
    const auto found = std::ranges::find_if(
        names, [&](const NamedText& row) { return keyword == QLatin1StringView(row.keyword); });
    return found == names.end() ? nullptr : found->text;
}

QString ownWords(QString keyword)
{
    return displayText(keyword.replace(QLatin1Char('-'), QLatin1Char(' ')));
}

} // namespace

QString traySourceWords(const QString& source)
{
    if (const char* text = find(kSources, source))
        return QCoreApplication::translate("TrayWords", text);
    if (source.startsWith(QLatin1StringView("tray-")))
        return QCoreApplication::translate("TrayWords", "Tray %1").arg(ownWords(source.mid(5)));
    if (source.startsWith(QLatin1StringView("roll-")))
        return QCoreApplication::translate("TrayWords", "Roll %1").arg(ownWords(source.mid(5)));
    return source.isEmpty() ? QCoreApplication::translate("TrayWords", "Tray") : ownWords(source);
}

QString mediaTypeWords(const QString& type)
{
    if (const char* text = find(kTypes, type))
        return QCoreApplication::translate("TrayWords", text);
    return ownWords(type);
}

} // namespace halvern
