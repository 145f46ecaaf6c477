// SPDX-License-Identifier: MIT
#include "panels/features/availability.h"
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "panels/features/reasons.h"

#include "platform/foundation/log.h"
#include "platform/toolkit/control.h"

#include <QComboBox>

namespace halvern {

namespace {

const char* const kMenusClass = "RZFeaturesPDEHalvern";

constexpr QLatin1StringView kSheet("Sheet");
constexpr QLatin1StringView kRoll("Roll");

} // namespace

void RZFeaturesPDEHalvern::updatePaperUI()
{
    const QString operation = operationName(kMenusClass, "updatePaperUI");
    logLine(QStringLiteral("entering %1").arg(operation));
    logLine(QStringLiteral("about to get sortedPaperNames in %1").arg(operation));
    const QStringList names = sortedPaperNames();
    // Only the low eight bits of the count are looked at: 256 names count as none.
    const bool hasNames = quint8(names.size()) != 0;
    fillNameMenu(names, hasNames);
    fillWidthMenu(hasNames);
    enableResolutionsForPaper();
    enableControlsForPaperFeed();
    const QString feedKey = QStringLiteral("PaperFeed");
    setChoice_forKey(storedChoice(feedKey), feedKey);
    showStoredFeed();
    logLine(QStringLiteral("exiting %1").arg(operation));
}

void RZFeaturesPDEHalvern::fillNameMenu(const QStringList& names, bool hasNames)
{
    QComboBox* menu = popup(features::kNameTag);
    control::setItems(menu, {});
    if (!hasNames) {
        setAvailable(features::kNameTag, false, reasons::kNoSheets);
        markChoice_forPPDOptionKey_fromSender(QString(kRoll), QStringLiteral("PaperFeed"),
                                              popup(features::kFeedTag));
        setFeedItemAvailable(kSheet, false, reasons::kNoSheets);
        return;
    }
    setAvailable(features::kNameTag, true, nullptr);
    QList<control::MenuItem> items;
    items.reserve(names.size());
    for (const QString& name : names)
        items.append({name, name, features::kNameTag});
    control::setItems(menu, items);
    chooseName(names);
}

void RZFeaturesPDEHalvern::chooseName(const QStringList& names)
{
    const QString key = QStringLiteral("PaperName");
    const std::optional<QString> ofPpd = cupsOptionValueForKey(key);
    namePutInPlace_ = QVariant();
    bool isChosen = chooseNameIfListed(printSystemValueForKey(key));
    if (!isChosen && ofPpd && chooseNameIfListed(*ofPpd)) {
        isChosen = true;
        namePutInPlace_ = *ofPpd;
    }
    if (isChosen) {
        // Not made available, but no longer for want of sheets.
        if (!isFeedItemAvailable(kSheet))
            setFeedItemAvailable(kSheet, false, reasons::kSheetFeedNotOffered);
        return;
    }
    markChoice_forPPDOptionKey_fromSender(names.first(), key, popup(features::kNameTag));
    // The only place that makes the sheet feed available again.
    setFeedItemAvailable(kSheet, true, nullptr);
}

bool RZFeaturesPDEHalvern::chooseNameIfListed(const QVariant& name)
{
    if (name.typeId() != QMetaType::QString || !_sortedPaper->names.contains(name.toString()))
        return false;
    setChoice_forKey(name, QStringLiteral("PaperName"));
    if (QComboBox* menu = popup(features::kNameTag))
        menu->setCurrentIndex(control::indexOfItemWithRepresentedObject(menu, name));
    return true;
}

void RZFeaturesPDEHalvern::fillWidthMenu(bool hasNames)
{
    QComboBox* menu = popup(features::kWidthTag);
    control::setItems(menu, {});
    const QStringList widths = sortedPaperWidths();
    if (widths.isEmpty()) {
        setAvailable(features::kWidthTag, false, reasons::kNoRolls);
        if (hasNames) {
            markChoice_forPPDOptionKey_fromSender(QString(kSheet), QStringLiteral("PaperFeed"),
                                                  popup(features::kFeedTag));
        }
        setFeedItemAvailable(kRoll, false, reasons::kNoRolls);
        return;
    }
    setAvailable(features::kWidthTag, true, nullptr);
    QList<control::MenuItem> items;
    items.reserve(widths.size());
    // The items carry the name menu's tag.
    for (const QString& code : widths)
        items.append({humanReadablePaperWidthForActual(code).value_or(QString()), code, features::kNameTag});
    control::setItems(menu, items);
    setFeedItemAvailable(kRoll, true, nullptr);
}

// Marking a feed does not move its own menu, and a refused choice leaves it at what was refused.
void RZFeaturesPDEHalvern::showStoredFeed()
{
    updateControl_withValue(popup(features::kFeedTag), storedChoice(QStringLiteral("PaperFeed")));
}

void RZFeaturesPDEHalvern::setFeedItemAvailable(QLatin1StringView feed, bool available, const char* why)
{
    QComboBox* menu = popup(features::kFeedTag);
    availability::setItem(menu, control::indexOfItemWithRepresentedObject(menu, QString(feed)), available,
                          why ? localized(QString::fromUtf8(why)) : QString());
}

bool RZFeaturesPDEHalvern::isFeedItemAvailable(QLatin1StringView feed)
{
    const QComboBox* menu = popup(features::kFeedTag);
    return control::isItemEnabled(menu, control::indexOfItemWithRepresentedObject(menu, QString(feed)));
}

void RZFeaturesPDEHalvern::setAvailable(int tag, bool available, const char* why)
{
    availability::setControl(view_controlForTag(nullptr, tag), available,
                             why ? localized(QString::fromUtf8(why)) : QString());
}

void RZFeaturesPDEHalvern::enableControlsForPaperFeed()
{
    const bool sheet = isFeedSheet();
    // Nobody is told to choose a feed that cannot be chosen.
    const bool hasSheets = _sortedPaper && !_sortedPaper->names.isEmpty();
    const bool hasRolls = _sortedPaper && !_sortedPaper->widths.isEmpty();
    const char* whyNoSheet =
        isFeedItemAvailable(kSheet) ? reasons::kNeedsSheetFeed : reasons::kSheetFeedNotOffered;
    setAvailable(features::kNameTag, sheet, hasSheets ? whyNoSheet : reasons::kNoSheets);
    for (const int tag : {features::kOverspillTag, features::kOverspillStepperTag, features::kWidthTag,
                          features::kSurfaceTag})
        setAvailable(tag, !sheet, hasRolls ? reasons::kNeedsRollFeed : reasons::kNoRolls);
    const auto log = [](const QString& what, bool enabled) {
        logLine(QStringLiteral("setting %1 to %2")
                    .arg(what, enabled ? QStringLiteral("enabled") : QStringLiteral("disabled")));
    };
    log(QStringLiteral("PaperName Popup"), sheet);
    log(QStringLiteral("PaperWidth Popup"), !sheet);
}

} // namespace halvern
