// SPDX-License-Identifier: MIT
#include "dialog/program/list_papers.h"

#include "dialog/job/job_actions.h"
#include "dialog/program/command_line.h"
#include "dialog/program/paper_table.h"
#include "dialog/program/printer_inquiry.h"
#include "dialog/program/queue_state.h"
#include "dialog/server/printer_list.h"
#include "dialog/server/queue_ppd.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/session/quit_signals.h"
#include "platform/foundation/bundle.h"
#include "platform/foundation/display_text.h"

#include <QCoreApplication>

namespace halvern {

namespace {

using End = InquiryResult::End;

class PaperLister {
    Q_DECLARE_TR_FUNCTIONS(ListPapers)

public:
    PaperLister(const ListPapersRequest& request, const PluginLoader& bundles, QTextStream& out,
                QTextStream& err)
        : request_(request), bundles_(bundles), out_(out), err_(err), cancelled_(quitFlag())
    {
    }

    int run()
    {
        if (!findTheQueue() || !fetch())
            return kExitFailed;
        const std::optional<QDateTime> before = readLoadedPapers(file_.get()).lastUpdate;
        // What is known is listed all the same: it may be enough for now.
        bool isAsAsked = !request_.refresh || (!quitWasSignalled() && ask() && fetch());
        if (quitWasSignalled())
            return kExitFailed;
        const LoadedPapers loaded = readLoadedPapers(file_.get());
        if (isAsAsked && request_.refresh && loaded.lastUpdate == before)
            isAsAsked =
                fail(tr("The printer \"%1\" was asked, but has not reported its papers. Look into the "
                        "print server's error log.")
                         .arg(queue_));
        return print(loaded) && isAsAsked ? kExitPrinted : kExitFailed;
    }

private:
    // Who has ended the program needs no sentences about conversations that this ended.
    bool fail(const QString& sentence)
    {
        if (!quitWasSignalled())
            writeLine(err_, sentence);
        return false;
    }

    bool findTheQueue()
    {
        const FoundQueue found = findQueue(request_.printer, cancelled_);
        queue_ = found.name;
        isAccepting_ = found.isAccepting;
        return found.problem.isEmpty() || fail(found.problem);
    }

    bool fetch()
    {
        QueuePpd ppd = fetchQueuePpd(queue_, cancelled_);
        if (!ppd.file)
            return fail(ppd.problem);
        file_ = std::shared_ptr<ppd_file_t>(std::move(*ppd.file));
        bundle_ = ppd::attribute(file_.get(), QStringLiteral("HalvernDialogExtension")).value_or(QString());
        if (bundle_.isEmpty())
            return fail(
                tr("The printer \"%1\" does not report its papers: it has no Halvern driver.").arg(queue_));
        return true;
    }

    bool ask()
    {
        writeLine(err_, tr("Asking \"%1\" ...").arg(queue_));
        const InquiryResult result = askPrinterForReport(queue_, [this](int job) {
            const JobStatus status = askJobStatus(queue_, job, cancelled_);
            // It would wait for ever.
            resting_ = isResting(status.stage) ? whyNot(status) : QString();
            if (resting_.isEmpty() && !hasEnded(status.stage))
                tellProgress(jobReasons(status));
            return resting_.isEmpty() && !quitWasSignalled();
        });
        switch (result.end) {
        case End::reported:
            return true;
        case End::busy:
            return fail(tr("The printer \"%1\" is busy with another job. Ask again when that has ended.")
                            .arg(queue_));
        case End::abandoned:
            return fail(resting_);
        case End::adrift:
            writeLine(err_,
                      tr("The print server does not answer; job %1 may still be on the queue (cancel %2-%1).")
                          .arg(QString::number(result.jobId), queue_));
            return false;
        case End::failed:
            break;
        }
        return fail(result.jobId > 0 ? whyFailed(result.jobId) : whyNoJob());
    }

    void tellProgress(const QString& reasons)
    {
        if (reasons.isEmpty() || reasons == toldReasons_)
            return;
        toldReasons_ = reasons;
        writeLine(err_, tr("Waiting for \"%1\"%2 ...").arg(queue_, reasons));
    }

    QString whyFailed(int job)
    {
        const JobStatus status = askJobStatus(queue_, job, cancelled_);
        if (!status.problem.isEmpty())
            return status.problem;
        // A held job ends the watch, but would stay on the queue.
        if (!hasEnded(status.stage))
            cancelJob(queue_, job);
        return whyNot(status);
    }

    QString whyNot(const JobStatus& status) const
    {
        const QString why = jobReasons(status);
        switch (status.stage) {
        case JobStage::blocked:
            return tr("The printer \"%1\" does not work at the moment%2, and the question was taken back. "
                      "Resume "
                      "the printer (cupsenable) and ask again.")
                .arg(queue_, why);
        case JobStage::stopped:
            return tr("The question to \"%1\" could not be processed%2 and was taken back. See to the "
                      "printer, "
                      "look into the print server's error log, and ask again.")
                .arg(queue_, why);
        case JobStage::held:
            return tr("The question to \"%1\" was held%2 and has been cancelled. See to the printer and ask "
                      "again.")
                .arg(queue_, why);
        case JobStage::cancelled:
            if (why.isEmpty())
                return tr("The question to \"%1\" was cancelled. Ask again.").arg(queue_);
            [[fallthrough]];
        default:
            return tr("The printer \"%1\" could not answer%2. See to the printer and ask again.")
                .arg(queue_, why);
        }
    }

    QString whyNoJob() const
    {
        if (!isAccepting_)
            return tr("The printer \"%1\" does not accept jobs and cannot be asked. Let it accept them "
                      "(cupsaccept) and ask again.")
                .arg(queue_);
        const PrinterAnswer answer = askPrinters(cancelled_);
        return answer.problem.isEmpty()
                   ? tr("The print server refused the question to \"%1\". Look into its error log.")
                         .arg(queue_)
                   : answer.problem;
    }

    bool print(const LoadedPapers& loaded)
    {
        const std::shared_ptr<Bundle> bundle = bundles_.resources(bundle_);
        const auto words = [&](const QString& text) { return bundle ? bundle->localizedString(text) : text; };
        writeLine(out_, paperHeading(queue_, loaded, QDateTime::currentDateTimeUtc()));
        out_ << paperTable(loaded, file_.get(), words) << Qt::flush;
        if (!loaded.corrupt.isEmpty())
            return fail(tr("The list of papers that \"%1\" reported cannot be read (%2).")
                            .arg(queue_, loaded.corrupt) +
                        hint());
        if (loaded.papers.isEmpty())
            writeLine(out_, loaded.lastUpdate ? tr("No papers are loaded.")
                                              : tr("The printer has not said yet what is loaded.") +
                                                    (request_.refresh ? QString() : hint()));
        return true;
    }

    QString hint() const
    {
        return QLatin1Char(' ') + (request_.refresh
                                       ? tr("Look into the print server's error log, and ask again.")
                                       : tr("Ask it with --refresh."));
    }

    const ListPapersRequest& request_;
    const PluginLoader& bundles_;
    QTextStream& out_;
    QTextStream& err_;
    cups::CancelFlag cancelled_;
    QString queue_;
    bool isAccepting_ = true;
    std::shared_ptr<ppd_file_t> file_;
    QString bundle_;
    QString toldReasons_;
    QString resting_;
};

} // namespace

int listPapers(const ListPapersRequest& request, const PluginLoader& bundles, QTextStream& out,
               QTextStream& err)
{
    return PaperLister(request, bundles, out, err).run();
}

} // namespace halvern
