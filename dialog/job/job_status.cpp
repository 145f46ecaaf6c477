// SPDX-License-Identifier: MIT
#include "dialog/job/job_status.h"

#include "dialog/job/auth_info.h"
#include "dialog/server/state_reasons.h"
#include "platform/foundation/list_text.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

namespace halvern {

namespace {

struct JobStatusWords {
    Q_DECLARE_TR_FUNCTIONS(JobStatus)
};

QStringList strings(ipp_t* answer, const char* name)
{
    QStringList result;
    ipp_attribute_t* found = ippFindAttribute(answer, name, IPP_TAG_ZERO);
    for (int i = 0; found && i < ippGetCount(found); ++i) {
        const QString text = QString::fromUtf8(ippGetString(found, i, nullptr));
        if (!text.isEmpty() && text != QLatin1StringView("none"))
            result.append(text);
    }
    return result;
}

int integer(ipp_t* answer, const char* name)
{
    ipp_attribute_t* found = ippFindAttribute(answer, name, IPP_TAG_ZERO);
    return found ? ippGetInteger(found, 0) : 0;
}

// A waiting job does not say that its printer is paused: the printer does.
cups::Ipp askPrinter(cups::Connection& server, const QString& queue)
{
    static const char* const kAttributes[] = {"printer-state-reasons"};
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    return server.request(std::move(request), "/");
}

bool isUnknownThere(const cups::Ipp& answer)
{
    return answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND;
}

// A server keeps no record of ended jobs if it is told so, and a deleted queue takes its jobs along.
JobStage whereTo(cups::Connection& server, const QString& queue)
{
    const cups::Ipp answer = askPrinter(server, queue);
    if (isUnknownThere(answer))
        return JobStage::lost;
    return answer ? JobStage::gone : JobStage::unknown;
}

bool isPaused(const JobStatus& status)
{
    return status.printerReasons.contains(QStringLiteral("paused")) ||
           status.reasons.contains(QStringLiteral("printer-stopped"));
}

QString pattern(const JobStatus& status)
{
    switch (status.stage) {
    case JobStage::waiting:
        return JobStatusWords::tr("Job %1 waits for \"%2\"%3.");
    case JobStage::blocked:
        return JobStatusWords::tr("Job %1 waits because \"%2\" is paused%3.");
    case JobStage::held:
        if (isHeldForLogin(status))
            return JobStatusWords::tr("Job %1 is held on \"%2\": the printer wants a name and a password%3.");
        if (status.reasons.contains(QStringLiteral("job-hold-until-specified")))
            return JobStatusWords::tr("Job %1 is held on \"%2\" because it was asked to wait%3.");
        return JobStatusWords::tr("Job %1 is held on \"%2\"%3.");
    case JobStage::printing:
        return JobStatusWords::tr("Job %1 is printing on \"%2\"%3.");
    case JobStage::stopped:
        return JobStatusWords::tr("Job %1 stopped on \"%2\"%3.");
    case JobStage::cancelled:
        return JobStatusWords::tr("Job %1 was cancelled on \"%2\".");
    case JobStage::aborted:
        return JobStatusWords::tr("Job %1 failed on \"%2\"%3. Print again; if it fails again, look into "
                                  "the print server's error log.");
    case JobStage::completed:
        return JobStatusWords::tr("Printed: job %1 on \"%2\".");
    case JobStage::gone:
        return JobStatusWords::tr("Job %1 has left the queue of \"%2\". The print server keeps no "
                                  "record of how it ended.");
    case JobStage::lost:
        return JobStatusWords::tr("\"%2\" is not on the print server any more, and job %1 with it. Look "
                                  "at the printer before you print again.");
    case JobStage::unknown:
        break;
    }
    return JobStatusWords::tr(
        "The print server does not answer. Job %1 was sent to \"%2\", and may be printed.");
}

// While a job gets on, its message is a filter's account of it; where it does not, it may be the reason.
bool mayBeTheReason(const JobStatus& status)
{
    return isResting(status.stage) || status.stage == JobStage::aborted ||
           status.stage == JobStage::cancelled;
}

} // namespace

JobStatus askJobStatus(const QString& queue, int jobId, const cups::CancelFlag& cancelled)
{
    cups::Connection server(cancelled, kJobQuestionLimits);
    return askJobStatus(server, queue, jobId);
}

JobStatus askJobStatus(cups::Connection& server, const QString& queue, int jobId)
{
    static const char* const kAttributes[] = {"job-state", "job-state-reasons", "job-printer-state-message",
                                              "job-printer-state-reasons", "job-media-sheets-completed"};
    JobStatus status;
    if (!server.isConnected()) {
        status.problem = server.error();
        return status;
    }
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    if (isUnknownThere(answer)) {
        status.stage = whereTo(server, queue);
        return status;
    }
    if (server.failed(answer)) {
        status.problem = server.error();
        return status;
    }
    status.reasons = strings(answer.get(), "job-state-reasons");
    status.printerReasons = strings(answer.get(), "job-printer-state-reasons");
    status.message = strings(answer.get(), "job-printer-state-message").join(QLatin1Char(' '));
    status.pagesDone = integer(answer.get(), "job-media-sheets-completed");
    const int state = integer(answer.get(), "job-state");
    if (state == IPP_JSTATE_PENDING || state == IPP_JSTATE_STOPPED) {
        if (const cups::Ipp printer = askPrinter(server, queue))
            status.printerReasons += strings(printer.get(), "printer-state-reasons");
    }
    status.stage = stageOf(state, status);
    if (isHeldForLogin(status))
        forgetAuthInfo(server, queue, jobId);
    else if (status.stage == JobStage::completed)
        authInfoWasRight(server, queue, jobId);
    return status;
}

JobStage stageOf(int ippState, const JobStatus& status)
{
    switch (ippState) {
    case IPP_JSTATE_PENDING:
        return isPaused(status) ? JobStage::blocked : JobStage::waiting;
    case IPP_JSTATE_HELD:
        return JobStage::held;
    case IPP_JSTATE_PROCESSING:
        return JobStage::printing;
    case IPP_JSTATE_STOPPED:
        return JobStage::stopped;
    case IPP_JSTATE_CANCELED:
        return JobStage::cancelled;
    case IPP_JSTATE_ABORTED:
        return JobStage::aborted;
    case IPP_JSTATE_COMPLETED:
        return JobStage::completed;
    default:
        return JobStage::unknown;
    }
}

bool hasEnded(JobStage stage)
{
    return stage == JobStage::cancelled || stage == JobStage::aborted || stage == JobStage::lost ||
           stage == JobStage::completed || stage == JobStage::gone;
}

bool isHeldForLogin(const JobStatus& status)
{
    return status.stage == JobStage::held &&
           status.reasons.contains(QStringLiteral("cups-held-for-authentication"));
}

bool isResting(JobStage stage)
{
    return stage == JobStage::held || stage == JobStage::stopped || stage == JobStage::blocked;
}

Remedy remedyFor(const JobStatus& status)
{
    switch (status.stage) {
    case JobStage::blocked:
        return Remedy::resumePrinter;
    case JobStage::held:
        return isHeldForLogin(status) ? Remedy::none : Remedy::releaseJob;
    case JobStage::stopped:
        return isPaused(status) ? Remedy::resumePrinter : Remedy::restartJob;
    default:
        return Remedy::none;
    }
}

QString jobReasons(const JobStatus& status)
{
    QStringList texts;
    for (const QString& reason : status.printerReasons) {
        const QString text = reasonText(reason);
        // A resting job's sentence says so itself.
        const bool isSaid = reason == QLatin1StringView("paused") && isResting(status.stage);
        if (!text.isEmpty() && !isSaid && !texts.contains(text))
            texts.append(text);
    }
    const QString message = mayBeTheReason(status) ? messageText(status.message) : QString();
    if (!message.isEmpty() && !texts.contains(message, Qt::CaseInsensitive))
        texts.append(message);
    return texts.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(listText(texts));
}

QString jobSentence(const JobStatus& status, const QString& printer, int jobId)
{
    const QString text = pattern(status);
    if (!text.contains(QLatin1StringView("%3")))
        return text.arg(QString::number(jobId), printer);
    return text.arg(QString::number(jobId), printer, jobReasons(status));
}

QString jobAdvice(const JobStatus& status, const QString& printer, int jobId)
{
    const char* text = nullptr;
    switch (remedyFor(status)) {
    case Remedy::none:
        if (!isHeldForLogin(status))
            return {};
        text =
            QT_TRANSLATE_NOOP("JobStatus", "Give them with \"halvern-print --jobs --sign-in %1\", or cancel "
                                           "the job with \"cancel %2-%1\".");
        break;
    case Remedy::resumePrinter:
        text = QT_TRANSLATE_NOOP("JobStatus", "See to the printer and resume it with \"cupsenable %2\", or "
                                              "cancel the job with \"cancel %2-%1\".");
        break;
    case Remedy::releaseJob:
        text = QT_TRANSLATE_NOOP(
            "JobStatus", "Release it with \"lp -i %1 -H resume\", or cancel it with \"cancel %2-%1\".");
        break;
    case Remedy::restartJob:
        text = QT_TRANSLATE_NOOP(
            "JobStatus", "Print it again with \"lp -i %1 -H restart\", or cancel it with \"cancel %2-%1\".");
        break;
    }
    return JobStatusWords::tr(text).arg(QString::number(jobId), printer);
}

} // namespace halvern
