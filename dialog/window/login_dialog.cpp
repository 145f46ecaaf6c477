// SPDX-License-Identifier: MIT
#include "dialog/window/login_dialog.h"

#include "dialog/session/login_words.h"
#include "dialog/window/help_window.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace halvern {

namespace {

constexpr int kTextWidth = 380;

QLabel* makeText(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextWidth);
    setPlainText(label, text);
    return label;
}

} // namespace

LoginDialog::LoginDialog(const cups::LoginQuestion& question, bool canKeep, QWidget* parent)
    : QDialog(parent),
      user_(new QLineEdit(this)),
      password_(new QLineEdit(this)),
      open_(new QCheckBox(tr("Send it &all the same"), this)),
      keep_(new QCheckBox(tr("&Remember it in the keyring"), this))
{
    setObjectName(QStringLiteral("loginDialog"));
    HelpWindow::addKey(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Sign In"));
    user_->setObjectName(QStringLiteral("loginName"));
    user_->setText(question.user); // plain: a field holds a value
    password_->setObjectName(QStringLiteral("loginPassword"));
    password_->setEchoMode(QLineEdit::Password);
    open_->setObjectName(QStringLiteral("sendOpenly"));
    keep_->setVisible(canKeep);
    auto* form = new QFormLayout(this);
    form->setVerticalSpacing(10);
    form->addRow(makeText(whoAsks(question), this));
    form->addRow(tr("&Name:"), user_);
    form->addRow(tr("&Password:"), password_);
    if (question.isEncrypted) {
        open_->hide();
    } else {
        form->addRow(makeText(openWayWarning(question.place), this));
        form->addRow(open_);
    }
    if (canKeep)
        form->addRow(keep_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    signIn_ = buttons->addButton(tr("&Sign In"), QDialogButtonBox::AcceptRole);
    signIn_->setObjectName(QStringLiteral("signIn"));
    signIn_->setDefault(true);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QLineEdit* field : {user_, password_})
        connect(field, &QLineEdit::textChanged, this, &LoginDialog::updateButton);
    connect(open_, &QCheckBox::toggled, this, &LoginDialog::updateButton);
    updateButton();
    (question.user.isEmpty() ? user_ : password_)->setFocus();
}

void LoginDialog::updateButton()
{
    const bool mayTravel = open_->isHidden() || open_->isChecked();
    signIn_->setEnabled(mayTravel && !user_->text().isEmpty() && !password_->text().isEmpty());
}

cups::Login LoginDialog::login() const
{
    return {user_->text(), password_->text(), open_->isChecked(), keep_->isChecked()};
}

} // namespace halvern
