// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/preset_use.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace halvern {

class DialogSession;

/// Asks for a preset's name and, where one is saved, for what it holds beside the options. Main thread only;
/// deletes itself when it is closed.
class PresetNameDialog : public QDialog {
    Q_OBJECT

public:
    enum class Purpose { save, rename };

    PresetNameDialog(Purpose purpose, DialogSession& session, QWidget* parent);

    QString name() const;
    PresetContents contents() const;

private:
    QWidget* makeContents();
    void check();

    Purpose purpose_;
    DialogSession& session_;
    QLineEdit* name_;
    QLabel* remark_;
    QPushButton* accept_;
    QCheckBox* copies_ = nullptr;
    QCheckBox* pages_ = nullptr;
    QCheckBox* backText_ = nullptr;
};

} // namespace halvern
