// SPDX-License-Identifier: MIT
// Where things stand: the window's size, the place of preview and messages, the order of the Tab key.
#include "dialog/window/print_dialog.h"

#include "dialog/preview/preview_widget.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/output_menu.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/preset_bar.h"
#include "dialog/window/search_box.h"
#include "platform/foundation/user_defaults.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QSpinBox>
#include <QToolButton>

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
    resize((last.isValid() ? last : kUsualSize).expandedTo(minimumSize()).boundedTo(available));
}

void PrintDialog::rememberSize() const
{
    UserDefaults& defaults = UserDefaults::standardUserDefaults();
    QVariantMap values = defaults.persistentDomain(UserDefaults::globalDomain());
    // Of a maximized window, what it comes back to.
    const QSize size = isMaximized() ? normalGeometry().size() : this->size();
    if (size.isEmpty() || values.value(kSizeKey).toSize() == size)
        return;
    values.insert(kSizeKey, size);
    defaults.setPersistentDomain(values, UserDefaults::globalDomain());
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
        orderTabs();
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
void PrintDialog::orderTabs()
{
    QList<QWidget*> order{printer_};
    order += presets_->tabOrder();
    order += deck_->tabOrder();
    order += {copies_, output_, cancel_, print_};
    if (previewIsBeside_)
        order += {preview_, preview_->zoomButton(), back_, forward_};
    order += message_->tabOrder();
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

} // namespace halvern
