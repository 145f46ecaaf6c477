// SPDX-License-Identifier: MIT
#include "platform/toolkit/control.h"

#include "platform/foundation/numbers.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/plain_text.h"
#include "platform/toolkit/stepper.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStandardItemModel>

#include <memory>

namespace halvern::control {

namespace {

constexpr char kTag[] = "tag";
constexpr int kItemTagRole = Qt::UserRole + 1;
constexpr int kItemTitleRole = kItemTagRole + 1;

QStandardItem* itemAt(const QComboBox* popup, int index)
{
    const auto* model = popup ? qobject_cast<const QStandardItemModel*>(popup->model()) : nullptr;
    return model ? model->item(index) : nullptr;
}

// Where the caret goes when `before` stood in front of it and the field now holds `text`. In a number it
// stays behind the digits that were typed, whatever zeros the rewriting has put before or behind them.
int caretIn(const QString& text, QString before)
{
    const auto column = int(qMin(before.size(), text.size()));
    bool isNumber = false;
    text.toDouble(&isNumber);
    if (!isNumber)
        return column;
    const qsizetype point = before.indexOf(QLatin1Char('.'));
    const qsizetype textPoint = text.indexOf(QLatin1Char('.'));
    const qsizetype end = textPoint < 0 ? text.size() : textPoint;
    if (point >= 0)
        return int(qMin(end + before.size() - point, text.size()));
    static const QRegularExpression insignificant(QStringLiteral("^[^1-9]+"));
    const qsizetype digits = before.remove(insignificant).size();
    // Behind a zero that stands where nothing was typed yet.
    if (digits == 0 && !text.startsWith(QLatin1Char('0')))
        return column;
    const qsizetype start = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    return int(qMin(start + qMax<qsizetype>(digits, 1), end));
}

// The text stays put under the caret when a field is rewritten while somebody types in it.
void rewriteField(QLineEdit* field, const QString& text)
{
    if (field->text() == text)
        return;
    const QString before = field->text().left(field->cursorPosition());
    field->setText(text); // plain: a field holds a value
    field->setCursorPosition(caretIn(text, before));
}

} // namespace

int tagOf(const QWidget* widget)
{
    return widget ? widget->property(kTag).toInt() : 0;
}

bool isControl(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QLabel*>(widget) ||
           qobject_cast<const Matrix*>(widget) || qobject_cast<const DecimalSlider*>(widget) ||
           qobject_cast<const Stepper*>(widget);
}

QLineEdit* asTextField(QWidget* widget)
{
    return qobject_cast<QLineEdit*>(widget);
}

QAbstractButton* asButton(QWidget* widget)
{
    return qobject_cast<QAbstractButton*>(widget);
}

std::optional<double> maxValue(const QWidget* widget)
{
    if (const auto* slider = qobject_cast<const DecimalSlider*>(widget))
        return slider->maximumValue();
    if (const auto* stepper = qobject_cast<const Stepper*>(widget))
        return stepper->maximumValue();
    return std::nullopt;
}

std::optional<double> minValue(const QWidget* widget)
{
    if (const auto* slider = qobject_cast<const DecimalSlider*>(widget))
        return slider->minimumValue();
    if (const auto* stepper = qobject_cast<const Stepper*>(widget))
        return stepper->minimumValue();
    return std::nullopt;
}

std::optional<double> floatValue(const QWidget* widget)
{
    if (const auto* slider = qobject_cast<const DecimalSlider*>(widget))
        return slider->realValue();
    if (const auto* stepper = qobject_cast<const Stepper*>(widget))
        return stepper->realValue();
    if (const auto text = stringValue(widget))
        return leadingDouble(*text);
    return std::nullopt;
}

std::optional<int> intValue(const QWidget* widget)
{
    if (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QLabel*>(widget))
        return leadingInteger(*stringValue(widget));
    const std::optional<double> value = floatValue(widget);
    return value ? std::optional<int>(truncatedToInt(*value)) : std::nullopt;
}

bool answersSetIntValue(const QWidget* widget)
{
    return qobject_cast<const DecimalSlider*>(widget) || qobject_cast<const Stepper*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QLabel*>(widget);
}

void setIntValue(QWidget* widget, int value)
{
    if (answersSetIntValue(widget))
        setStringValue(widget, QString::number(value));
}

std::optional<QString> stringValue(const QWidget* widget)
{
    if (const auto* field = qobject_cast<const QLineEdit*>(widget))
        return field->text();
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (const auto* slider = qobject_cast<const DecimalSlider*>(widget))
        return shortestDouble(slider->realValue());
    if (const auto* stepper = qobject_cast<const Stepper*>(widget))
        return shortestDouble(stepper->realValue());
    if (qobject_cast<const QAbstractButton*>(widget))
        return QString::number(state(widget));
    if (const auto* popup = qobject_cast<const QComboBox*>(widget))
        return popup->currentText();
    return std::nullopt;
}

bool setStringValue(QWidget* widget, const QString& text)
{
    if (auto* field = qobject_cast<QLineEdit*>(widget))
        rewriteField(field, text);
    else if (auto* label = qobject_cast<QLabel*>(widget))
        setPlainText(label, text);
    else if (auto* slider = qobject_cast<DecimalSlider*>(widget))
        slider->setRealValue(leadingDouble(text));
    else if (auto* stepper = qobject_cast<Stepper*>(widget))
        stepper->setRealValue(leadingDouble(text));
    else
        return false;
    return true;
}

signed char state(const QWidget* widget)
{
    if (const auto* box = qobject_cast<const QCheckBox*>(widget);
        box && box->checkState() == Qt::PartiallyChecked)
        return -1;
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && button->isChecked() ? 1 : 0;
}

void setEnabledWithCaptions(QWidget* widget, bool enabled)
{
    if (!widget)
        return;
    widget->setEnabled(enabled);
    if (!widget->parentWidget())
        return;
    const auto labels = widget->parentWidget()->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QLabel* label : labels) {
        if (label->buddy() == widget)
            label->setEnabled(enabled);
    }
}

