// SPDX-License-Identifier: MIT
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"

#include "platform/foundation/description.h"
#include "platform/foundation/log.h"
#include "platform/foundation/string_additions.h"
#include "platform/toolkit/control.h"

#include <QComboBox>

namespace halvern {

namespace {

// A record may hold anything, and the log is not the place to keep it.
constexpr int kLongestLoggedPaper = 4000;

} // namespace

std::shared_ptr<const PaperCatalogue> RZFeaturesPDEHalvern::unsortedPaper() const
{
    return paperDict.get();
}

void RZFeaturesPDEHalvern::setUnsortedPaper(std::shared_ptr<const PaperCatalogue> catalogue)
{
    paperDict.set(std::move(catalogue));
}

QStringList RZFeaturesPDEHalvern::sortedPaperNames()
{
    if (!_sortedPaper)
        return {};
    return KSTRVL_NSStringAdditions::sortedNumerically(_sortedPaper->names.keys());
}

QStringList RZFeaturesPDEHalvern::sortedPaperWidths()
{
    if (!_sortedPaper)
        return {};
    return KSTRVL_NSStringAdditions::sortedNumerically(_sortedPaper->widths.keys());
}

void RZFeaturesPDEHalvern::setSortedPaper(const std::optional<PaperIndex>& index)
{
    if (index == _sortedPaper)
        return;
    _sortedPaper = index;
    sortedPaperText_.reset();
    if (_sortedPaper)
        updatePaperUI();
}

std::optional<QString> RZFeaturesPDEHalvern::humanReadablePaperWidthForActual(const QString& widthCode)
{
    return paperWidthTitle(widthCode);
}

void RZFeaturesPDEHalvern::updatePaperInfo(const Notification*)
{
    const auto held = unsortedPaper();
    const PaperCatalogue catalogue = held ? *held : PaperCatalogue();
    logLine(QStringLiteral("received new paper dictionary"));
    logLine(QStringLiteral("paper count is %1").arg(catalogue.size()));
    const IndexedCatalogue found = indexCatalogue(catalogue);
    for (const QVariant& bad : found.badPapers)
        logLine(QStringLiteral("bad paper: %1").arg(descriptionOf(bad).left(kLongestLoggedPaper)));
    // What the menus hold until a new index rebuilds them, and keep if the index is the one held.
    QList<control::MenuItem> names;
    for (const QString& name : found.namesMet)
        names.append({name, name, features::kNameTag});
    control::setItems(popup(features::kNameTag), names);
    QList<control::MenuItem> widths;
    for (const QString& code : found.widthsMet)
        widths.append(
            {humanReadablePaperWidthForActual(code).value_or(QString()), code, features::kWidthTag});
    control::setItems(popup(features::kWidthTag), widths);
    setSortedPaper(found.index);
    enableToneValues(found.tones);
    restoreValuesAndReturnError(nullptr);
}

int RZFeaturesPDEHalvern::indexOfMenuItem_forValue(QWidget* popup, const QVariant& value)
{
    const auto* menu = qobject_cast<const QComboBox*>(popup);
    if (!value.isValid() || !menu)
        return 0;
    const int found = control::indexOfItemWithRepresentedObject(menu, value);
    if (found >= 0)
        return found;
    return menu->count() > 0 ? 0 : -1;
}

QString RZFeaturesPDEHalvern::sortedPaperDescription() const
{
    // The rules log it often, and it is long.
    if (!sortedPaperText_)
        sortedPaperText_ = descriptionOf(_sortedPaper ? QVariant(_sortedPaper->asDictionary()) : QVariant());
    return *sortedPaperText_;
}

} // namespace halvern
