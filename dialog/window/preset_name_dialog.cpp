// SPDX-License-Identifier: MIT
#include "dialog/window/preset_name_dialog.h"

#include "dialog/options/back_lines.h"
#include "dialog/session/dialog_session.h"
#include "dialog/window/help_window.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace halvern {

namespace {

constexpr int kLeastWidth = 380;

} // namespace

PresetNameDialog::PresetNameDialog(Purpose purpose, DialogSession& session, QWidget* parent)
    : QDialog(parent),
      purpose_(purpose),
      session_(session),
      name_(new QLineEdit(this)),
      remark_(new QLabel(this))
{
    const bool saves = purpose == Purpose::save;
    setObjectName(QStringLiteral("presetName"));
    HelpWindow::addKey(*this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(saves ? tr("Save Preset") : tr("Rename Preset"));
    setMinimumWidth(kLeastWidth);
    auto* label = new QLabel(tr("&Name:"), this);
    label->setBuddy(name_);
    name_->setMaxLength(int(kLongestPresetName));
    if (!saves)
        name_->setText(session.presets().chosen().preset.name); // plain: a field holds a value
    name_->selectAll();
    remark_->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    accept_ = buttons->addButton(saves ? tr("&Save") : tr("&Rename"), QDialogButtonBox::AcceptRole);
    accept_->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 16, 18, 16);
    column->setSpacing(8);
    column->addWidget(label);
    column->addWidget(name_);
    if (saves)
        column->addWidget(makeContents());
    column->addWidget(remark_);
    column->addWidget(buttons);
    connect(name_, &QLineEdit::textChanged, this, &PresetNameDialog::check);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

QWidget* PresetNameDialog::makeContents()
{
    auto* contents = new QWidget(this);
    copies_ = new QCheckBox(tr("With the number of &copies (%1)").arg(session_.page().copies), contents);
    copies_->setObjectName(QStringLiteral("presetCopies"));
    const PageChoice& choice = session_.page().pages;
    pages_ = new QCheckBox(tr("With the &pages to print"), contents);
    pages_->setObjectName(QStringLiteral("presetPages"));
    pages_->setVisible(!choice.ranges.isEmpty() || choice.parity != PageParity::all);
    backText_ = new QCheckBox(tr("With the &text on the back"), contents);
    backText_->setObjectName(QStringLiteral("presetBackText"));
    const PresetContents before = contentsOf(session_.presets().chosen().preset);
    const bool isNamed = session_.presets().chosen().kind == PresetKind::named;
    copies_->setChecked(isNamed && before.copies);
    pages_->setChecked(isNamed && before.pages);
    backText_->setChecked(isNamed && before.backText);
    backText_->setVisible(session_.model() && !session_.model()->value(backLineSwitch(1)).isEmpty());
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 4, 0, 0);
    column->addWidget(copies_);
    column->addWidget(pages_);
    column->addWidget(backText_);
    return contents;
}

QString PresetNameDialog::name() const
{
    return presetName(name_->text());
}

PresetContents PresetNameDialog::contents() const
{
    return {copies_ && copies_->isChecked(), pages_ && pages_->isChecked(),
            backText_ && backText_->isChecked()};
}

void PresetNameDialog::check()
{
    const QString wanted = name();
    const bool isReserved = isPrinterDefaultsName(wanted) || isLastUsedName(wanted);
    bool isTaken = false;
    for (const Preset& preset : session_.presets().named())
        isTaken = isTaken || preset.name == wanted;
    const bool isOwn = purpose_ == Purpose::rename && wanted == session_.presets().chosen().preset.name;
    QString remark;
    if (isReserved)
        remark = tr("This name is always there. Choose another one.");
    else if (isTaken && purpose_ == Purpose::save)
        remark = tr("There is a preset of this name. It will be replaced.");
    else if (isTaken && !isOwn)
        remark = tr("There is a preset of this name. Choose another one.");
    setPlainText(remark_, remark);
    const bool isFree = purpose_ == Purpose::save || !isTaken;
    accept_->setEnabled(!wanted.isEmpty() && !isReserved && isFree);
}

} // namespace halvern
