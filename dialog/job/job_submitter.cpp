#include "dialog/job/job_submitter.h"

#include "dialog/job/ipp_options.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QFile>

namespace halvern {

namespace {

constexpr qint64 kChunk = 64 * 1024;

// Short: the name goes over the wire as an IPP name.
QByteArray shortTitle(const QString& title)
{
    QString text = title;
    while (text.toUtf8().size() > 255)
        text.chop(1);
    return text.toUtf8();
}

int createJob(cups::Connection& server, const JobRequest& job, QString* problem)
{
    cups::Ipp request = cups::newRequest(IPP_OP_CREATE_JOB, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 shortTitle(job.title).constData());
    for (const OptionValue& option : job.options) {
        *problem = addJobOption(request.get(), option);
        if (!problem->isEmpty())
            return 0;
    }
    const QByteArray resource = "/printers/" + job.queue.toUtf8();
    const cups::Ipp answer = server.request(std::move(request), resource.constData());
    if (server.failed(answer)) {
        *problem = server.error();
        return 0;
    }
    ipp_attribute_t* id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
    return id ? ippGetInteger(id, 0) : 0;
}

bool sendFile(cups::Connection& server, const JobRequest& job, int jobId, QFile& file,
              const std::function<void(double)>& progress)
{
    const QByteArray queue = job.queue.toUtf8();
    if (cupsStartDocument(server.http(), queue.constData(), jobId, shortTitle(job.title).constData(),
                          CUPS_FORMAT_PDF, 1) != HTTP_STATUS_CONTINUE)
        return false;
    qint64 sent = 0;
    while (!file.atEnd()) {
        const QByteArray piece = file.read(kChunk);
        if (piece.isEmpty() || server.isCancelled() ||
            cupsWriteRequestData(server.http(), piece.constData(), size_t(piece.size())) !=
                HTTP_STATUS_CONTINUE)
            return false;
        sent += piece.size();
        progress(double(sent) / double(file.size()));
    }
    return cupsFinishDocument(server.http(), queue.constData()) < IPP_STATUS_REDIRECTION_OTHER_SITE;
}

} // namespace

QString cancelJob(const QString& queue, int jobId)
{
    cups::Connection server(nullptr);
    cups::Ipp request = cups::newRequest(IPP_OP_CANCEL_JOB, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    if (answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_POSSIBLE)
        return {};
    return server.failed(answer) ? server.error() : QString();
}

SubmitResult submitJob(const JobRequest& job, const cups::CancelFlag& cancelled,
                       const std::function<void(double)>& progress)
{
    SubmitResult result;
    QFile file(job.documentPath);
    if (!file.open(QIODevice::ReadOnly)) {
        result.problem =
            QCoreApplication::translate("Photo", "The print job's temporary file is gone. Print again.");
        return result;
    }
    cups::Connection server(cancelled);
    if (!server.isConnected()) {
        result.problem = server.error();
        return result;
    }
    result.jobId = createJob(server, job, &result.problem);
    const bool isSent = result.jobId > 0 && sendFile(server, job, result.jobId, file, progress);
    if (isSent)
        return result;
    result.wasCancelled = server.isCancelled();
    if (result.jobId > 0) {
        server.failed(nullptr);
        result.problem = server.error();
        // On a connection of its own: this one is in the middle of a document.
        cancelJob(job.queue, result.jobId);
        result.jobId = 0;
    }
    return result;
}

} // namespace halvern
