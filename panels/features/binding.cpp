// SPDX-License-Identifier: MIT
#include "panels/features/availability.h"
#include "panels/features/binding_margin.h"
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "panels/features/reasons.h"

#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/printing/page_format.h"
#include "platform/printing/print_settings.h"
#include "platform/toolkit/control.h"

#include <QComboBox>

namespace halvern {

namespace {

constexpr char kDuplexAbility[] = "VLXDuplex";
constexpr char kExtraFeaturesAbility[] = "VLXExtraFeatures";
constexpr char kDuplexingSetting[] = "com.apple.print.PrintSettings.PMDuplexing";

constexpr QLatin1StringView kNone("None");

bool isLandscape(PageOrientation orientation)
{
    return orientation == PageOrientation::landscape || orientation == PageOrientation::reverseLandscape;
}

bool saysTrue(const std::optional<QString>& value)
{
    return value && value->compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
}

} // namespace

bool RZFeaturesPDEHalvern::isLandscapeOrientation()
{
    const auto format = pdePluginCallbackObject ? pdePluginCallbackObject->pageFormat() : nullptr;
    PageOrientation orientation = PageOrientation::portrait;
    return format && format->getOrientation(orientation) == 0 && isLandscape(orientation);
}

bool RZFeaturesPDEHalvern::paperIsTallerThanWide()
{
    const auto format = pdePluginCallbackObject ? pdePluginCallbackObject->pageFormat() : nullptr;
    PageOrientation orientation = PageOrientation::portrait;
    PageRect upright;
    if (format) {
        format->getOrientation(orientation);
        format->getUnadjustedPaperRect(upright);
    }
    // The turned sheet is asked for as well, but the upright one decides.
    PageRect turned = upright;
    if (format)
        format->getAdjustedPaperRect(turned);
    const bool taller = upright.bottom - upright.top > upright.right - upright.left;
    return isLandscape(orientation) ? !taller : taller;
}

QString RZFeaturesPDEHalvern::bindingMarginForMargin_reverse(const QString& margin, bool reverse)
{
    if (margin == kNone || !isLandscapeOrientation())
        return margin;
    if (reverse)
        return binding::shownOfStored(margin);
    const QString stored = binding::storedOfShown(margin);
    logLine(QStringLiteral("flopping \"Binding Margin\" from \"%1\" to \"%2\" for \"Landscape\" orientation")
                .arg(margin, stored));
    return stored;
}

bool RZFeaturesPDEHalvern::hostValueIs(const QString& key, QLatin1StringView value)
{
    const QVariant held = printSystemValueForKey(key);
    return held.typeId() == QMetaType::QString && held.toString() == value;
}

void RZFeaturesPDEHalvern::setDuplexAvailable()
{
    const bool available =
        hostValueIs(QStringLiteral("PaperFeed"), QLatin1StringView("Sheet")) && hardwareSupportsDuplex();
    setAvailable(features::kTwoSidedTag, available, reasons::kNoTwoSided);
    if (const QString key = QStringLiteral("TwoSided"); !available && !hostValueIs(key, kNone)) {
        forceChoice(QString(kNone), key);
        updateControl_withValue(popup(features::kTwoSidedTag), QString(kNone));
    }
    setBindingMarginAvailable();
}

void RZFeaturesPDEHalvern::setBindingMarginAvailable()
{
    const bool canTurn = availability::isEnabled(popup(features::kTwoSidedTag));
    const bool available = canTurn && !hostValueIs(QStringLiteral("TwoSided"), kNone);
    setAvailable(features::kBindingMarginTag, available,
                 canTurn ? reasons::kNeedsTwoSided : reasons::kNoTwoSided);
    setBindingWidthAvailable();
    didSelectTwoSided(nullptr);
}

void RZFeaturesPDEHalvern::setBindingWidthAvailable()
{
    const bool hasMargins = availability::isEnabled(popup(features::kBindingMarginTag));
    const bool available = hasMargins && !hostValueIs(QStringLiteral("BindingMargin"), kNone);
    const bool canTurn = availability::isEnabled(popup(features::kTwoSidedTag));
    const char* why =
        hasMargins ? reasons::kNeedsMargin : (canTurn ? reasons::kNeedsTwoSided : reasons::kNoTwoSided);
    setAvailable(features::kBindingWidthTag, available, why);
    setAvailable(features::kBindingWidthStepperTag, available, why);
}

void RZFeaturesPDEHalvern::didSelectTwoSided(const void*)
{
    const bool longEdge = hostValueIs(QStringLiteral("TwoSided"), QLatin1StringView("LongEdge"));
    const bool sideEdges = paperIsTallerThanWide() ? longEdge : !longEdge;
    QComboBox* margins = popup(features::kBindingMarginTag);
    if (!margins)
        return;
    for (int i = 0; i < margins->count(); ++i) {
        availability::setItem(margins, i, binding::isOffered(margins->itemData(i).toString(), sideEdges),
                              localized(QString::fromUtf8(reasons::kNotThisEdge)));
    }
    const QVariant stored = printSystemValueForKey(QStringLiteral("BindingMargin"));
    QVariant shown;
    if (stored.typeId() == QMetaType::QString)
        shown = bindingMarginForMargin_reverse(stored.toString(), true);
    // Not the panel's own look-up: a margin that no item stands for clears the selection.
    const int index = control::indexOfItemWithRepresentedObject(margins, shown);
    if (margins->currentIndex() != index)
        margins->setCurrentIndex(index);
    selectBindingMargin(margins);
}

void RZFeaturesPDEHalvern::selectBindingMargin(QComboBox* margins)
{
    const bool settled = margins->count() == 0 || control::isItemEnabled(margins, margins->currentIndex());
    if (!settled) {
        int index = 0;
        if (availability::isEnabled(margins) && margins->count() > 1) {
            // The last margin is taken even if it is disabled like all before it.
            const int last = margins->count() - 1;
            for (index = 1; index < last && !control::isItemEnabled(margins, index);)
                ++index;
        }
        margins->setCurrentIndex(index);
    }
    changePrinterSetting(margins);
}

bool RZFeaturesPDEHalvern::hardwareSupportsDuplex()
{
    return saysTrue(ppdValueForAttribute(QString::fromLatin1(kDuplexAbility)));
}

bool RZFeaturesPDEHalvern::hardwareSupportsExtraFeatures()
{
    return saysTrue(ppdValueForAttribute(QString::fromLatin1(kExtraFeaturesAbility)));
}

void RZFeaturesPDEHalvern::setHardwareSupportsDuplex(bool supported)
{
    KSTRVLBasePDEHalvern::setChoice_forKey(supported, QString::fromLatin1(kDuplexAbility));
    logLine(QStringLiteral("Setting Duplex capability ... this printer %1 duplex")
                .arg(supported ? QStringLiteral("CAN") : QStringLiteral("CANNOT")));
    setDuplexAvailable();
}

void RZFeaturesPDEHalvern::setHardwareSupportsExtraFeatures(bool supported)
{
    KSTRVLBasePDEHalvern::setChoice_forKey(supported, QString::fromLatin1(kExtraFeaturesAbility));
    logLine(QStringLiteral("Setting Features capability ... this printer does %1have extra features.")
                .arg(supported ? QStringLiteral("") : QStringLiteral("NOT ")));
}

void RZFeaturesPDEHalvern::setSupportsSheet()
{
    // A host that refuses the roll too and has the sheet marked would send us round in circles.
    if (refusingSheet_ || hardwareSupportsExtraFeatures())
        return;
    refusingSheet_ = true;
    logLine(QStringLiteral("This printer does not support sheet printing"));
    markChoice_forPPDOptionKey_fromSender(QStringLiteral("Roll"), QStringLiteral("PaperFeed"),
                                          popup(features::kFeedTag));
    refusingSheet_ = false;
    showStoredFeed();
}

bool RZFeaturesPDEHalvern::setDuplexEnabled(bool enabled)
{
    const auto settings = pdePluginCallbackObject ? pdePluginCallbackObject->printSettings() : nullptr;
    return settings && settings->setValue(QString::fromLatin1(kDuplexingSetting), enabled, false) == 0;
}

} // namespace halvern
