// SPDX-License-Identifier: MIT
#include "dialog/window/caption_row.h"

#include "dialog/page/caption.h"
#include "dialog/page/layout.h"
#include "platform/toolkit/plain_text.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace halvern {

CaptionRow::CaptionRow(QWidget* parent)
    : QWidget(parent), caption_(new QLineEdit(this)), tokens_(new QComboBox(this))
{
    caption_->setObjectName(QStringLiteral("caption"));
    caption_->setMaxLength(int(kLongestCaption));
    caption_->setPlaceholderText(tr("None; for example [C]  [F]"));
    caption_->setClearButtonEnabled(true);
    setPlainName(caption_, tr("Caption under each photo"));
    tokens_->setObjectName(QStringLiteral("captionTokens"));
    for (const CaptionToken& row : kCaptionTokens)
        tokens_->addItem(itemText(QCoreApplication::translate("Caption", row.name)),
                         QString::fromLatin1(row.token));
    setPlainName(tokens_, tr("Placeholder"));
    auto* insert = new QPushButton(tr("I&nsert"), this);
    insert->setObjectName(QStringLiteral("insertToken"));
    insert->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    column->addWidget(caption_);
    auto* row = new QHBoxLayout;
    row->addWidget(tokens_, 1);
    row->addWidget(insert);
    column->addLayout(row);
    connect(caption_, &QLineEdit::textChanged, this, &CaptionRow::changed);
    connect(insert, &QPushButton::clicked, this, &CaptionRow::insertToken);
}

QWidget* CaptionRow::first() const
{
    return caption_;
}

void CaptionRow::setCaption(const QString& pattern)
{
    const QSignalBlocker quiet(this);
    if (caption_->text() != pattern)
        caption_->setText(pattern); // plain: a field holds a value
}

QString CaptionRow::caption() const
{
    return caption_->text();
}

void CaptionRow::insertToken()
{
    caption_->insert(tokens_->currentData().toString());
    caption_->setFocus(Qt::OtherFocusReason);
}

} // namespace halvern
