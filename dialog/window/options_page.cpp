// SPDX-License-Identifier: MIT
#include "dialog/window/options_page.h"

#include "dialog/options/option_tree.h"
#include "dialog/window/custom_field.h"
#include "dialog/window/option_delegate.h"
#include "platform/foundation/user_defaults.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSet>
#include <QTreeView>
#include <QVBoxLayout>

namespace halvern {

namespace {

const QString kFoldedKey = QStringLiteral("FoldedOptionGroups");
// Of how many groups it is remembered, whatever printers there were.
constexpr qsizetype kMostFolded = 100;
constexpr int kPutBackWidth = 28;

QStringList foldedGroups()
{
    return UserDefaults::standardUserDefaults().objectForKey(kFoldedKey).toStringList();
}

} // namespace

QStringList optionsWithoutPanel(DialogSession& session)
{
    QSet<QString> owned{QStringLiteral("PageSize"), QStringLiteral("Collate")};
    for (const std::shared_ptr<Panel>& panel : session.panels()) {
        for (const QString& key : panel->supportedPPDOptionKeys())
            owned.insert(key);
    }
    const PpdModel* model = session.model();
    QStringList keys = model ? model->keys() : QStringList();
    keys.removeIf([&](const QString& key) {
        return owned.contains(key) || (!model->isInstallable(key) && model->choiceCount(key) < 2 &&
                                       model->customValue(key).kind == CustomValue::Kind::none);
    });
    return keys;
}

OptionsPage::OptionsPage(DialogSession& session, QWidget* parent)
    : QWidget(parent), session_(session), tree_(new OptionTree(this))
{
    setObjectName(QStringLiteral("optionsPage"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(8);
    column->addWidget(makeHead());
    makeView();
    column->addWidget(view_, 1);
    connect(tree_, &OptionTree::chosen, this, &OptionsPage::choose);
    connect(tree_, &OptionTree::modelReset, this, &OptionsPage::layOutGroups);
}

QWidget* OptionsPage::makeHead()
{
    auto* head = new QWidget(this);
    changedOnly_ = new QCheckBox(tr("Show changed only"), head);
    changedOnly_->setObjectName(QStringLiteral("changedOnly"));
    count_ = new QLabel(head);
    count_->setObjectName(QStringLiteral("changedCount"));
    putBackAll_ = new QPushButton(tr("Reset All"), head);
    putBackAll_->setObjectName(QStringLiteral("resetAll"));
    putBackAll_->setAutoDefault(false);
    putBackAll_->setToolTip(tr("Puts the options of this page back to the printer's defaults"));
    auto* row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(changedOnly_);
    row->addStretch();
    row->addWidget(count_);
    row->addSpacing(8);
    row->addWidget(putBackAll_);
    connect(changedOnly_, &QCheckBox::toggled, tree_, &OptionTree::showChangedOnly);
    connect(putBackAll_, &QPushButton::clicked, this, [this] { session_.putBack(tree_->keys()); });
    return head;
}

void OptionsPage::makeView()
{
    view_ = new QTreeView(this);
    view_->setObjectName(QStringLiteral("optionsView"));
    view_->setAccessibleName(tr("Options"));
    view_->setModel(tree_);
    view_->setItemDelegate(new OptionDelegate(session_, view_));
    view_->setHeaderHidden(true);
    view_->setUniformRowHeights(true);
    view_->setIndentation(12);
    view_->setFrameShape(QFrame::NoFrame);
    view_->viewport()->setAutoFillBackground(false);
    view_->setMouseTracking(true);
    view_->setEditTriggers(QAbstractItemView::EditKeyPressed);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->installEventFilter(this);
    QHeaderView* columns = view_->header();
    columns->setMinimumSectionSize(kPutBackWidth);
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(OptionTree::titleColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(OptionTree::valueColumn, QHeaderView::Stretch);
    columns->setSectionResizeMode(OptionTree::putBackColumn, QHeaderView::Fixed);
    columns->resizeSection(OptionTree::putBackColumn, kPutBackWidth);
    connect(view_, &QTreeView::clicked, this, &OptionsPage::click);
    connect(view_, &QTreeView::activated, this, &OptionsPage::edit);
    connect(view_, &QTreeView::customContextMenuRequested, this, &OptionsPage::showMenu);
    connect(view_, &QTreeView::collapsed, this, [this](const QModelIndex& at) { rememberFold(at, true); });
    connect(view_, &QTreeView::expanded, this, [this](const QModelIndex& at) { rememberFold(at, false); });
}

void OptionsPage::rebuild()
{
    tree_->setOptions(session_.model(), optionsWithoutPanel(session_));
    showCount();
}

void OptionsPage::refresh()
{
    if (!session_.model())
        return rebuild();
    tree_->refresh();
    showCount();
}

bool OptionsPage::isEmpty() const
{
    return tree_->keys().isEmpty();
}

void OptionsPage::showCount()
{
    const int changed = tree_->changedCount();
    setPlainText(count_, changed == 0 ? tr("Nothing changed") : tr("%1 changed").arg(changed));
    putBackAll_->setEnabled(changed > 0);
}

void OptionsPage::layOutGroups()
{
    const QScopedValueRollback<bool> isLayingOut(isLayingOut_, true);
    const QStringList folded = foldedGroups();
    for (int g = 0; g < tree_->rowCount(); ++g) {
        const QModelIndex group = tree_->index(g, OptionTree::titleColumn);
        view_->setFirstColumnSpanned(g, QModelIndex(), true);
        view_->setExpanded(group, changedOnly_->isChecked() || !folded.contains(group.data().toString()));
    }
}

void OptionsPage::rememberFold(const QModelIndex& group, bool isFolded)
{
    if (isLayingOut_ || group.parent().isValid() || changedOnly_->isChecked())
        return;
    QStringList folded = foldedGroups();
    folded.removeAll(group.data().toString());
    if (isFolded)
        folded.append(group.data().toString());
    UserDefaults::standardUserDefaults().changeGlobal([&](QVariantMap& values) {
        values.insert(kFoldedKey, folded.mid(std::max(qsizetype(0), folded.size() - kMostFolded)));
    });
}

void OptionsPage::choose(const QString& key, const QString& value)
{
    session_.changeOption(key, value);
    refresh(); // a refused choice goes back
}

void OptionsPage::click(const QModelIndex& index)
{
    if (index.data(OptionTree::rowRole).toInt() == int(OptionTree::Row::group))
        view_->setExpanded(index, !view_->isExpanded(index));
    else if (index.column() == OptionTree::putBackColumn)
        putBack(index);
    else if (index.column() == OptionTree::valueColumn)
        edit(index);
}

void OptionsPage::edit(const QModelIndex& index)
{
    const QModelIndex value = index.siblingAtColumn(OptionTree::valueColumn);
    if (!(value.flags() & Qt::ItemIsEditable))
        return;
    view_->setCurrentIndex(value);
    view_->edit(value);
    QWidget* const editor = view_->indexWidget(value);
    const auto* field = qobject_cast<CustomField*>(editor);
    if (field && field->isOther())
        return;
    if (auto* box = field ? field->box() : qobject_cast<QComboBox*>(editor))
        box->showPopup();
}

void OptionsPage::putBack(const QModelIndex& index)
{
    const QString key = index.data(OptionTree::keyRole).toString();
    const PpdModel* model = session_.model();
    if (model && model->changedKeys().contains(key))
        choose(key, model->defaultValue(key));
}

void OptionsPage::showMenu(const QPoint& at)
{
    const QModelIndex index = view_->indexAt(at);
    if (!index.data(OptionTree::changedRole).toBool())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(tr("Put Back to the Printer's Default")), &QAction::triggered, this,
            [this, place = QPersistentModelIndex(index)] { putBack(place); });
    menu->popup(view_->viewport()->mapToGlobal(at));
}

bool OptionsPage::reveal(const QString& key)
{
    if (!tree_->indexOf(key).isValid())
        changedOnly_->setChecked(false);
    const QModelIndex index = tree_->indexOf(key);
    if (!index.isValid())
        return false;
    view_->expand(index.parent());
    view_->setCurrentIndex(index.siblingAtColumn(OptionTree::valueColumn));
    view_->scrollTo(index, QAbstractItemView::PositionAtCenter);
    view_->setFocus(Qt::OtherFocusReason);
    return true;
}

bool OptionsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && !view_->currentIndex().isValid() && tree_->rowCount() > 0)
        view_->setCurrentIndex(tree_->index(0, 0));
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const QModelIndex index = view_->currentIndex();
    const int key = static_cast<const QKeyEvent*>(event)->key();
    const bool isGroup = index.data(OptionTree::rowRole).toInt() == int(OptionTree::Row::group);
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace) {
        putBack(index);
        return true;
    }
    if (key == Qt::Key_Space && index.isValid() && (isGroup || (index.flags() & Qt::ItemIsEditable))) {
        isGroup ? click(index) : edit(index);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace halvern
