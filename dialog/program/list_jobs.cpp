// SPDX-License-Identifier: MIT
#include "dialog/program/list_jobs.h"

#include "dialog/program/exit_status.h"
#include "dialog/program/listings.h"
#include "dialog/program/queue_state.h"
#include "dialog/program/terminal_table.h"
#include "dialog/session/quit_signals.h"
#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace halvern {

namespace {

struct ListJobsWords {
    Q_DECLARE_TR_FUNCTIONS(ListJobs)
};

const char* wordOf(JobStage stage)
{
    switch (stage) {
    case JobStage::waiting:
    case JobStage::blocked:
        return "pending";
    case JobStage::held:
        return "held";
    case JobStage::printing:
        return "processing";
    case JobStage::stopped:
        return "stopped";
    case JobStage::cancelled:
        return "canceled";
    case JobStage::aborted:
        return "aborted";
    case JobStage::completed:
        return "completed";
    default:
        return "unknown";
    }
}

QString timeText(const QDateTime& sent)
{
    return sent.isValid() ? sent.toString(QStringLiteral("yyyy-MM-dd HH:mm")) : QString();
}

QJsonObject asJson(const UserJob& job)
{
    return {{QStringLiteral("id"), job.id},
            {QStringLiteral("queue"), job.queue},
            {QStringLiteral("title"), job.title},
            {QStringLiteral("state"), QLatin1StringView(wordOf(job.status.stage))},
            {QStringLiteral("reasons"), QJsonArray::fromStringList(job.status.reasons)},
            {QStringLiteral("printerReasons"), QJsonArray::fromStringList(job.status.printerReasons)},
            {QStringLiteral("sheetsDone"), job.status.pagesDone},
            {QStringLiteral("sent"), job.sent.toUTC().toString(Qt::ISODate)},
            {QStringLiteral("canPrintAgain"), isPossible(JobDeed::printAgain, job)}};
}

int fail(QTextStream& err, const QString& sentence)
{
    // Who has ended the program needs no sentences about conversations that this ended.
    if (!quitWasSignalled())
        writeLine(err, sentence);
    return kExitFailed;
}

QString doneText(JobDeed deed, int job, const QString& target)
{
    switch (deed) {
    case JobDeed::cancel:
        return ListJobsWords::tr("Job %1 was cancelled.").arg(job);
    case JobDeed::hold:
        return ListJobsWords::tr("Job %1 is held.").arg(job);
    case JobDeed::release:
        return ListJobsWords::tr("Job %1 was released.").arg(job);
    case JobDeed::printAgain:
        return ListJobsWords::tr("Job %1 is printed again.").arg(job);
    case JobDeed::signIn:
        return ListJobsWords::tr("Job %1 has what the printer asks for.").arg(job);
    case JobDeed::move:
        break;
    }
    return ListJobsWords::tr("Job %1 was moved to \"%2\".").arg(QString::number(job), target);
}

int carryOut(const ListJobsRequest& request, QTextStream& out, QTextStream& err)
{
    cups::Connection server(quitFlag());
    const UserJobs all = askUserJobs(server, request.printer, true);
    if (!all.problem.isEmpty())
        return fail(err, all.problem);
    const int place = indexOfJob(all.jobs, request.jobId);
    if (place < 0 && request.printer.isEmpty())
        return fail(err,
                    ListJobsWords::tr("You have no job %1 on the print server. --jobs --ended lists yours.")
                        .arg(request.jobId));
    if (place < 0)
        return fail(err, ListJobsWords::tr("You have no job %1 on \"%2\". --jobs --ended lists yours.")
                             .arg(QString::number(request.jobId), request.printer));
    const ActionResult result =
        apply(*request.deed, all.jobs[size_t(place)].queue, request.jobId, request.target);
    if (!result.problem.isEmpty())
        return fail(err, result.problem);
    writeLine(out, doneText(*request.deed, request.jobId, request.target));
    return kExitPrinted;
}

} // namespace

int listJobs(const ListJobsRequest& asked, QTextStream& out, QTextStream& err)
{
    ListJobsRequest request = asked;
    // Whether there is such a queue, with the names of those that there are. An instance's jobs are its
    // queue's.
    for (QString* named : {&request.printer, &request.target}) {
        const FoundQueue found = named->isEmpty() ? FoundQueue() : findQueue(*named, quitFlag());
        if (!found.problem.isEmpty())
            return fail(err, found.problem);
        *named = found.name;
    }
    if (request.deed)
        return carryOut(request, out, err);
    cups::Connection server(quitFlag());
    const UserJobs answer = askUserJobs(server, request.printer, request.withEnded);
    if (!answer.problem.isEmpty())
        return fail(err, answer.problem);
    if (request.asJson) {
        QJsonArray entries;
        for (const UserJob& job : answer.jobs)
            entries.append(asJson(job));
        writeJson(out, QJsonDocument(entries));
        return kExitPrinted;
    }
    if (answer.jobs.empty()) {
        writeLine(err, ListJobsWords::tr("You have no jobs there."));
        return kExitPrinted;
    }
    QList<QStringList> rows{{ListJobsWords::tr("No."), ListJobsWords::tr("Printer"),
                             ListJobsWords::tr("State"), ListJobsWords::tr("Pages"),
                             ListJobsWords::tr("Sent"), ListJobsWords::tr("Job")}};
    for (const UserJob& job : answer.jobs)
        rows.append({QString::number(job.id), terminalText(job.queue), terminalText(jobStateText(job)),
                     jobPagesText(job), timeText(job.sent), terminalText(job.title)});
    writeLines(out, alignedColumns(rows).chopped(1));
    return kExitPrinted;
}

} // namespace halvern
