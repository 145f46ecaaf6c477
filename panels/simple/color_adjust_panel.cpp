#include "panels/simple/color_adjust_panel.h"

#include "panel_base/tags.h"
#include "platform/toolkit/control.h"

#include <array>

namespace halvern {

namespace {

struct AdjustmentTag {
    int tag;
    const char* key;
};

// The order of the view. Saving and the defaults have an order of their own.
constexpr std::array<AdjustmentTag, 8> kAdjustments{{
    {1, "Red"},
    {2, "Green"},
    {3, "Blue"},
    {4, "Brightness"},
    {5, "Contrast"},
    {6, "Saturation"},
    {7, "Gamma"},
    {tags::kToggle, "AdjustmentsEnabled"},
}};

} // namespace

QStringList RZColorAdjustPDEHalvern::supportedPPDOptionKeys()
{
    if (!cachedSupportedPPDOptionKeys) {
        cachedSupportedPPDOptionKeys = QStringList{
            QStringLiteral("Brightness"), QStringLiteral("Contrast"),
            QStringLiteral("Saturation"), QStringLiteral("Gamma"),
            QStringLiteral("Red"),        QStringLiteral("Green"),
            QStringLiteral("Blue"),       QStringLiteral("AdjustmentsEnabled"),
        };
    }
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
    for (const AdjustmentTag& row : kAdjustments) {
        if (row.tag == tags::withoutCompanionBits(tag))
            return QString::fromLatin1(row.key);
    }
    return std::nullopt;
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
