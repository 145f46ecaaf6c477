// SPDX-License-Identifier: MIT
// Printing and closing.
#include "dialog/window/print_dialog.h"

#include "dialog/window/damage_question.h"
#include "dialog/window/help_window.h"
#include "dialog/window/job_line.h"
#include "dialog/window/message_bar.h"
#include "dialog/window/output_menu.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/preset_bar.h"
#include "dialog/window/review_switch.h"
#include "dialog/window/run_bar.h"
#include "dialog/window/search_box.h"
#include "platform/toolkit/plain_text.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSpinBox>

namespace halvern {

namespace {

const QString kRunMessage = QStringLiteral("run");

} // namespace

void PrintDialog::updateButtons()
{
    if (!print_)
        return;
    const bool isBusy = isRunning();
    print_->setEnabled(!isBusy && session_.canPrint());
    output_->setEnabled(!isBusy && session_.canPrint());
    // Said to whoever rests the pointer on the button.
    setPlainDescription(print_, isBusy ? QString() : session_.whyNotPrintable());
    printer_->setEnabled(!isBusy);
    presets_->setEnabled(!isBusy && session_.model());
    output_->setVisible(!session_.document());
    deck_->setEnabled(!isBusy);
    message_->setCanAct(!isBusy);
    copies_->setEnabled(!isBusy);
    collate_->setEnabled(!isBusy);
    collate_->setVisible(copies_->value() > 1 &&
                         (session_.document() || session_.sheetPlan()->sheets.size() > 1));
    cancelJob_->setVisible(isBusy);
    cancelJob_->setEnabled(isBusy && !run_->isCancelled());
    cancel_->setText(isBusy || hasPrinted_ ? tr("Close") : tr("Cancel"));
}

QWidget* PrintDialog::makeOutputMenu(QWidget* parent)
{
    if (const BlindDocument* document = session_.document(); document && !document->isHere)
        review_ = makeReviewSwitch(parent);
    output_ = new OutputMenu(session_, parent);
    connect(output_, &OutputMenu::progressed, this, [this](double share) {
        if (!isRunning())
            runBar_->showProgress(share, tr("Writing the file..."));
    });
    connect(output_, &OutputMenu::done, this, [this](const QString& sentence) {
        if (!isRunning())
            runBar_->showEnd(sentence);
    });
    connect(output_, &OutputMenu::failed, this, [this](const QString& sentence) {
        clearOldOutcome();
        message_->showMessage(MessageKind::error, sentence);
    });
    return output_;
}

PdfOutput* PrintDialog::unfinishedFile() const
{
    return output_ ? output_->unfinished() : nullptr;
}

void PrintDialog::print()
{
    if (isRunning() || !session_.canPrint())
        return;
    cups::Access::shared().askAgain();
    if (session_.hasBrokenFiles()) {
        askAboutDamagedPhotos(this, session_, [this] { print(); });
        return;
    }
    // A field is saved as its editing leaves it, and the keyboard's ways to print move no focus.
    if (QWidget* editor = focusWidget(); editor && deck_->isAncestorOf(editor))
        print_->setFocus(Qt::OtherFocusReason);
    if (session_.document()) {
        order_ = session_.makeOrder();
        session_.noteUse();
        accept();
        return;
    }
    delete run_;
    outcome_ = {};
    message_->withdraw(kRunMessage);
    session_.noteUse();
    run_ = session_.makeRun();
    jobLine_->refresh();
    deck_->pausePanels();
    followRun();
    runBar_->showProgress(0, tr("Preparing the pages..."));
    Q_EMIT started();
    run_->start();
    updateButtons();
    // Print is off now, and focus would go to whatever comes next.
    if (!focusWidget() || !focusWidget()->isEnabled())
        cancel_->setFocus(Qt::OtherFocusReason);
}

void PrintDialog::followRun()
{
    connect(run_, &PrintRun::progressed, this, [this](double share, const QString& words) {
        if (run_->isCancelled())
            return;
        const bool canPause = share < 1.0 && run_->photoCount() > 1;
        runBar_->showProgress(share, words,
                              !canPause          ? RunBar::Pause::none
                              : run_->isPaused() ? RunBar::Pause::on
                                                 : RunBar::Pause::offered);
    });
    connect(run_, &PrintRun::submitted, this, [this](int jobId) {
        if (!run_->isCancelled())
            runBar_->showSent(
                tr("Job %1 was sent to \"%2\".").arg(QString::number(jobId), session_.printerName()));
    });
    connect(run_, &PrintRun::followed, this, [this](const JobStatus& status, const QString& sentence) {
        runBar_->showStatus(status, sentence);
    });
    connect(run_, &PrintRun::readBack, this, [this](const JobReadBack& job, const QString& sentence) {
        if (job.isEqual())
            runBar_->showCheck(sentence);
        else if (job.isKnown)
            message_->showMessage(MessageKind::warning, sentence);
    });
    connect(run_, &PrintRun::finished, this, &PrintDialog::takeOutcome);
}

void PrintDialog::cancelJob()
{
    if (!isRunning())
        return;
    runBar_->tell(run_->jobId() == 0 ? tr("Cancelling...")
                                     : tr("Asking the print server to cancel job %1...").arg(run_->jobId()));
    run_->cancel();
    updateButtons();
}

void PrintDialog::takeOutcome(const PrintOutcome& outcome)
{
    outcome_ = outcome;
    hasPrinted_ = hasPrinted_ || outcome.printed;
    const bool isFailure = !outcome.printed && outcome.stage != JobStage::cancelled;
    if (isFailure) {
        runBar_->clear();
        message_->showMessage(MessageKind::error, outcome.sentence, {}, kRunMessage);
    } else {
        runBar_->showEnd(outcome.sentence);
    }
    if (isVisible())
        deck_->resumePanel();
    updateButtons();
}

void PrintDialog::clearOldOutcome()
{
    // "Printed" was said of other choices.
    if (!isRunning())
        runBar_->clear();
}

void PrintDialog::showHelp()
{
    // The book has the maker's panels, too; a panel that it does not know may have help of its own.
    if (HelpWindow::showFor(*this, deck_->shownPage()) || deck_->showHelpOfShownPanel() ||
        HelpWindow::showStart(*this))
        return;
    message_->showMessage(
        MessageKind::information,
        tr("Choose a printer and a paper size, look at the preview, and press Print. The list on the "
           "left of the options has the printer's own pages."));
}

void PrintDialog::done(int result)
{
    rememberSize();
    deck_->tellClosing(hasPrinted_ || isRunning() || order_);
    deck_->releasePanels();
    // Nobody is left to go on with it.
    if (run_)
        run_->setPaused(false);
    QDialog::done(result);
}

} // namespace halvern
