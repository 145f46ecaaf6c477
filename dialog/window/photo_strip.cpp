// SPDX-License-Identifier: MIT
#include "dialog/window/photo_strip.h"

#include "dialog/preview/thumbnails.h"
#include "dialog/session/dialog_session.h"
#include "dialog/window/photo_list.h"
#include "dialog/window/photo_list_model.h"
#include "platform/toolkit/plain_text.h"

#include <QAction>
#include <QInputDialog>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace halvern {

PhotoStrip::PhotoStrip(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      model_(new PhotoListModel(session, this)),
      thumbnails_(new Thumbnails(!session.areFilesBorrowed(), this)),
      list_(new PhotoList(*model_, *thumbnails_, this))
{
    setObjectName(QStringLiteral("photoStrip"));
    list_->setObjectName(QStringLiteral("photoList"));
    setPlainName(list_, tr("Photos"));
    list_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(list_);
    makeActions();
    connect(list_, &PhotoList::dropped, this, &PhotoStrip::moveTo);
    connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (!isRefreshing_ && current.isValid())
                    Q_EMIT photoChosen(size_t(current.row()));
            });
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PhotoStrip::updateActions);
    refresh();
}

QWidget* PhotoStrip::list() const
{
    return list_;
}

QWidget* PhotoStrip::dropArea() const
{
    return list_->viewport();
}

QAction* PhotoStrip::add(const QString& name, const QString& text, const QList<QKeySequence>& keys,
                         std::function<void()> act)
{
    auto* action = new QAction(text, list_);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, std::move(act));
    list_->addAction(action);
    forSome_.append(action);
    return action;
}

void PhotoStrip::addSeparator()
{
    auto* separator = new QAction(list_);
    separator->setSeparator(true);
    list_->addAction(separator);
}

void PhotoStrip::makeActions()
{
    add(QStringLiteral("photoCrop"), tr("Crop..."), {Qt::Key_Return, Qt::Key_Enter},
        [this] { Q_EMIT cropAsked(); });
    add(QStringLiteral("photoCropAll"), tr("Same Crop for All"), {}, [this] {
        if (list_->currentIndex().isValid())
            session_.cropAllAs(size_t(list_->currentIndex().row()));
    });
    addSeparator();
    add(QStringLiteral("photoMore"), tr("One More Copy"), {Qt::Key_Plus, Qt::Key_Equal},
        [this] { addCopies(1); });
    add(QStringLiteral("photoFewer"), tr("One Copy Less"), {Qt::Key_Minus}, [this] { addCopies(-1); });
    add(QStringLiteral("photoCopiesAsked"), tr("Copies..."), {}, [this] { askCopies(); });
    addSeparator();
    add(QStringLiteral("photoPrinted"), tr("Print, or Not"), {Qt::Key_Space}, [this] { togglePrinted(); });
    add(QStringLiteral("photoOnly"), tr("Print Only These"), {},
        [this] { session_.choosePhotos(list_->selectedRows()); });
    printAll_ = add(QStringLiteral("photoAll"), tr("Print All Photos"), {}, [this] {
        std::vector<size_t> all(session_.photos().size());
        std::iota(all.begin(), all.end(), size_t(0));
        session_.choosePhotos(all);
    });
    forSome_.removeAll(printAll_);
    addSeparator();
    makeMoveActions();
    addSeparator();
    add(QStringLiteral("photoRemove"), tr("Take Out"), {QKeySequence::Delete},
        [this] { session_.removePhotos(list_->selectedRows()); });
}

void PhotoStrip::makeMoveActions()
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QKeySequence left(Qt::ALT | Qt::Key_Left);
    const QKeySequence right(Qt::ALT | Qt::Key_Right);
    add(QStringLiteral("photoEarlier"), tr("Move Earlier"), {isMirrored ? right : left},
        [this] { moveBy(-1); });
    add(QStringLiteral("photoLater"), tr("Move Later"), {isMirrored ? left : right}, [this] { moveBy(1); });
    add(QStringLiteral("photoFirst"), tr("Move to the Start"), {Qt::ALT | Qt::Key_Home},
        [this] { moveTo(0); });
    add(QStringLiteral("photoLast"), tr("Move to the End"), {Qt::ALT | Qt::Key_End},
        [this] { moveTo(session_.photos().size()); });
}

