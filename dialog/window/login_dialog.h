// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/access.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace halvern {

/// Asks for a name and a password. Where they would travel openly, that has to be allowed first. Main thread
/// only.
class LoginDialog : public QDialog {
    Q_OBJECT

public:
    /// `canKeep`: there is a keyring.
    LoginDialog(const cups::LoginQuestion& question, bool canKeep, QWidget* parent);

    /// What was typed.
    cups::Login login() const;

private:
    void updateButton();

    QLineEdit* user_;
    QLineEdit* password_;
    QCheckBox* open_;
    QCheckBox* keep_;
    QPushButton* signIn_ = nullptr;
};

} // namespace halvern
