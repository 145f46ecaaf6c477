#include "dialog/job/job_status.h"

#include "dialog/server/state_reasons.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

namespace halvern {

namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("JobStatus", text);
}

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
void askPrinter(cups::Connection& server, const QString& queue, JobStatus& status)
{
    static const char* const kAttributes[] = {"printer-state-reasons"};
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (answer)
        status.printerReasons += strings(answer.get(), "printer-state-reasons");
}

bool isPaused(const JobStatus& status)
{
    return status.printerReasons.contains(QStringLiteral("paused")) ||
           status.reasons.contains(QStringLiteral("printer-stopped"));
}

JobStage stageOf(int state, const JobStatus& status)
{
    switch (state) {
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

QString heldWhy(const JobStatus& status)
{
    if (status.reasons.contains(QStringLiteral("job-hold-until-specified")))
        return words(QT_TRANSLATE_NOOP("JobStatus",
                                       "Job %1 is held on \"%2\" because it was asked to wait%3. Release it "
                                       "with \"lp -i %1 -H resume\", or cancel it."));
    return words(QT_TRANSLATE_NOOP("JobStatus",
                                   "Job %1 is held on \"%2\"%3. Release it with \"lp -i %1 -H resume\", or "
                                   "cancel it."));
}

QString pattern(const JobStatus& status)
{
    switch (status.stage) {
    case JobStage::waiting:
        return words(QT_TRANSLATE_NOOP("JobStatus", "Job %1 waits for \"%2\"%3."));
    case JobStage::blocked:
        return words(QT_TRANSLATE_NOOP("JobStatus",
                                       "Job %1 waits because \"%2\" is paused%3. Resume the printer "
                                       "(cupsenable), or cancel the job."));
    case JobStage::held:
        return heldWhy(status);
    case JobStage::printing:
        return words(QT_TRANSLATE_NOOP("JobStatus", "Job %1 is printing on \"%2\"%3."));
    case JobStage::stopped:
        return words(QT_TRANSLATE_NOOP("JobStatus",
                                       "Job %1 stopped on \"%2\"%3. See to the printer and resume it "
                                       "(cupsenable), or cancel the job."));
    case JobStage::cancelled:
        return words(QT_TRANSLATE_NOOP("JobStatus", "Job %1 was cancelled on \"%2\"."));
    case JobStage::aborted:
        return words(QT_TRANSLATE_NOOP("JobStatus",
                                       "Job %1 failed on \"%2\"%3. Print again; if it fails again, look into "
                                       "the print server's error log."));
    case JobStage::completed:
        return words(QT_TRANSLATE_NOOP("JobStatus", "Printed: job %1 on \"%2\"."));
    case JobStage::unknown:
        break;
    }
    return words(
        QT_TRANSLATE_NOOP("JobStatus", "The print server does not say what became of job %1 on \"%2\"%3."));
}

} // namespace

JobStatus askJobStatus(const QString& queue, int jobId, const cups::CancelFlag& cancelled)
{
    static const char* const kAttributes[] = {"job-state", "job-state-reasons", "job-printer-state-message",
                                              "job-printer-state-reasons", "job-media-sheets-completed"};
    JobStatus status;
    cups::Connection server(cancelled);
    if (!server.isConnected()) {
        status.problem = server.error();
        return status;
    }
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOB_ATTRIBUTES, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    if (server.failed(answer)) {
        status.problem = server.error();
        return status;
    }
    status.reasons = strings(answer.get(), "job-state-reasons");
    status.printerReasons = strings(answer.get(), "job-printer-state-reasons");
    status.message = strings(answer.get(), "job-printer-state-message").join(QLatin1Char(' '));
    status.pagesDone = integer(answer.get(), "job-media-sheets-completed");
    const int state = integer(answer.get(), "job-state");
    if (state == IPP_JSTATE_PENDING || state == IPP_JSTATE_STOPPED)
        askPrinter(server, queue, status);
    status.stage = stageOf(state, status);
    return status;
}

bool hasEnded(JobStage stage)
{
    return stage == JobStage::cancelled || stage == JobStage::aborted || stage == JobStage::completed;
}

bool isResting(JobStage stage)
{
    return stage == JobStage::held || stage == JobStage::stopped || stage == JobStage::blocked;
}

QString jobReasons(const JobStatus& status)
{
    QStringList texts;
    for (const QString& reason : status.printerReasons) {
        const QString text = reasonText(reason);
        if (!text.isEmpty() && !texts.contains(text))
            texts.append(text);
    }
    if (!status.message.isEmpty())
        texts.append(status.message);
    return texts.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(texts.join(QStringLiteral(", ")));
}

QString jobSentence(const JobStatus& status, const QString& printer, int jobId)
{
    const QString text = pattern(status);
    if (!text.contains(QLatin1StringView("%3")))
        return text.arg(QString::number(jobId), printer);
    return text.arg(QString::number(jobId), printer, jobReasons(status));
}

} // namespace halvern
