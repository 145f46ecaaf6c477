// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/presets.h"
#include "dialog/window/message_bar.h"

#include <QWidget>

class QComboBox;
class QMenu;
class QToolButton;

namespace halvern {

class DialogSession;

/// One row: the presets of the selected printer, with a mark while what is set differs from the chosen one,
/// and a menu of what can be done with them. Main thread only; `session` outlives it.
class PresetBar : public QWidget {
    Q_OBJECT

public:
    PresetBar(DialogSession& session, QWidget* parent);

    /// For the label's shortcut.
    QWidget* box() const;

    QList<QWidget*> tabOrder() const;

    /// Shows which one is chosen, and whether what is set differs.
    void refresh();

Q_SIGNALS:
    /// Something to tell, with what may take it back.
    void told(const QString& sentence, const halvern::MessageAction& action);

private:
    void fill();
    void applyShown();
    void fillMenu();
    void addChosensActions();
    void saveAs();
    void renameChosen();
    void deleteChosen();
    void importFile();
    void exportFile(const QList<Preset>& presets, const QString& suggestion);

    DialogSession& session_;
    QComboBox* box_;
    QToolButton* button_;
    QMenu* menu_;
    QList<PresetEntry> shown_;
};

} // namespace halvern
