// SPDX-License-Identifier: MIT
#include "panels/features/availability.h"
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"
#include "panels/features/reasons.h"
#include "platform/maker/tone_mask.h"

#include "platform/foundation/description.h"
#include "platform/foundation/log.h"
#include "platform/foundation/numbers.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"

#include <QComboBox>
#include <QRadioButton>

namespace halvern {

namespace {

const char* const kFeaturesClass = "RZFeaturesPDEHalvern";

QVariant toVariant(const std::optional<QStringList>& titles)
{
    return titles ? QVariant(*titles) : QVariant();
}

QStringList itemTitles(const QComboBox* menu)
{
    QStringList titles;
    for (int i = 0; menu && i < menu->count(); ++i)
        titles.append(control::itemTitle(menu, i));
    return titles;
}

} // namespace

void RZFeaturesPDEHalvern::enableResolutionsForPaper()
{
    const QString operation = operationName(kFeaturesClass, "enableResolutionsForPaper");
    if (pdeLog().isInfoEnabled()) {
        logLine(QStringLiteral("entering %1 with sorted paper %2").arg(operation, sortedPaperDescription()));
        logLine(QStringLiteral("inside %1 with choice dict %2")
                    .arg(operation, descriptionOf(choiceDict ? QVariant(*choiceDict) : QVariant())));
    }
    if (!_sortedPaper) {
        logLine(QStringLiteral("aborting %1 due to empty sorted paper").arg(operation));
        return;
    }
    std::optional<QStringList> titles;
    if (isFeedSheet())
        titles = sheetResolutions();
    else if (!findRollResolutions(titles))
        return;
    enableResolutionItems(titles);
    if (titles)
        correctResolution();
    logLine(QStringLiteral("exiting %1").arg(operation));
}

std::optional<QStringList> RZFeaturesPDEHalvern::sheetResolutions()
{
    const QString key = QStringLiteral("PaperName");
    // A name that is there but no longer in the catalogue is left alone.
    if (const QVariant name = storedChoice(key); !name.isValid()) {
        const QVariant selected = control::selectedRepresentedObject(popup(features::kNameTag));
        if (selected.isValid()) {
            logLine(QStringLiteral("existing paper %1 is not a valid selection; changing %2")
                        .arg(descriptionOf(name), descriptionOf(selected)));
            forceChoice(selected, key);
        }
    }
    const auto name = storedText(key);
    const auto found = name ? _sortedPaper->names.constFind(*name) : _sortedPaper->names.constEnd();
    return found == _sortedPaper->names.constEnd() ? std::nullopt : std::optional<QStringList>(*found);
}

// False if there is nothing to go by; `titles` stays empty if the roll is not in the index.
bool RZFeaturesPDEHalvern::findRollResolutions(std::optional<QStringList>& titles)
{
    const QString key = QStringLiteral("PaperWidth");
    if (!storedChoice(key).isValid())
        return false;
    const QString before = descriptionOf(storedChoice(key));
    const auto stored = storedText(key);
    const ResolutionTitles* surfaces = stored ? surfacesOfWidth(*stored) : nullptr;
    if (!surfaces) {
        const QVariant selected = control::selectedRepresentedObject(popup(features::kWidthTag));
        surfaces = selected.isValid() ? surfacesOfWidth(selected.toString()) : nullptr;
        if (surfaces) {
            logLine(
                QStringLiteral("existing paper width of %1 is not a valid selection; changing width to %2")
                    .arg(before, selected.toString()));
            forceChoice(selected, key);
        }
    }
    limitSurfaces(surfaces ? *surfaces : ResolutionTitles());
    const QVariant surface = newChoiceForSender(view_controlForTag(nullptr, features::kSurfaceTag));
    if (surfaces && surface.isValid() && surfaces->contains(surface.toString()))
        titles = surfaces->value(surface.toString());
    return true;
}

const ResolutionTitles* RZFeaturesPDEHalvern::surfacesOfWidth(const QString& width) const
{
    const auto found = _sortedPaper->widths.constFind(width);
    return found == _sortedPaper->widths.constEnd() ? nullptr : &*found;
}

void RZFeaturesPDEHalvern::limitSurfaces(const ResolutionTitles& surfaces)
{
    auto* matrix = qobject_cast<Matrix*>(view_controlForTag(nullptr, features::kSurfaceTag));
    if (!matrix)
        return;
    for (QRadioButton* cell : matrix->cells()) {
        availability::setControl(cell, surfaces.contains(cell->text()),
                                 localized(QString::fromUtf8(reasons::kNotThisSurface)));
    }
    const QRadioButton* selected = matrix->selectedCell();
    // With no button selected there is nothing to correct: the stored surface has not been shown yet.
    if (surfaces.isEmpty() || !selected || availability::isEnabled(selected))
        return;
    const QString first = surfaces.firstKey();
    updateControl_withValue(matrix, first);
    forceChoice(first, QStringLiteral("PaperSurface"));
}

void RZFeaturesPDEHalvern::enableResolutionItems(const std::optional<QStringList>& titles)
{
    QComboBox* menu = popup(features::kResolutionTag);
    const QStringList items = itemTitles(menu);
    logLine(QStringLiteral("enabling resolutions: %1 for items:%2")
                .arg(descriptionOf(toVariant(titles)), descriptionOf(items)));
    for (int i = 0; i < items.size(); ++i) {
        // Rolls always offer the first resolution.
        const bool offered = (titles && titles->contains(items[i])) || (i == 0 && !isFeedSheet());
        availability::setItem(menu, i, offered, localized(QString::fromUtf8(reasons::kNotThisResolution)));
    }
}

void RZFeaturesPDEHalvern::correctResolution()
{
    QComboBox* menu = popup(features::kResolutionTag);
    const QString key = QStringLiteral("Resolution");
    if (!menu || !storedChoice(key).isValid() || control::isItemEnabled(menu, menu->currentIndex()))
        return;
    for (int i = 1; i < menu->count(); ++i) {
        if (!control::isItemEnabled(menu, i))
            continue;
        menu->setCurrentIndex(i);
        forceChoice(menu->itemData(i), key);
        return;
    }
}

void RZFeaturesPDEHalvern::didSelectNewPaper(const void*)
{
    // One for all panels of the process; never cleared.
    static QString lastChecked;
    const QString description = descriptionOf(choiceDict ? QVariant(*choiceDict) : QVariant());
    if (description == lastChecked || !storedChoice(QStringLiteral("Resolution")).isValid())
        return;
    lastChecked = description;
    enableResolutionsForPaper();
}

void RZFeaturesPDEHalvern::enableToneValues(quint32 mask)
{
    setAvailable(features::kToneTag, tone::allowsAny(mask), reasons::kNoTones);
    if (mask == 0)
        return;
    logLine(QStringLiteral("Enabling Tone for bits: %1").arg(mask));
    QComboBox* menu = popup(features::kToneTag);
    for (int i = 0; menu && i < menu->count(); ++i) {
        availability::setItem(menu, i, tone::allowsItem(mask, i),
                              localized(QString::fromUtf8(reasons::kNotThisTone)));
    }
    if (!menu || control::isItemEnabled(menu, menu->currentIndex()))
        return;
    menu->setCurrentIndex(menu->count() > 0 ? 0 : -1);
    changePrinterSetting(menu);
}

std::optional<QVariantMap> RZFeaturesPDEHalvern::match()
{
    const QComboBox* menu = popup(features::kResolutionTag);
    const int dotsPerInch = menu ? leadingInteger(control::itemTitle(menu, menu->currentIndex())) : 0;
    const auto text = [this](const QString& key) { return descriptionOf(storedChoice(key)); };
    const QString key = isFeedSheet() ? sheetPaperKey(text(QStringLiteral("PaperName")), dotsPerInch)
                                      : rollPaperKey(text(QStringLiteral("PaperWidth")),
                                                     text(QStringLiteral("PaperSurface")), dotsPerInch);
    const auto catalogue = unsortedPaper();
    if (!catalogue || !catalogue->contains(key))
        return std::nullopt;
    return catalogue->value(key).toMap();
}

quint32 RZFeaturesPDEHalvern::paperToneForStuff()
{
    const std::optional<QVariantMap> record = match();
    return record ? paperToneOf(*record) : 0U;
}

bool RZFeaturesPDEHalvern::isFeedSheet() const
{
    return storedText(QStringLiteral("PaperFeed")) == QLatin1StringView("Sheet");
}

std::optional<QString> RZFeaturesPDEHalvern::storedText(const QString& key) const
{
    const QVariant choice = storedChoice(key);
    return choice.typeId() == QMetaType::QString ? std::optional<QString>(choice.toString()) : std::nullopt;
}

QComboBox* RZFeaturesPDEHalvern::popup(int tag)
{
    return qobject_cast<QComboBox*>(view_controlForTag(nullptr, tag));
}

} // namespace halvern