void PhotoStrip::refresh()
{
    isRefreshing_ = true;
    const quint64 before = model_->idAt(list_->currentIndex().row());
    model_->refresh();
    isRefreshing_ = false;
    updateActions();
    // The one that was shown is gone.
    const int now = list_->currentIndex().row();
    if (before != 0 && now >= 0 && model_->idAt(now) != before) {
        list_->selectionModel()->select(list_->currentIndex(), QItemSelectionModel::ClearAndSelect);
        Q_EMIT photoChosen(size_t(now));
    }
}

void PhotoStrip::setCurrent(size_t place)
{
    const QModelIndex index = model_->index(int(place));
    if (index == list_->currentIndex())
        return;
    isRefreshing_ = true;
    const bool isSelected = list_->selectionModel()->isSelected(index);
    list_->selectionModel()->setCurrentIndex(index, isSelected ? QItemSelectionModel::NoUpdate
                                                               : QItemSelectionModel::ClearAndSelect);
    isRefreshing_ = false;
    list_->scrollTo(index);
}

QString PhotoStrip::inWords() const
{
    const size_t selected = list_->selectedRows().size();
    const int count = model_->rowCount();
    return selected > 1 ? tr("%1 of %2 selected").arg(selected).arg(count) : tr("%1 photos").arg(count);
}

// A block that is not in one piece becomes one.
void PhotoStrip::moveBy(int by)
{
    const std::vector<size_t> rows = list_->selectedRows();
    if (rows.empty())
        return;
    const size_t count = session_.photos().size();
    if (by < 0)
        moveTo(rows.front() == 0 ? 0 : rows.front() - 1);
    else
        moveTo(std::min(rows.back() + 2, count));
}

void PhotoStrip::moveTo(size_t before)
{
    session_.movePhotos(list_->selectedRows(), before);
    list_->scrollTo(list_->currentIndex());
}

void PhotoStrip::addCopies(int more)
{
    const std::vector<size_t> rows = list_->selectedRows();
    if (rows.empty())
        return;
    const int now = session_.photos()[rows.front()].placement.copies;
    session_.setPhotoCopies(rows, std::clamp(now + more, 1, kMostPhotoCopies));
}

void PhotoStrip::askCopies()
{
    const std::vector<size_t> rows = list_->selectedRows();
    if (rows.empty())
        return;
    auto* dialog = new QInputDialog(this);
    dialog->setObjectName(QStringLiteral("askCopies"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Copies"));
    dialog->setLabelText(rows.size() == 1 ? tr("Copies of this photo:")
                                          : tr("Copies of each of the %1 photos:").arg(rows.size()));
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setIntRange(1, kMostPhotoCopies);
    dialog->setIntValue(session_.photos()[rows.front()].placement.copies);
    connect(dialog, &QInputDialog::intValueSelected, this,
            [this](int copies) { session_.setPhotoCopies(list_->selectedRows(), copies); });
    dialog->open();
}

// All of them as the first one is not.
void PhotoStrip::togglePrinted()
{
    const std::vector<size_t> rows = list_->selectedRows();
    std::vector<size_t> printed = session_.chosenPages().pages;
    std::ranges::sort(printed);
    if (rows.empty())
        return;
    const bool isPrinted = std::ranges::binary_search(printed, rows.front());
    std::erase_if(printed, [&](size_t place) { return std::ranges::binary_search(rows, place); });
    if (!isPrinted)
        printed.insert(printed.end(), rows.begin(), rows.end());
    session_.choosePhotos(printed);
}

void PhotoStrip::updateActions()
{
    if (isRefreshing_)
        return;
    const bool hasSome = list_->selectionModel()->hasSelection();
    for (QAction* action : std::as_const(forSome_))
        action->setEnabled(hasSome);
    printAll_->setEnabled(session_.chosenPages().pages.size() < session_.photos().size());
    Q_EMIT wordsChanged();
}

} // namespace halvern
