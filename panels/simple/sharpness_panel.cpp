// SPDX-License-Identifier: MIT
#include "panels/simple/sharpness_panel.h"

#include "panel_base/option_tags.h"
#include "panel_base/tags.h"
#include "platform/foundation/numbers.h"
#include "platform/toolkit/control.h"

#include <QLineEdit>

#include <array>

namespace halvern {

namespace {

constexpr std::array<TaggedOption, 3> kSharpnessOptions{{
    {"SharpnessEnabled", tags::kToggle},
    {"SharpnessIntensity", 2},
    {"SharpnessRadius", 1},
}};

struct Cell {
    int tag;
    const char* choice;
};

constexpr std::array<Cell, 4> kCells{{{2, "0"}, {3, "1"}, {4, "2"}, {5, "3"}}};

constexpr char kTwoDecimals[] = "%.2f";

// The intensity's controls, slider and field, are the ones with this bit in their tags.
constexpr int kIntensityBit = 2;

} // namespace

QStringList RZSharpnessPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = keysOf(kSharpnessOptions);
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZSharpnessPDEHalvern::nibName()
{
    return QStringLiteral("TessarinSharpness");
}

std::optional<QString> RZSharpnessPDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Sharpness"));
    return thePDEName;
}

std::optional<QString> RZSharpnessPDEHalvern::panelKind()
{
    return QStringLiteral("com.halvern.print.pde.sharpness");
}

std::optional<QString> RZSharpnessPDEHalvern::ppdOptionKeyForTag(int tag)
{
    return keyForTag(kSharpnessOptions, tags::withoutCompanionBits(tag));
}

QVariant RZSharpnessPDEHalvern::ppdChoiceForTag(int tag)
{
    for (const Cell& cell : kCells) {
        if (cell.tag == tag)
            return QString::fromLatin1(cell.choice);
    }
    return {};
}

int RZSharpnessPDEHalvern::tagForStringValue(const QVariant& value)
{
    for (const Cell& cell : kCells) {
        if (value.typeId() == QMetaType::QString && value.toString() == QLatin1StringView(cell.choice))
            return cell.tag;
    }
    return 0;
}

QVariant RZSharpnessPDEHalvern::newChoiceForSender(QWidget* sender)
{
    if (tags::has(control::tagOf(sender), kIntensityBit))
        return floatValueForSender_format_allowsNegative(sender, kTwoDecimals, false);
    return QString::number(control::intValue(sender).value_or(0));
}

void RZSharpnessPDEHalvern::enableCustom()
{
    takeSliderRangesFromPPD(SliderStep::asLaidOut);
}

void RZSharpnessPDEHalvern::controlTextDidEndEditing(QLineEdit* field)
{
    KSTRVLBasePDEHalvern::controlTextDidEndEditing(field);
    if (!tags::has(control::tagOf(field), kIntensityBit))
        return;
    control::setStringValue(field, formatDouble(kTwoDecimals, control::floatValue(field).value_or(0.0)));
    changePrinterSetting(field);
}

} // namespace halvern
