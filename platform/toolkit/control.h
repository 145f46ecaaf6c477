// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <optional>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QWidget;

/// What a panel may ask of a control without knowing its class: each capability is asked, never assumed. A
/// null widget has none. Main thread only.
namespace HALVERN_EXPORT halvern {
namespace control {

/// The dynamic property "tag"; a widget without one has tag 0.
int tagOf(const QWidget* widget);

/// Whether the widget is a control: something with a value or an action of its own.
bool isControl(const QWidget* widget);

/// The widget as an editable text field; null if it is none.
QLineEdit* asTextField(QWidget* widget);

/// The widget as a check box or another button that has a state; null if it is none. A matrix is none.
QAbstractButton* asButton(QWidget* widget);

std::optional<double> maxValue(const QWidget* widget);
std::optional<double> minValue(const QWidget* widget);
std::optional<double> floatValue(const QWidget* widget);

/// The value cut to an integer; of a text, the integer that it starts with.
std::optional<int> intValue(const QWidget* widget);
bool answersSetIntValue(const QWidget* widget);
void setIntValue(QWidget* widget, int value);

/// The value as text: a field's text, a label's, a slider's number in its shortest form.
std::optional<QString> stringValue(const QWidget* widget);

/// Shows the text, or the number that it starts with; false if the widget takes no text. A field is only
/// touched if its text differs, and its cursor stays behind what was typed. Does not count as a user's
/// action.
bool setStringValue(QWidget* widget, const QString& text);

/// A button's state as a signed 8-bit value: 1 on, 0 off, -1 mixed; 0 for anything else.
signed char state(const QWidget* widget);

/// Enables or disables a control and, with it, the labels beside it that are its captions (its buddies).
void setEnabledWithCaptions(QWidget* widget, bool enabled);

/// The title of a button or a box; nothing for other widgets.
std::optional<QString> title(const QWidget* widget);
void setTitle(QWidget* widget, const QString& title);

/// Pop-up buttons. An item's represented object is its item data; only equal strings are equal.
/// The first item with the value, -1 if there is none.
int indexOfItemWithRepresentedObject(const QComboBox* popup, const QVariant& value);

/// The selected item's represented object; invalid if nothing is selected.
QVariant selectedRepresentedObject(const QComboBox* popup);

/// Item enabling and item tags, kept in the item's model. An index out of range is no item: disabled, tag 0.
bool isItemEnabled(const QComboBox* popup, int index);
void setItemEnabled(QComboBox* popup, int index, bool enabled);
int itemTag(const QComboBox* popup, int index);
void setItemTag(QComboBox* popup, int index, int tag);

/// The title that an item was given. What it shows is that title made fit for a screen (itemText()), which
/// may differ from it: no rule compares with what is shown.
QString itemTitle(const QComboBox* popup, int index);

/// Appends an item.
void addItem(QComboBox* popup, const QString& title, const QVariant& representedObject);

struct MenuItem {
    QString title;
    QVariant representedObject;
    int tag = 0;
};

/// Replaces a pop-up button's items, all enabled, and selects the first; in one step, so that the time grows
/// with their number only.
void setItems(QComboBox* popup, const QList<MenuItem>& items);

} // namespace control
} // namespace halvern
