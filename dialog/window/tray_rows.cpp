// SPDX-License-Identifier: MIT
#include "dialog/window/tray_rows.h"

#include "platform/foundation/list_text.h"
#include "platform/toolkit/plain_text.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

namespace halvern {

namespace {

constexpr int kLongestTray = 90;

} // namespace

TrayRows::TrayRows(DialogSession& session, QWidget* parent)
    : QWidget(parent), session_(session), group_(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("loadedTrays"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 2, 0, 0);
    column->setSpacing(6);
    connect(group_, &QButtonGroup::idClicked, this, [this](int tray) {
        session_.useTray(tray);
        refresh(); // a refused choice goes back
    });
}

void TrayRows::refresh()
{
    const QList<TrayPaper> trays = session_.trays();
    QStringList texts;
    for (const TrayPaper& paper : trays) {
        const PpdModel& model = *session_.model();
        QStringList parts{paperInWords(model, paper), paperTypeText(model, paper)};
        parts.removeAll(QString());
        texts.append(tr("%1: %2").arg(isolated(trayText(model, paper)), isolated(listText(parts))));
    }
    setTexts(texts);
    const int used = session_.trayInUse();
    // Of an exclusive group one is always on, but the paper may be in none of them.
    group_->setExclusive(false);
    for (QAbstractButton* button : group_->buttons())
        button->setChecked(group_->id(button) == used);
    group_->setExclusive(true);
}

// The buttons stay where they can: one of them may have the focus.
void TrayRows::setTexts(const QStringList& texts)
{
    if (texts == texts_)
        return;
    while (group_->buttons().size() > texts.size()) {
        QAbstractButton* last = group_->button(int(group_->buttons().size()) - 1);
        group_->removeButton(last);
        delete last;
    }
    for (int i = int(group_->buttons().size()); i < texts.size(); ++i) {
        auto* button = new QRadioButton(this);
        button->setObjectName(QStringLiteral("tray%1").arg(i));
        group_->addButton(button, i);
        layout()->addWidget(button);
    }
    for (int i = 0; i < texts.size(); ++i)
        group_->button(i)->setText(captionText(texts[i], kLongestTray)); // plain: a button, and no shortcut
    texts_ = texts;
}

} // namespace halvern
