// SPDX-License-Identifier: MIT
#include "panels/simple/color_adjust_panel.h"

#include "panel_base/option_tags.h"
#include "panel_base/tags.h"
#include "platform/toolkit/control.h"

#include <array>

namespace halvern {

namespace {

constexpr std::array<TaggedOption, 8> kAdjustOptions{{
    {"Brightness", 4},
    {"Contrast", 5},
    {"Saturation", 6},
    {"Gamma", 7},
    {"Red", 1},
    {"Green", 2},
    {"Blue", 3},
    {"AdjustmentsEnabled", tags::kToggle},
}};

} // namespace

QStringList RZColorAdjustPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = keysOf(kAdjustOptions);
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZColorAdjustPDEHalvern::nibName()
{
    return QStringLiteral("TessarinColorAdjust");
}

std::optional<QString> RZColorAdjustPDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Color Adjustments"));
    return thePDEName;
}

std::optional<QString> RZColorAdjustPDEHalvern::panelKind()
{
    return QStringLiteral("com.halvern.print.pde.coloradjust");
}

std::optional<QString> RZColorAdjustPDEHalvern::ppdOptionKeyForTag(int tag)
{
    return keyForTag(kAdjustOptions, tags::withoutCompanionBits(tag));
}

QVariant RZColorAdjustPDEHalvern::newChoiceForSender(QWidget* sender)
{
    const std::optional<QString> text = control::stringValue(sender);
    return text ? QVariant(*text) : QVariant();
}

void RZColorAdjustPDEHalvern::enableCustom()
{
    takeSliderRangesFromPPD(SliderStep::fineForRange);
}

QMap<QString, QString> RZColorAdjustPDEHalvern::summaryInfo()
{
    QMap<QString, QString> summary = KSTRVLBasePDEHalvern::summaryInfo();
    if (useConstraintHandling)
        summary.remove(QStringLiteral("AllowCUPS11"));
    return summary;
}

} // namespace halvern
