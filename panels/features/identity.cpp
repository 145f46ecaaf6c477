#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"

#include <array>

namespace halvern {

namespace {

// The option of tag n is row n - 1.
constexpr std::array<QLatin1StringView, 10> kKeys{
    QLatin1StringView("PaperWidth"), QLatin1StringView("PaperSurface"),  QLatin1StringView("Overspill"),
    QLatin1StringView("Resolution"), QLatin1StringView("PaperTone"),     QLatin1StringView("PaperFeed"),
    QLatin1StringView("PaperName"),  QLatin1StringView("BindingMargin"), QLatin1StringView("BindingWidth"),
    QLatin1StringView("TwoSided"),
};
static_assert(kKeys.size() == features::kTwoSidedTag);

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
    if (!cachedSupportedPPDOptionKeys) {
        cachedSupportedPPDOptionKeys = QStringList{
            QStringLiteral("PaperFeed"),
            QStringLiteral("PaperName"),
            QStringLiteral("PaperWidth"),
            QStringLiteral("PaperSurface"),
            QStringLiteral("Resolution"),
            QStringLiteral("PaperTone"),
            QStringLiteral("Overspill"),
            QStringLiteral("BindingMargin"),
            QStringLiteral("BindingWidth"),
            QStringLiteral("ResizeOption"),
            QStringLiteral("TwoSided"),
            QStringLiteral("Duplex"),
            QStringLiteral("HalvernLastResolution"),
        };
    }
    return *cachedSupportedPPDOptionKeys;
}

std::optional<QString> RZFeaturesPDEHalvern::ppdOptionKeyForTag(int tag)
{
    const int option = tags::withoutCompanionBits(tag);
    if (option < 1 || option > int(kKeys.size()))
        return std::nullopt;
    return kKeys[size_t(option - 1)];
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
