// SPDX-License-Identifier: MIT
// Where things stand: the window's size, the place of preview and messages, the order of the Tab key.
#include "dialog/window/print_dialog.h"

#include "dialog/window/jobs_window.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/output_menu.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/preset_bar.h"
#include "dialog/window/preview_side.h"
#include "dialog/window/run_bar.h"
#include "dialog/window/search_box.h"
#include "platform/foundation/user_defaults.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>

#include <algorithm>

namespace halvern {

namespace {

const QString kSizeKey = QStringLiteral("PrintDialogSize");
constexpr QSize kUsualSize(1240, 780);
constexpr QSize kLeastSize(640, 480);
// What a window manager's frame takes from the screen, before it is there to be measured.
constexpr QSize kFrame(8, 40);
// A narrower preview shows less than the page of its own that takes its place.
constexpr int kLeastPreviewWidth = 240;

} // namespace

void PrintDialog::takeOpeningSize()
{
    const QSize available = (screen()->availableSize() - kFrame).expandedTo({320, 240});
    setMinimumSize(kLeastSize.boundedTo(available));
    const QSize last = UserDefaults::standardUserDefaults().objectForKey(kSizeKey).toSize();
    wantedSize_ = last.isValid() ? last : kUsualSize;
    openingSize_ = wantedSize_.expandedTo(minimumSize()).boundedTo(available);
    resize(openingSize_);
}

void PrintDialog::rememberSize() const
{
    // Of a maximized window, what it comes back to.
    QSize size = isMaximized() ? normalGeometry().size() : this->size();
    // What a small screen has cut is nobody's wish for the next one.
    if (size.width() == openingSize_.width())
        size.setWidth(wantedSize_.width());
    if (size.height() == openingSize_.height())
        size.setHeight(wantedSize_.height());
    if (!size.isEmpty())
        UserDefaults::standardUserDefaults().changeGlobal(
            [size](QVariantMap& values) { values.insert(kSizeKey, size); });
}

// The preview gives way first: beside the controls it takes what they leave, and where that is too little it
// is one of the pages, and the controls have the whole width.
void PrintDialog::arrange()
{
    const QMargins margins = controlSide_->layout()->contentsMargins();
    const int wanted = deck_->wantedWidth() + margins.left() + margins.right();
    const bool isBeside = width() - wanted >= kLeastPreviewWidth;
    controlSide_->setMaximumWidth(isBeside ? wanted : QWIDGETSIZE_MAX);
    controlSide_->setMinimumWidth(isBeside ? wanted : 0);
    if (isBeside != previewIsBeside_) {
        previewIsBeside_ = isBeside;
        if (isBeside) {
            deck_->setPreviewPage(nullptr);
            sides_->insertWidget(0, previewSide_, 1);
            previewSide_->show();
        } else {
            sides_->removeWidget(previewSide_);
            deck_->setPreviewPage(previewSide_);
        }
        messageRoom_->setVisible(!isBeside);
        message_->setCompact(!isBeside);
    }
    placeMessage();
}

// Over the preview, or in a room of its own: a message never moves what the user is about to click.
void PrintDialog::placeMessage()
{
    if (!message_->isVisibleTo(this))
        return;
    const QWidget* const place = previewIsBeside_ ? previewSide_ : messageRoom_;
    QRect room(place->mapTo(this, QPoint()), place->size());
    if (previewIsBeside_)
        room.setHeight(std::min(message_->heightForWidth(room.width()), room.height() / 2));
    message_->setGeometry(room);
    message_->raise();
}

bool PrintDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        placeMessage();
    return QDialog::eventFilter(watched, event);
}

void PrintDialog::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    arrange();
}

// The controls come first, from the top to the bottom, although the preview stands first.
QList<QWidget*> PrintDialog::tabOrder() const
{
    QList<QWidget*> order{printer_, jobs_};
    order += presets_->tabOrder();
    order += deck_->tabOrder();
    order += {runBar_->button(), copies_, collate_, output_, cancelJob_, cancel_, print_};
    if (previewIsBeside_)
        order += previewSide_->tabOrder();
    order += message_->tabOrder();
    order.removeIf([this](const QWidget* stop) {
        const bool isStop = stop->isVisible() && stop->isEnabled() && (stop->focusPolicy() & Qt::TabFocus);
        return !isStop && stop != focusWidget();
    });
    return order;
}

// Asked for each time: panels bring pages with orders of their own, and what takes the focus changes.
bool PrintDialog::focusNextPrevChild(bool next)
{
    const QList<QWidget*> order = tabOrder();
    if (order.isEmpty())
        return false;
    const qsizetype here = order.indexOf(focusWidget());
    const qsizetype step = next ? 1 : here < 0 ? order.size() : order.size() - 1;
    QWidget* const stop = order[(here + step) % order.size()];
    stop->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    for (QWidget* outer = stop->parentWidget(); outer; outer = outer->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(outer))
            area->ensureWidgetVisible(stop);
    }
    return true;
}

} // namespace halvern
