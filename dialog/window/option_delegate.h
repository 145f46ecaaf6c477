// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QStyledItemDelegate>

class QComboBox;

namespace halvern {

/// Draws an option's value as the control that chooses it, and makes that control when somebody wants to
/// choose: a row costs no more than its painting. A box for yes and no is switched where it is drawn. Main
/// thread only.
class OptionDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// `session` outlives it.
    OptionDelegate(DialogSession& session, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    QWidget* makeList(const QString& key, QWidget* parent) const;
    QWidget* makeCustom(const QString& key, QWidget* parent) const;
    QString alsoChanges(const QString& key, const QString& choice) const;
    void showClashes(QComboBox* box, const QString& key) const;
    void finish(QWidget* editor);

    DialogSession& session_;
};

} // namespace halvern
