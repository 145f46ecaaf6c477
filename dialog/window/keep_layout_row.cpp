// SPDX-License-Identifier: MIT
#include "dialog/window/keep_layout_row.h"

#include "dialog/session/dialog_session.h"
#include "dialog/window/measure_fields.h"
#include "platform/toolkit/plain_text.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace halvern {

namespace {

constexpr int kShortName = 12; // characters

} // namespace

KeepLayoutRow::KeepLayoutRow(DialogSession& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      name_(new QLineEdit(this)),
      keep_(new QPushButton(tr("&Keep"), this)),
      forget_(new QPushButton(tr("Forget"), this))
{
    name_->setObjectName(QStringLiteral("layoutName"));
    name_->setPlaceholderText(tr("Name, to find it again"));
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * kShortName);
    setPlainName(name_, tr("Name of the layout"));
    keep_->setObjectName(QStringLiteral("keepLayout"));
    keep_->setEnabled(false);
    forget_->setObjectName(QStringLiteral("forgetLayout"));
    for (QPushButton* button : {keep_, forget_})
        button->setAutoDefault(false);
    QHBoxLayout* row = rowIn(this);
    row->addWidget(name_, 1);
    row->addWidget(keep_);
    row->addWidget(forget_);
    connect(keep_, &QPushButton::clicked, this, &KeepLayoutRow::keep);
    connect(name_, &QLineEdit::returnPressed, this, &KeepLayoutRow::keep);
    connect(name_, &QLineEdit::textChanged, this,
            [this](const QString& text) { keep_->setEnabled(!text.trimmed().isEmpty()); });
    connect(forget_, &QPushButton::clicked, this, &KeepLayoutRow::forget);
}

QWidget* KeepLayoutRow::first() const
{
    return name_;
}

void KeepLayoutRow::setForgets(bool isOwn)
{
    forget_->setVisible(isOwn);
}

void KeepLayoutRow::keep()
{
    const PageSettings& page = session_.page();
    const std::optional<Layout> layout = session_.layouts().find(page.sheets.layout);
    if (!layout || name_->text().trimmed().isEmpty())
        return;
    QString id;
    const QString problem =
        session_.layouts().save(keepingSettings(*layout, page.sheets, page.scaling), name_->text(), &id);
    if (!problem.isEmpty()) {
        Q_EMIT told(problem);
        return;
    }
    name_->clear();
    Q_EMIT layoutsChanged();
    session_.chooseLayout(id);
}

void KeepLayoutRow::forget()
{
    const QString problem = session_.layouts().remove(session_.page().sheets.layout);
    if (!problem.isEmpty())
        Q_EMIT told(problem);
    Q_EMIT layoutsChanged();
    session_.chooseLayout(QString());
}

} // namespace halvern
