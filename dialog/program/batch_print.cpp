#include "dialog/program/batch_print.h"

namespace halvern {

namespace {

// Nobody sees here what is loaded, and a dry run sends nothing: the panels work from the options alone.
SessionRequest unattended(SessionRequest request)
{
    request.panelsAskPrinter = false;
    request.panelsChangeOptions = false;
    return request;
}

} // namespace

BatchPrint::BatchPrint(const CommandLine& line, PanelSource& panels, QTextStream& out, QTextStream& err)
    : line_(line), out_(out), err_(err), session_(unattended(line.request), panels)
{
    connect(&session_.printerList(), &PrinterList::changed, this, &BatchPrint::takePrinters);
    connect(&session_, &DialogSession::photosChanged, this, &BatchPrint::proceed);
    connect(&session_, &DialogSession::photoFailed, this,
            [this](const QString& sentence) { fail(sentence); });
    connect(&session_, &DialogSession::printerReady, this, &BatchPrint::proceed);
    connect(&session_, &DialogSession::printerFailed, this, &BatchPrint::takePrinterFailure);
    connect(&session_, &DialogSession::refused, this, [this](const QString& sentence) { fail(sentence); });
    connect(&session_, &DialogSession::notice, this,
            [this](const QString& sentence) { err_ << sentence << Qt::endl; });
    connect(&session_, &DialogSession::otherOptionsChanged, this, [this](const QList<SideChange>& changes) {
        for (const SideChange& change : changes)
            err_ << tr("Changed to fit: %1=%2").arg(change.key, change.choice) << Qt::endl;
    });
}

void BatchPrint::start()
{
    session_.start();
}

void BatchPrint::takePrinters()
{
    PrinterList& list = session_.printerList();
    if (!list.problem().isEmpty())
        fail(list.problem());
    else if (list.printers().empty() || !list.find(session_.printerName()))
        fail(unknownPrinterText(session_.printerName(), list.printers()));
    else
        proceed();
}

void BatchPrint::takePrinterFailure(const QString& sentence)
{
    const PrinterList& list = session_.printerList();
    // An unknown queue is better told with the known ones, which may still be on their way.
    if (list.hasAnswer() && list.find(session_.printerName()))
        fail(sentence);
}

void BatchPrint::proceed()
{
    const bool isComplete = session_.hasPhotos() && session_.model() && session_.printerList().hasAnswer();
    if (hasFailed_ || hasStarted_ || !isComplete)
        return;
    hasStarted_ = true;
    if (!line_.dryRun) {
        print();
        return;
    }
    const OptionValues options = session_.collectOptions();
    for (const OptionValue& option : options)
        out_ << option.key << '=' << option.value << '\n';
    out_.flush();
    end(kExitPrinted);
}

void BatchPrint::print()
{
    PrintRun* run = session_.makeRun();
    connect(run, &PrintRun::followed, this, [this](const JobStatus& status, const QString& sentence) {
        if (sentence != lastSentence_)
            err_ << sentence << Qt::endl;
        lastSentence_ = sentence;
        // Nobody is here to release or resume it.
        if (isResting(status.stage))
            end(kExitUnfinished);
    });
    connect(run, &PrintRun::finished, this, [this](const PrintOutcome& outcome) {
        (outcome.printed ? out_ : err_) << outcome.sentence << Qt::endl;
        end(outcome.printed ? kExitPrinted : kExitFailed);
    });
    run->start();
}

void BatchPrint::fail(const QString& sentence, int status)
{
    if (hasFailed_ || hasStarted_)
        return;
    hasFailed_ = true;
    err_ << sentence << Qt::endl;
    end(status);
}

void BatchPrint::end(int status)
{
    Q_EMIT finished(status);
}

} // namespace halvern
