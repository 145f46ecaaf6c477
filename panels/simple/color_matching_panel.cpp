#include "panels/simple/color_matching_panel.h"

namespace halvern {

namespace {

constexpr int kMatchingMenuTag = 1;

} // namespace

QStringList RZColorMatchingPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = QStringList{QStringLiteral("AP_ColorMatchingMode")};
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZColorMatchingPDEHalvern::nibName()
{
    return QStringLiteral("TessarinColorMatching");
}

std::optional<QString> RZColorMatchingPDEHalvern::panelName()
{
    if (!thePDEName)
        thePDEName = localized(QStringLiteral("Color Matching"));
    return thePDEName;
}

std::optional<QString> RZColorMatchingPDEHalvern::panelKind()
{
    return QStringLiteral("com.halvern.print.pde.info");
}

std::optional<QString> RZColorMatchingPDEHalvern::ppdOptionKeyForTag(int tag)
{
    return tag == kMatchingMenuTag ? std::optional(QStringLiteral("AP_ColorMatchingMode")) : std::nullopt;
}

} // namespace halvern
