// SPDX-License-Identifier: MIT
#include "dialog/window/run_bar.h"

#include "platform/toolkit/plain_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace halvern {

namespace {

constexpr int kProgressSteps = 1000;

QString buttonText(Remedy remedy)
{
    switch (remedy) {
    case Remedy::resumePrinter:
        return RunBar::tr("Resume Printer");
    case Remedy::releaseJob:
        return RunBar::tr("Release Job");
    case Remedy::restartJob:
        return RunBar::tr("Print Job Again");
    case Remedy::none:
        break;
    }
    return {};
}

} // namespace

RunBar::RunBar(QWidget* parent)
    : QWidget(parent),
      text_(new QLabel(this)),
      check_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      button_(new QPushButton(this)),
      pause_(new QPushButton(this))
{
    text_->setObjectName(QStringLiteral("status"));
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    check_->setObjectName(QStringLiteral("check"));
    check_->setForegroundRole(QPalette::PlaceholderText);
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(tr("Progress of the print job"));
    progress_->setTextVisible(false);
    progress_->setFixedHeight(8);
    button_->setObjectName(QStringLiteral("remedyButton"));
    pause_->setObjectName(QStringLiteral("pauseButton"));
    pause_->setCheckable(true);
    for (QPushButton* button : {button_, pause_}) {
        button->setAutoDefault(false);
        button->setMinimumSize(104, 32);
    }
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(10);
    grid->addWidget(text_, 0, 0);
    grid->addWidget(check_, 0, 1, Qt::AlignTop);
    grid->addWidget(button_, 0, 2, Qt::AlignTop);
    grid->addWidget(pause_, 0, 2, Qt::AlignTop);
    grid->addWidget(progress_, 1, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    connect(button_, &QPushButton::clicked, this, [this] {
        // One press is one request; the next status brings the button back if it is still needed.
        button_->setEnabled(false);
        Q_EMIT remedyChosen(remedy_);
    });
    connect(pause_, &QPushButton::clicked, this, &RunBar::pauseChosen);
    clear();
}

void RunBar::showProgress(double share, const QString& words, Pause pause)
{
    progress_->setRange(0, kProgressSteps);
    progress_->setValue(int(share * kProgressSteps));
    progress_->show();
    check_->hide();
    showRemedy(Remedy::none);
    showPause(pause);
    tell(words);
}

void RunBar::showPause(Pause pause)
{
    pause_->setChecked(pause == Pause::on);
    pause_->setText(pause == Pause::on ? tr("Go On") : tr("Pause")); // plain: words of ours
    pause_->setVisible(pause != Pause::none);
}

void RunBar::showSent(const QString& words)
{
    progress_->setRange(0, 0);
    progress_->show();
    showPause(Pause::none);
    tell(words);
}

void RunBar::showStatus(const JobStatus& status, const QString& sentence)
{
    progress_->setRange(0, 0);
    progress_->setVisible(!isResting(status.stage) && status.stage != JobStage::unknown);
    showPause(Pause::none);
    showRemedy(remedyFor(status));
    tell(sentence);
}

void RunBar::showEnd(const QString& sentence)
{
    progress_->hide();
    showPause(Pause::none);
    showRemedy(Remedy::none);
    tell(sentence);
}

void RunBar::showCheck(const QString& sentence)
{
    check_->setText(tr("✓ as shown"));
    setPlainToolTip(check_, sentence);
    setPlainName(check_, sentence);
    check_->show();
}

void RunBar::tell(const QString& text)
{
    setPlainText(text_, text);
    show();
}

void RunBar::clear()
{
    hide();
    text_->clear();
    check_->hide();
    progress_->hide();
    showPause(Pause::none);
    showRemedy(Remedy::none);
}

QWidget* RunBar::button() const
{
    return button_;
}

void RunBar::showRemedy(Remedy remedy)
{
    remedy_ = remedy;
    button_->setText(buttonText(remedy)); // plain: words of ours
    button_->setVisible(remedy != Remedy::none);
    button_->setEnabled(true);
}

} // namespace halvern
