// SPDX-License-Identifier: MIT
#include "panels/features/features_panel.h"
#include "panels/features/features_tags.h"

#include "platform/foundation/description.h"
#include "platform/foundation/log.h"
#include "platform/plugin_api/host_callback.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/view_search.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

#include <array>

namespace halvern {

namespace {

// Millimetres, to a tenth.
constexpr char kOneDecimal[] = "%.1f";

constexpr std::array<QLatin1StringView, 3> kPaperKeys{
    QLatin1StringView("PaperWidth"), QLatin1StringView("PaperName"), QLatin1StringView("PaperSurface")};

} // namespace

QVariant RZFeaturesPDEHalvern::newChoiceForSender(QWidget* sender)
{
    const int tag = tags::withoutCompanionBits(control::tagOf(sender));
    if (tag == features::kOverspillTag || tag == features::kBindingWidthTag)
        return floatValueForSender_format_allowsNegative(sender, kOneDecimal, false);
    if (const auto* menu = qobject_cast<const QComboBox*>(sender)) {
        const QVariant selected = control::selectedRepresentedObject(menu);
        if (tag != features::kBindingMarginTag || !selected.isValid())
            return selected;
        return bindingMarginForMargin_reverse(selected.toString(), false);
    }
    if (const auto* matrix = qobject_cast<const Matrix*>(sender)) {
        const std::optional<int> cell = matrix->selectedTag();
        return cell ? ppdChoiceForTag(*cell) : QVariant();
    }
    const auto text = control::stringValue(sender);
    return text ? QVariant(*text) : QVariant();
}

void RZFeaturesPDEHalvern::setChoice_forKey(const QVariant& choice, const std::optional<QString>& key)
{
    // By value, whatever the key.
    if (isSameValue(choice, QStringLiteral("Sheet")) && !hardwareSupportsExtraFeatures()) {
        setSupportsSheet();
        return;
    }
    if (isSameValue(choice, storedChoice(key)))
        return;
    KSTRVLBasePDEHalvern::setChoice_forKey(choice, key);
    if (key == QLatin1StringView("PaperFeed")) {
        logLine(QStringLiteral("setting %1 to %2").arg(*key, descriptionOf(choice)));
        enableControlsForPaperFeed();
        didSelectNewPaper(nullptr);
        setDuplexAvailable();
    } else if (key == QLatin1StringView("TwoSided")) {
        updateControl_withValue(popup(features::kTwoSidedTag), choice);
        setBindingMarginAvailable();
    } else if (key == QLatin1StringView("BindingMargin")) {
        setBindingWidthAvailable();
    } else if (key && std::find(kPaperKeys.begin(), kPaperKeys.end(), *key) != kPaperKeys.end()) {
        didSelectNewPaper(nullptr);
    }
}

void RZFeaturesPDEHalvern::forceChoice(const QVariant& choice, const QString& key)
{
    if (!choice.isValid())
        return;
    if (pdePluginCallbackObject)
        pdePluginCallbackObject->willChangePPDOptionKeyValue_ppdChoice(key, choice);
    KSTRVLBasePDEHalvern::setChoice_forKey(choice, key);
}

void RZFeaturesPDEHalvern::setDefaults()
{
    KSTRVLBasePDEHalvern::setDefaults();
    updateUI();
    updatePaperUI();
}

std::optional<QString> RZFeaturesPDEHalvern::defaultValueForOptionKey(const std::optional<QString>& key)
{
    if (key == QLatin1StringView("PaperName")) {
        const QComboBox* names = popup(features::kNameTag);
        if (names && names->count() > 0)
            return names->itemData(0).toString();
    }
    return KSTRVLBasePDEHalvern::defaultValueForOptionKey(key);
}

void RZFeaturesPDEHalvern::updateUI()
{
    KSTRVLBasePDEHalvern::updateUI();
    didSelectNewPaper(nullptr);
}

void RZFeaturesPDEHalvern::updateControl_withValue(QWidget* control, const QVariant& value)
{
    const bool isMargin =
        control::tagOf(control) == features::kBindingMarginTag && value.typeId() == QMetaType::QString;
    KSTRVLBasePDEHalvern::updateControl_withValue(
        control, isMargin ? QVariant(bindingMarginForMargin_reverse(value.toString(), true)) : value);
}

// The view's own children come before what is inside them.
QWidget* RZFeaturesPDEHalvern::view_controlForTag(QWidget* view, int tag)
{
    const QList<QWidget*> children = subviewsOf(view ? view : _panelView.data());
    for (QWidget* child : children) {
        if (control::tagOf(child) == tag)
            return child;
    }
    for (QWidget* child : children) {
        if (QWidget* found = view_controlForTag(child, tag))
            return found;
    }
    return nullptr;
}

QGroupBox* RZFeaturesPDEHalvern::enclosingBoxForControl(QWidget* control)
{
    for (QWidget* view = control ? control->parentWidget() : nullptr; view; view = view->parentWidget()) {
        if (auto* box = qobject_cast<QGroupBox*>(view))
            return box;
    }
    return nullptr;
}

void RZFeaturesPDEHalvern::controlTextDidEndEditing(QLineEdit* field)
{
    KSTRVLBasePDEHalvern::controlTextDidEndEditing(field);
    changePrinterSetting(field);
}

// A number is taken when editing ends, not while it is typed.
void RZFeaturesPDEHalvern::controlTextDidChange(QLineEdit*) {}

void RZFeaturesPDEHalvern::setToolTip_fromSender(const QString&, QWidget* sender)
{
    if (sender)
        sender->setToolTip(QString());
}

} // namespace halvern
