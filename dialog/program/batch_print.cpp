// SPDX-License-Identifier: MIT
#include "dialog/program/batch_print.h"

#include "dialog/program/take_back.h"
#include "dialog/session/sheet_words.h"
#include "platform/foundation/display_text.h"

#include <QTimer>

namespace halvern {

namespace {

constexpr int kProgressMilliseconds = 10000;

// Nobody sees here what is loaded, and a dry run sends nothing: the panels work from the options alone.
SessionRequest unattended(SessionRequest request)
{
    request.isAttended = false;
    request.panelsAskPrinter = false;
    request.panelsChangeOptions = false;
    request.remembers = false;
    return request;
}

} // namespace

BatchPrint::BatchPrint(const CommandLine& line, PanelSource& panels, QTextStream& out, QTextStream& err)
    : line_(line), out_(out), err_(err), session_(unattended(line.request), panels)
{
    connect(&session_.printerList(), &PrinterList::changed, this, &BatchPrint::takePrinters);
    connect(&session_, &DialogSession::photosChanged, this, &BatchPrint::proceed);
    connect(&session_, &DialogSession::photoFailed, this, [this](const QString& sentence) {
        if (line_.request.skipBroken)
            writeLine(err_, sentence);
        else
            photoProblems_.append(sentence);
    });
    connect(&session_, &DialogSession::photoDamaged, this, &BatchPrint::takeDamage);
    connect(&session_, &DialogSession::printerReady, this, &BatchPrint::proceed);
    connect(&session_, &DialogSession::coloursKnown, this, &BatchPrint::proceed);
    connect(&session_, &DialogSession::printerFailed, this, &BatchPrint::takePrinterFailure);
    connect(&session_, &DialogSession::printerSelected, this, [this] { printerFailure_.clear(); });
    connect(&session_, &DialogSession::refused, this, [this](const QString& sentence) { fail(sentence); });
    connect(&session_, &DialogSession::notice, this,
            [this](const QString& sentence) { writeLine(err_, sentence); });
    connect(&session_, &DialogSession::otherOptionsChanged, this, [this](const QList<SideChange>& changes) {
        for (const SideChange& change : changes)
            writeLine(err_, tr("Changed to fit: %1=%2").arg(change.key, change.choice));
    });
}

void BatchPrint::start()
{
    session_.start();
}

void BatchPrint::takePrinters()
{
    PrinterList& list = session_.printerList();
    // It may be one on the network that has no queue yet.
    const bool mayCome =
        !session_.printerName().isEmpty() && !list.find(session_.printerName()) && !list.hasLookedRound();
    if (!list.problem().isEmpty())
        fail(list.problem());
    else if (mayCome)
        return;
    else if (list.printers().empty() || !list.find(session_.printerName()))
        fail(unknownPrinterText(session_.printerName(), list.printers()));
    else if (!printerFailure_.isEmpty())
        fail(printerFailure_);
    else
        proceed();
}

void BatchPrint::takePrinterFailure(const QString& sentence)
{
    // An unknown queue is better told with the known ones, which may still be on their way.
    printerFailure_ = sentence;
    if (session_.printerList().hasAnswer())
        takePrinters();
}

void BatchPrint::takeDamage(const QString& sentence)
{
    if (line_.request.printDamaged || line_.request.skipBroken)
        writeLine(err_, sentence);
    else
        photoProblems_.append(sentence + QLatin1Char(' ') +
                              tr("With --print-damaged it is printed all the same."));
}

void BatchPrint::proceed()
{
    // All of them, so that nobody has to try again for each.
    if (session_.hasPhotos() && !photoProblems_.isEmpty())
        fail(photoProblems_.join(QLatin1Char('\n')) +
             (session_.photos().empty()
                  ? QString()
                  : QLatin1Char('\n') + tr("With --skip-broken the others are printed.")));
    const bool isReady = session_.hasPhotos() && session_.model();
    // Which pages are chosen may come with the printer's preset, and counts the damaged ones.
    if (isReady && line_.request.skipBroken && !session_.damagedFiles().isEmpty())
        session_.settleDamaged(false);
    if (session_.hasPhotos() && session_.photos().empty() && !line_.request.document)
        fail(tr("None of the files can be printed."));
    const bool isComplete = isReady && session_.printerList().hasAnswer();
    if (hasFailed_ || hasStarted_ || !isComplete)
        return;
    const QString choice = session_.chosenPages().problem;
    if (const QString problem = choice.isEmpty() ? session_.sheetPlan()->problem : choice;
        !problem.isEmpty()) {
        fail(problem);
        return;
    }
    if (const QString problem = session_.colourProblem(); !problem.isEmpty()) {
        // The colour service may know the printer's profile.
        if (!session_.colours().isAsking())
            fail(problem);
        return;
    }
    hasStarted_ = true;
    warnOfMisfit();
    if (line_.dryRun)
        tellOptions();
    else if (!line_.output.isEmpty())
        writeFile();
    else
        print();
}

void BatchPrint::tellOptions()
{
    const OptionValues options = session_.collectOptions();
    for (const OptionValue& option : options)
        writeLine(out_, option.key + QLatin1Char('=') + option.value);
    if (!(session_.page().sheets == SheetSettings()))
        writeLines(err_, sheetLines(*session_.sheetPlan(), session_.photos()).join(QLatin1Char('\n')));
    end(kExitPrinted);
}

void BatchPrint::warnOfMisfit()
{
    const std::optional<PageMisfit> misfit = session_.pageMisfit();
    if (!misfit)
        return;
    QString sentence = tr("Warning: %1").arg(misfit->sentence);
    if (!misfit->fitting.isEmpty())
        sentence += QLatin1Char(' ') + tr("With \"-o PageSize=%1\" it fits.").arg(misfit->fitting);
    writeLine(err_, sentence);
}

void BatchPrint::writeFile()
{
    file_ = session_.makePdf(line_.output);
    connect(file_, &PdfOutput::finished, this, [this](const PdfOutcome& outcome) {
        writeLine(outcome.isWritten ? out_ : err_, outcome.sentence);
        end(outcome.isWritten ? kExitPrinted : outcome.wasCancelled ? kExitCancelled : kExitFailed);
    });
    file_->start();
}

void BatchPrint::print()
{
    run_ = session_.makeRun();
    run_->setPatience({.untilGivenUp = line_.wait});
    lastProgress_.start();
    connect(run_, &PrintRun::progressed, this, [this](double, const QString& words) {
        if (lastProgress_.hasExpired(kProgressMilliseconds)) {
            writeLine(err_, words);
            lastProgress_.start();
        }
    });
    connect(run_, &PrintRun::followed, this, &BatchPrint::takeStatus);
    connect(run_, &PrintRun::readBack, this, [this](const JobReadBack& job, const QString&) {
        // Of several jobs, one that differs is what counts.
        if (!readBack_.isKnown || readBack_.isEqual())
            readBack_ = job;
    });
    connect(run_, &PrintRun::finished, this, &BatchPrint::takeOutcome);
    run_->start();
}

void BatchPrint::takeStatus(const JobStatus& status, const QString& sentence)
{
    if (sentence != lastSentence_)
        writeLine(err_, sentence);
    lastSentence_ = sentence;
    // Nobody is here to release or resume it.
    if (!isResting(status.stage))
        return;
    const QString advice = jobAdvice(status, session_.printerName(), run_->jobId());
    if (!advice.isEmpty())
        writeLine(err_, advice);
    tellReadBack();
    end(kExitUnfinished);
}

void BatchPrint::takeOutcome(const PrintOutcome& outcome)
{
    writeLine(outcome.printed ? out_ : err_, outcome.sentence);
    tellReadBack();
    if (outcome.isLeft)
        end(kExitUnfinished);
    else if (outcome.printed)
        end(!line_.verify || readBack_.isEqual() ? kExitPrinted : kExitDiffers);
    else if (outcome.stage == JobStage::cancelled)
        end(kExitCancelled);
    else
        end(outcome.isEndUnknown() ? kExitUnknown : kExitFailed);
}

// However the job ends, what was added to it may be why.
void BatchPrint::tellReadBack()
{
    if (line_.verify && run_ && run_->jobId() > 0)
        writeLine(err_, readBackSentence(readBack_, run_->jobId()));
}

void BatchPrint::leave()
{
    if (file_) {
        file_->cancel();
        return;
    }
    if (run_ && run_->jobId() > 0) {
        writeLine(err_, tr("Job %1 stays on the queue; \"cancel %2-%1\" takes it away.")
                            .arg(QString::number(run_->jobId()), session_.printerName()));
        tellReadBack();
        end(kExitUnfinished);
        return;
    }
    if (!run_) {
        fail(tr("Cancelled: nothing was printed."), kExitCancelled);
        return;
    }
    run_->stop();
    // A silent server does not let the run end.
    QTimer::singleShot(kTakeBackMilliseconds, this, [this] {
        writeLine(err_,
                  tr("Stopped, but the print server does not answer: a part of the job may still be on the "
                     "queue \"%1\". Look at it before you print again.")
                      .arg(session_.printerName()));
        end(kExitUnknown);
    });
}

void BatchPrint::fail(const QString& sentence, int status)
{
    if (hasFailed_ || hasStarted_)
        return;
    hasFailed_ = true;
    writeLines(err_, sentence);
    end(status);
}

void BatchPrint::end(int status)
{
    Q_EMIT finished(status);
}

} // namespace halvern
