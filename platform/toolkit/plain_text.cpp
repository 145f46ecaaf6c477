// SPDX-License-Identifier: MIT
#include "platform/toolkit/plain_text.h"

#include <QGuiApplication>
#include <QLabel>
#include <QStyle>

namespace halvern {

namespace {

// A label goes by the direction of its text: in a window that is written from right to left, a printer's name
// would stand at the far end of its line.
void alignWithWindow(QLabel* label)
{
    if (label->layoutDirection() == Qt::RightToLeft)
        label->setAlignment(QStyle::visualAlignment(Qt::RightToLeft, label->alignment()));
}

constexpr char16_t kRightToLeftMark = 0x200f;
constexpr char16_t kIsolate = 0x2068;

// A label whose text can be selected goes by the first letter of all, also by one in a part that is kept
// apart.
QString inItsDirection(const QString& shown)
{
    return shown.isRightToLeft() && shown.contains(QChar(kIsolate)) ? QChar(kRightToLeftMark) + shown : shown;
}

} // namespace

void setPlainText(QLabel* label, const QString& text, int longest)
{
    alignWithWindow(label);
    label->setTextFormat(Qt::PlainText);
    label->setText(inItsDirection(displayText(text, longest)));
}

QString plainToolTip(const QString& text)
{
    const QString shown = displayText(text);
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

void setPlainToolTip(QWidget* widget, const QString& text)
{
    widget->setToolTip(plainToolTip(text));
}

void setPlainTitle(QWidget* window, const QString& text)
{
    // Qt puts a mark for unsaved changes in the place of "[*]".
    window->setWindowTitle(displayText(text).replace(QLatin1StringView("[*]"), QLatin1StringView("[*][*]")));
}

void setPlainName(QWidget* widget, const QString& text)
{
    widget->setAccessibleName(displayText(text));
}

void setPlainDescription(QWidget* widget, const QString& text)
{
    widget->setAccessibleDescription(displayText(text));
}

QString itemText(const QString& text)
{
    return QGuiApplication::isRightToLeft() ? isolated(text) : displayText(text);
}

QString captionText(const QString& text, int longest)
{
    return displayText(text, longest).replace(QLatin1Char('&'), QLatin1StringView("&&"));
}

QString markupText(const QString& text)
{
    return itemText(text).toHtmlEscaped();
}

void setMarkup(QLabel* label, const QString& markup)
{
    alignWithWindow(label);
    label->setTextFormat(Qt::RichText);
    label->setText(label->isRightToLeft() ? QStringLiteral("<div dir='rtl'>%1</div>").arg(markup) : markup);
}

} // namespace halvern
