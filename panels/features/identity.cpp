// SPDX-License-Identifier: MIT
#include "panel_base/option_tags.h"
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"

#include <array>

namespace halvern {

namespace {

constexpr std::array<TaggedOption, 13> kOptions{{
    {"PaperFeed", features::kFeedTag},
    {"PaperName", features::kNameTag},
    {"PaperWidth", features::kWidthTag},
    {"PaperSurface", features::kSurfaceTag},
    {"Resolution", features::kResolutionTag},
    {"PaperTone", features::kToneTag},
    {"Overspill", features::kOverspillTag},
    {"BindingMargin", features::kBindingMarginTag},
    {"BindingWidth", features::kBindingWidthTag},
    {"ResizeOption", kNoTag},
    {"TwoSided", features::kTwoSidedTag},
    {"Duplex", kNoTag},
    {"HalvernLastResolution", kNoTag},
}};

struct Cell {
    int tag;
    QLatin1StringView choice;
};

// The four surfaces, and the words of a matrix for the picture's size.
constexpr std::array<Cell, 7> kCells{{
    {6, QLatin1StringView("Resize")},
    {7, QLatin1StringView("Crop")},
    {5, QLatin1StringView("Real")},
    {1, QLatin1StringView("1")},
    {2, QLatin1StringView("2")},
    {3, QLatin1StringView("3")},
    {4, QLatin1StringView("4")},
}};

} // namespace

std::optional<QString> RZFeaturesPDEHalvern::nibName()
{
    return QStringLiteral("TessarinFeatures");
}

std::optional<QString> RZFeaturesPDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Features"));
    return thePDEName;
}

std::optional<QString> RZFeaturesPDEHalvern::panelKind()
{
    return QStringLiteral("com.halvern.print.pde.features");
}

QStringList RZFeaturesPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = keysOf(kOptions);
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZFeaturesPDEHalvern::ppdOptionKeyForTag(int tag)
{
    return keyForTag(kOptions, tags::withoutCompanionBits(tag));
}

QVariant RZFeaturesPDEHalvern::ppdChoiceForTag(int tag)
{
    for (const Cell& cell : kCells) {
        if (cell.tag == tag)
            return QString(cell.choice);
    }
    return {};
}

int RZFeaturesPDEHalvern::tagForStringValue(const QVariant& value)
{
    for (const Cell& cell : kCells) {
        if (value.typeId() == QMetaType::QString && value.toString() == cell.choice)
            return cell.tag;
    }
    return 0;
}

} // namespace halvern
