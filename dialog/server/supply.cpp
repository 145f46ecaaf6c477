// SPDX-License-Identifier: MIT
#include "dialog/server/supply.h"

#include "dialog/server/answer_text.h"
#include "platform/foundation/display_text.h"
#include "platform/foundation/list_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

#include <cups/ipp.h>

namespace halvern {

namespace {

constexpr int kMostSupplies = 32;
constexpr int kMostColours = 12;
constexpr int kLongestName = 80;
constexpr int kLongestEntry = 1023;
constexpr int kUsualLow = 10;
constexpr int kUsualFull = 90;
// A screen's pure black and its neighbours.
constexpr int kDarkest = 0x40;

struct SupplyWords {
    Q_DECLARE_TR_FUNCTIONS(Supply)
};

struct NamedColour {
    const char* name;
    quint32 colour;
    const char* text;
};

constexpr std::array kColours{
    NamedColour{"black", 0x000000, QT_TRANSLATE_NOOP("Supply", "Black")},
    NamedColour{"photo-black", 0x101010, QT_TRANSLATE_NOOP("Supply", "Photo black")},
    NamedColour{"matte-black", 0x202020, QT_TRANSLATE_NOOP("Supply", "Matte black")},
    NamedColour{"gray", 0x808080, QT_TRANSLATE_NOOP("Supply", "Gray")},
    NamedColour{"light-gray", 0xc0c0c0, QT_TRANSLATE_NOOP("Supply", "Light gray")},
    NamedColour{"cyan", 0x00ffff, QT_TRANSLATE_NOOP("Supply", "Cyan")},
    NamedColour{"light-cyan", 0x80ffff, QT_TRANSLATE_NOOP("Supply", "Light cyan")},
    NamedColour{"magenta", 0xff00ff, QT_TRANSLATE_NOOP("Supply", "Magenta")},
    NamedColour{"light-magenta", 0xff80ff, QT_TRANSLATE_NOOP("Supply", "Light magenta")},
    NamedColour{"yellow", 0xffff00, QT_TRANSLATE_NOOP("Supply", "Yellow")},
    NamedColour{"red", 0xff0000, QT_TRANSLATE_NOOP("Supply", "Red")},
    NamedColour{"orange", 0xff8000, QT_TRANSLATE_NOOP("Supply", "Orange")},
    NamedColour{"green", 0x00ff00, QT_TRANSLATE_NOOP("Supply", "Green")},
    NamedColour{"blue", 0x0000ff, QT_TRANSLATE_NOOP("Supply", "Blue")},
};

bool isWaste(const QString& type)
{
    return type.contains(QLatin1StringView("waste"), Qt::CaseInsensitive);
}

bool isInk(const Supply& supply)
{
    return supply.type.contains(QLatin1StringView("ink"), Qt::CaseInsensitive) ||
           supply.type.contains(QLatin1StringView("toner"), Qt::CaseInsensitive) ||
           supply.type.contains(QLatin1StringView("ribbon"), Qt::CaseInsensitive) || supply.type.isEmpty();
}

bool isBlack(quint32 colour)
{
    return int(colour >> 16) <= kDarkest && int(colour >> 8 & 0xff) <= kDarkest &&
           int(colour & 0xff) <= kDarkest;
}

// "#00FFFF#FF00FF#FFFF00", "cyan", "none".
QList<quint32> readColours(const QString& text)
{
    QList<quint32> colours;
    const auto named = std::ranges::find_if(
        kColours, [&](const NamedColour& row) { return text == QLatin1StringView(row.name); });
    if (named != kColours.end())
        return {named->colour};
    for (const QString& part : text.split(QLatin1Char('#'), Qt::SkipEmptyParts).mid(0, kMostColours)) {
        bool isNumber = false;
        const uint colour = part.trimmed().toUInt(&isNumber, 16);
        if (isNumber && part.trimmed().size() == 6)
            colours.append(colour);
    }
    return colours;
}

void setLevel(Supply& supply, int level)
{
    if (level >= 0 && level <= 100)
        supply.level = level;
}

int limitOf(ipp_attribute_t* levels, int place, int usual)
{
    const int limit = levels && place < ippGetCount(levels) ? ippGetInteger(levels, place) : -1;
    return limit >= 0 && limit <= 100 ? limit : usual;
}

QList<Supply> readMarkers(ipp_t* answer, bool* isCut)
{
    ipp_attribute_t* names = findAttribute(answer, "marker-names");
    ipp_attribute_t* levels = findAttribute(answer, "marker-levels", IPP_TAG_INTEGER);
    ipp_attribute_t* colours = findAttribute(answer, "marker-colors");
    ipp_attribute_t* types = findAttribute(answer, "marker-types");
    ipp_attribute_t* lows = findAttribute(answer, "marker-low-levels", IPP_TAG_INTEGER);
    ipp_attribute_t* highs = findAttribute(answer, "marker-high-levels", IPP_TAG_INTEGER);
    const int count = std::max(names ? ippGetCount(names) : 0, levels ? ippGetCount(levels) : 0);
    *isCut = *isCut || count > kMostSupplies;
    QList<Supply> supplies;
    for (int i = 0; i < std::min(count, kMostSupplies); ++i) {
        Supply supply;
        supply.name = stringAt(names, i, kLongestName);
        supply.type = stringAt(types, i, kLongestName);
        supply.colours = readColours(stringAt(colours, i, kLongestName));
        supply.fillsUp = isWaste(supply.type);
        supply.limit = supply.fillsUp ? limitOf(highs, i, kUsualFull) : limitOf(lows, i, kUsualLow);
        if (levels && i < ippGetCount(levels))
            setLevel(supply, ippGetInteger(levels, i));
        supplies.append(supply);
    }
    return supplies;
}

QString valueOf(const QString& entry, const char* key)
{
    const QString start = QLatin1StringView(key) + QLatin1Char('=');
    for (const QString& part : entry.split(QLatin1Char(';'))) {
        if (part.trimmed().startsWith(start))
            return displayText(part.trimmed().mid(start.size()), kLongestName);
    }
    return {};
}

// Of a supply that is counted in sheets or in millilitres only the share says something.
void readShare(Supply& supply, const QString& entry)
{
    bool isNumber = false;
    const int level = valueOf(entry, "level").toInt(&isNumber);
    bool isCapacity = false;
    const int capacity = valueOf(entry, "maxcapacity").toInt(&isCapacity);
    if (!isNumber || level < 0)
        return;
    if (valueOf(entry, "unit") == QLatin1StringView("percent"))
        setLevel(supply, level);
    else if (isCapacity && capacity > 0)
        setLevel(supply, int(std::min(level, capacity) * 100LL / capacity));
}

// "index=1;class=supplyThatIsConsumed;type=toner;unit=percent;maxcapacity=100;level=7;colorantname=black;"
Supply readEntry(const QString& entry)
{
    Supply supply;
    supply.type = valueOf(entry, "type");
    supply.colours = readColours(valueOf(entry, "colorantname"));
    supply.fillsUp =
        valueOf(entry, "class") == QLatin1StringView("receptacleThatIsFilled") || isWaste(supply.type);
    supply.limit = supply.fillsUp ? kUsualFull : kUsualLow;
    readShare(supply, entry);
    return supply;
}

QList<Supply> readEntries(ipp_t* answer, bool* isCut)
{
    ipp_attribute_t* entries = findAttribute(answer, "printer-supply", IPP_TAG_STRING);
    ipp_attribute_t* names = findAttribute(answer, "printer-supply-description");
    const int count = entries ? ippGetCount(entries) : 0;
    *isCut = *isCut || count > kMostSupplies;
    QList<Supply> supplies;
    for (int i = 0; i < std::min(count, kMostSupplies); ++i) {
        int length = 0;
        const void* bytes = ippGetOctetString(entries, i, &length);
        const qsizetype used = bytes ? std::clamp(length, 0, kLongestEntry) : 0;
        supplies.append(readEntry(QString::fromUtf8(static_cast<const char*>(bytes), used)));
        supplies.last().name = stringAt(names, i, kLongestName);
    }
    return supplies;
}

QString colourText(quint32 colour)
{
    const auto found = std::ranges::find(kColours, colour, &NamedColour::colour);
    return found == kColours.end() ? QString() : QCoreApplication::translate("Supply", found->text);
}

} // namespace

QList<Supply> readSupplies(ipp_t* answer, bool* isCut)
{
    const QList<Supply> markers = readMarkers(answer, isCut);
    return markers.isEmpty() ? readEntries(answer, isCut) : markers;
}

bool isLow(const Supply& supply)
{
    if (!supply.level)
        return false;
    return supply.fillsUp ? *supply.level >= supply.limit : *supply.level <= supply.limit;
}

bool isUsedUp(const Supply& supply)
{
    return supply.level && (supply.fillsUp ? *supply.level >= 100 : *supply.level <= 0);
}

QString supplyName(const Supply& supply)
{
    if (!supply.name.isEmpty())
        return supply.name;
    QStringList colours;
    for (const quint32 colour : supply.colours) {
        if (const QString text = colourText(colour); !text.isEmpty())
            colours.append(text);
    }
    if (!colours.isEmpty())
        return listText(colours);
    if (supply.fillsUp)
        return SupplyWords::tr("Waste tank");
    return isInk(supply) ? SupplyWords::tr("Ink") : SupplyWords::tr("Supply");
}

QString levelText(const Supply& supply)
{
    if (!supply.level)
        return SupplyWords::tr("not known");
    if (isUsedUp(supply))
        return supply.fillsUp ? SupplyWords::tr("full") : SupplyWords::tr("empty");
    const QString share = SupplyWords::tr("%1 %").arg(*supply.level);
    if (supply.fillsUp)
        return isLow(supply) ? SupplyWords::tr("%1, nearly full").arg(share)
                             : SupplyWords::tr("%1 full").arg(share);
    return isLow(supply) ? SupplyWords::tr("%1, low").arg(share) : share;
}

bool isNeeded(const Supply& supply, bool inColour)
{
    return inColour || supply.fillsUp || !isInk(supply) || supply.colours.isEmpty() ||
           std::ranges::any_of(supply.colours, isBlack);
}

QString lowSupplies(const QList<Supply>& supplies, bool inColour)
{
    QStringList parts;
    for (const Supply& supply : supplies) {
        if (!isLow(supply) || !isNeeded(supply, inColour))
            continue;
        const QString name = isolated(supplyName(supply));
        const QString share = SupplyWords::tr("%1 %").arg(*supply.level);
        if (isUsedUp(supply))
            parts.append(supply.fillsUp ? SupplyWords::tr("%1 is full").arg(name)
                                        : SupplyWords::tr("%1 is empty").arg(name));
        else
            parts.append(supply.fillsUp ? SupplyWords::tr("%1 is nearly full (%2)").arg(name, share)
                                        : SupplyWords::tr("%1 is low (%2)").arg(name, share));
    }
    return listText(parts);
}

} // namespace halvern
