// Printing and closing.
#include "dialog/window/print_dialog.h"

#include "dialog/window/message_bar.h"
#include "dialog/window/panel_deck.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>

namespace halvern {

namespace {

constexpr int kProgressSteps = 1000;

} // namespace

void PrintDialog::updateButtons()
{
    if (!print_)
        return;
    const bool isBusy = isRunning();
    print_->setEnabled(!isBusy && session_.canPrint());
    printer_->setEnabled(!isBusy);
    deck_->setEnabled(!isBusy);
    copies_->setEnabled(!isBusy);
    cancel_->setText(isBusy ? tr("Cancel Job") : hasPrinted_ ? tr("Close") : tr("Cancel"));
}

void PrintDialog::print()
{
    if (isRunning() || !session_.canPrint())
        return;
    // A field is saved as its editing leaves it, and the keyboard's ways to print move no focus.
    if (QWidget* editor = focusWidget(); editor && deck_->isAncestorOf(editor))
        print_->setFocus(Qt::OtherFocusReason);
    delete run_;
    message_->clear();
    run_ = session_.makeRun();
    deck_->pausePanels();
    followRun();
    progress_->setRange(0, kProgressSteps);
    progress_->setValue(0);
    progress_->show();
    status_->setText(tr("Preparing the pages..."));
    status_->show();
    run_->start();
    updateButtons();
}

void PrintDialog::followRun()
{
    connect(run_, &PrintRun::progressed, this, [this](double share, const QString& words) {
        progress_->setValue(int(share * kProgressSteps));
        status_->setText(words);
    });
    connect(run_, &PrintRun::submitted, this, [this](int jobId) {
        progress_->setRange(0, 0);
        status_->setText(tr("Job %1 was sent to \"%2\".").arg(jobId).arg(session_.printerName()));
    });
    connect(run_, &PrintRun::followed, this, [this](const JobStatus& status, const QString& sentence) {
        status_->setText(sentence);
        progress_->setVisible(!isResting(status.stage));
    });
    connect(run_, &PrintRun::finished, this, &PrintDialog::takeOutcome);
}

void PrintDialog::takeOutcome(const PrintOutcome& outcome)
{
    outcome_ = outcome;
    hasPrinted_ = hasPrinted_ || outcome.printed;
    progress_->hide();
    status_->setText(outcome.sentence);
    status_->show();
    if (!outcome.printed && outcome.stage != JobStage::cancelled)
        message_->showMessage(MessageKind::error, outcome.sentence);
    deck_->resumePanel();
    updateButtons();
    Q_EMIT printed(outcome);
}

void PrintDialog::showHelp()
{
    if (deck_->showHelpOfShownPanel())
        return;
    message_->showMessage(
        MessageKind::information,
        tr("Choose a printer and a paper size, look at the preview, and press Print. The list on the "
           "left of the options has the printer's own pages."));
}

void PrintDialog::reject()
{
    if (isRunning() && !run_->isCancelled()) {
        // The first press ends the job; closing the window, or a second press, leaves at once.
        status_->setText(tr("Cancelling..."));
        run_->cancel();
        return;
    }
    QDialog::reject();
}

void PrintDialog::done(int result)
{
    // What is only half sent is taken back by its worker; what the server has, it prints.
    if (isRunning() && run_->jobId() == 0)
        run_->cancel();
    deck_->tellClosing(hasPrinted_ || isRunning());
    deck_->releasePanels();
    QDialog::done(result);
}

} // namespace halvern