std::optional<QString> title(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(widget))
        return box->title();
    return std::nullopt;
}

void setTitle(QWidget* widget, const QString& title)
{
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->setText(displayText(title)); // plain: buttons know no markup
    else if (auto* box = qobject_cast<QGroupBox*>(widget))
        box->setTitle(displayText(title));
}

int indexOfItemWithRepresentedObject(const QComboBox* popup, const QVariant& value)
{
    for (int i = 0; popup && i < popup->count(); ++i) {
        const QVariant data = popup->itemData(i);
        // QVariant holds 3000 and "3000" to be equal.
        if (data.typeId() == value.typeId() && data == value)
            return i;
    }
    return -1;
}

QVariant selectedRepresentedObject(const QComboBox* popup)
{
    return popup && popup->currentIndex() >= 0 ? popup->currentData() : QVariant();
}

bool isItemEnabled(const QComboBox* popup, int index)
{
    const QStandardItem* item = itemAt(popup, index);
    return item && item->isEnabled();
}

void setItemEnabled(QComboBox* popup, int index, bool enabled)
{
    if (QStandardItem* item = itemAt(popup, index))
        item->setEnabled(enabled);
}

int itemTag(const QComboBox* popup, int index)
{
    const QStandardItem* item = itemAt(popup, index);
    return item ? item->data(kItemTagRole).toInt() : 0;
}

void setItemTag(QComboBox* popup, int index, int tag)
{
    if (QStandardItem* item = itemAt(popup, index))
        item->setData(tag, kItemTagRole);
}

QString itemTitle(const QComboBox* popup, int index)
{
    const QVariant given = popup ? popup->itemData(index, kItemTitleRole) : QVariant();
    return given.isValid() || !popup ? given.toString() : popup->itemText(index);
}

void addItem(QComboBox* popup, const QString& title, const QVariant& representedObject)
{
    popup->addItem(itemText(title), representedObject);
    popup->setItemData(popup->count() - 1, title, kItemTitleRole);
}

void setItems(QComboBox* popup, const QList<MenuItem>& items)
{
    auto* model = popup ? qobject_cast<QStandardItemModel*>(popup->model()) : nullptr;
    if (!model)
        return;
    popup->clear();
    QList<QStandardItem*> rows;
    rows.reserve(items.size());
    for (const MenuItem& item : items) {
        auto row = std::make_unique<QStandardItem>(itemText(item.title));
        row->setData(item.title, kItemTitleRole);
        row->setData(item.representedObject, Qt::UserRole);
        row->setData(item.tag, kItemTagRole);
        rows.append(row.release());
    }
    model->invisibleRootItem()->appendRows(rows);
    popup->setCurrentIndex(rows.isEmpty() ? -1 : 0);
}

} // namespace halvern::control
