// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeView;

namespace halvern {

class OptionTree;

/// The PPD's options that no panel offers: one list of folding groups, each option with its value beside it.
/// What differs from the printer's defaults is marked and can be put back, one by one or all together. Main
/// thread only.
class OptionsPage : public QWidget {
    Q_OBJECT

public:
    OptionsPage(DialogSession& session, QWidget* parent);

    /// Shows the session's printer's options, or none.
    void rebuild();

    /// Takes the current values.
    void refresh();

    /// Whether there is nothing on the page.
    bool isEmpty() const;

    /// Goes to an option: opens its group and takes the focus there. False if it is not on the page.
    bool reveal(const QString& key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeHead();
    void makeView();
    void choose(const QString& key, const QString& value);
    void edit(const QModelIndex& index);
    void click(const QModelIndex& index);
    void putBack(const QModelIndex& index);
    void showMenu(const QPoint& at);
    void layOutGroups();
    void rememberFold(const QModelIndex& group, bool isFolded);
    void showCount();

    DialogSession& session_;
    OptionTree* tree_;
    QTreeView* view_ = nullptr;
    QCheckBox* changedOnly_ = nullptr;
    QLabel* count_ = nullptr;
    QPushButton* putBackAll_ = nullptr;
    bool isLayingOut_ = false;
};

/// The keywords of the options that no panel owns, the printer's equipment among them.
QStringList optionsWithoutPanel(DialogSession& session);

} // namespace halvern
