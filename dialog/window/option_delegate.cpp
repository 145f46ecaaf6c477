// SPDX-License-Identifier: MIT
#include "dialog/window/option_delegate.h"

#include "dialog/options/option_tree.h"
#include "dialog/window/choice_list.h"
#include "dialog/window/custom_field.h"
#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>

namespace halvern {

namespace {

constexpr int kGap = 2;

OptionTree::Row rowOf(const QModelIndex& index)
{
    return OptionTree::Row(index.data(OptionTree::rowRole).toInt());
}

bool isPopUp(const QModelIndex& index)
{
    const OptionTree::Row row = rowOf(index);
    return index.column() == OptionTree::valueColumn &&
           (row == OptionTree::Row::list || row == OptionTree::Row::custom);
}

QStyleOptionComboBox popUpOf(const QStyleOptionViewItem& item)
{
    QStyleOptionComboBox box;
    box.palette = item.palette;
    box.fontMetrics = item.fontMetrics;
    box.direction = item.direction;
    box.rect = item.rect.adjusted(kGap, kGap, -kGap, -kGap);
    box.state = item.state & (QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Active);
    if (item.state & QStyle::State_HasFocus)
        box.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return box;
}

} // namespace

OptionDelegate::OptionDelegate(DialogSession& session, QObject* parent)
    : QStyledItemDelegate(parent), session_(session)
{
}

void OptionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    if (!isPopUp(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
    QStyleOptionComboBox box = popUpOf(item);
    style->drawComplexControl(QStyle::CC_ComboBox, &box, painter, nullptr);
    const QRect room =
        style->subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxEditField, nullptr);
    box.currentText = item.fontMetrics.elidedText(item.text, Qt::ElideRight, room.width() - 2 * kGap);
    painter->save();
    painter->setFont(item.font);
    style->drawControl(QStyle::CE_ComboBoxLabel, &box, painter, nullptr);
    painter->restore();
}

// One for all rows: the view asks for the first one's only.
QSize OptionDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionComboBox box;
    box.fontMetrics = option.fontMetrics;
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    const QSize least(0, option.fontMetrics.height() + 2);
    const QSize wanted = style->sizeFromContents(QStyle::CT_ComboBox, &box, least, nullptr);
    return {QStyledItemDelegate::sizeHint(option, index).width(), wanted.height() + 2 * kGap};
}

QWidget* OptionDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                      const QModelIndex& index) const
{
    if (!isPopUp(index) || !session_.model())
        return nullptr;
    const QString key = index.data(OptionTree::keyRole).toString();
    QWidget* editor =
        rowOf(index) == OptionTree::Row::custom ? makeCustom(key, parent) : makeList(key, parent);
    editor->setObjectName(QStringLiteral("option.") + key);
    return editor;
}

QWidget* OptionDelegate::makeList(const QString& key, QWidget* parent) const
{
    const OptionItem option = session_.model()->option(key);
    auto* box = new QComboBox(parent);
    box->setFocusPolicy(Qt::StrongFocus);
    box->setMaxVisibleItems(16);
    setPlainName(box, option.text);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    (new ChoiceList(box))->setChoices(option.choices);
    showClashes(box, key);
    connect(box, &QComboBox::activated, this,
            [this, box] { const_cast<OptionDelegate*>(this)->finish(box); });
    return box;
}

QWidget* OptionDelegate::makeCustom(const QString& key, QWidget* parent) const
{
    auto* field = new CustomField(session_.model()->option(key), session_.model()->customValue(key), parent);
    showClashes(field->box(), key);
    connect(field, &CustomField::finished, this,
            [this, field] { const_cast<OptionDelegate*>(this)->finish(field); });
    return field;
}

void OptionDelegate::showClashes(QComboBox* box, const QString& key) const
{
    static_cast<ChoiceList*>(box->model())
        ->setClashes(session_.model()->clashes(key),
                     [this, key](const QString& choice) { return alsoChanges(key, choice); });
}

QString OptionDelegate::alsoChanges(const QString& key, const QString& choice) const
{
    QStringList texts;
    for (const SideChange& change : session_.alsoChanges(key, choice))
        texts.append(tr("%1 to %2").arg(change.optionText, change.choiceText));
    return texts.isEmpty() ? QString() : tr("also sets %1").arg(listText(texts));
}

void OptionDelegate::finish(QWidget* editor)
{
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

void OptionDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                          const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect.adjusted(kGap, kGap, -kGap, -kGap));
}

void OptionDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString value = index.data(OptionTree::keywordRole).toString();
    if (auto* field = qobject_cast<CustomField*>(editor))
        field->setValue(value);
    else if (auto* box = qobject_cast<QComboBox*>(editor)) {
        if (value.isEmpty())
            box->setPlaceholderText(halvern::displayText(index.data().toString()));
        static_cast<ChoiceList*>(box->model())->select(value);
    }
}

void OptionDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (auto* field = qobject_cast<CustomField*>(editor))
        model->setData(index, field->value());
    else if (auto* box = qobject_cast<QComboBox*>(editor); box && box->currentIndex() >= 0)
        model->setData(index, box->currentData());
}

// The whole cell is the box, as the text beside a box of its own would be.
bool OptionDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                 const QStyleOptionViewItem& /*option*/, const QModelIndex& index)
{
    const Qt::ItemFlags wanted = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if ((index.flags() & wanted) != wanted)
        return false;
    const bool isClick = event->type() == QEvent::MouseButtonRelease &&
                         static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton;
    const int key = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent*>(event)->key() : 0;
    if (!isClick && key != Qt::Key_Space && key != Qt::Key_Select)
        return false;
    const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    return model->setData(index, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

} // namespace halvern
