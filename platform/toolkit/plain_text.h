// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/display_text.h"
#include "platform/foundation/export.h"

class QLabel;
class QWidget;

namespace HALVERN_EXPORT halvern {

/// The way of every text that is not ours alone onto a widget. A label or a tool tip of Qt's own guesses:
/// what looks like markup is rendered, and an image in it is read from any file. These show the characters as
/// they are, cleaned by displayText(). Main thread only.
void setPlainText(QLabel* label, const QString& text, int longest = kLongestText);

void setPlainToolTip(QWidget* widget, const QString& text);

/// A tool tip's text where only a value is asked for, as by an item's Qt::ToolTipRole.
QString plainToolTip(const QString& text);

void setPlainTitle(QWidget* window, const QString& text);

/// What assistive technology calls the widget, and says about it.
void setPlainName(QWidget* widget, const QString& text);
void setPlainDescription(QWidget* widget, const QString& text);

/// An item's text, or another that stands alone: in a window that is written from right to left it keeps its
/// own direction.
QString itemText(const QString& text);

/// A text for a button, a box or a label with a buddy, where "&" would make a shortcut.
QString captionText(const QString& text, int longest = kLongestText);

/// A text as part of markup that we build, and the way of such markup onto a label: every word in it that is
/// not ours went through markupText().
QString markupText(const QString& text);
void setMarkup(QLabel* label, const QString& markup);

} // namespace halvern
