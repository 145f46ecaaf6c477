// SPDX-License-Identifier: MIT
#include "panels/simple/color_matching_panel.h"

namespace halvern {

namespace {

constexpr char kMatchingKey[] = "AP_ColorMatchingMode";
constexpr int kMatchingMenuTag = 1;

} // namespace

QStringList RZColorMatchingPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys)
        cachedSupportedPPDOptionKeys = QStringList{QString::fromLatin1(kMatchingKey)};
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
    return tag == kMatchingMenuTag ? std::optional(QString::fromLatin1(kMatchingKey)) : std::nullopt;
}

} // namespace halvern
