// SPDX-License-Identifier: MIT
#include "platform/printing/jobs.h"

#include "platform/printing/cups_ppd.h"

#include <utility>

namespace halvern::jobs {

int stateOf(const JobList& list, int id)
{
    for (const Job& job : list) {
        if (job.id == id)
            return job.state;
    }
    return 0;
}

Server::Server(std::chrono::milliseconds timeout) : timeout_(timeout) {}

Server::~Server() = default;

cups::Ipp Server::ask(cups::Ipp request, const QByteArray& resource, const cups::NextPiece& nextPiece)
{
    if (!connection_)
        connection_ = std::make_unique<cups::Connection>(nullptr, cups::Limits{timeout_, timeout_});
    cups::Ipp answer;
    if (connection_->isConnected())
        answer = connection_->request(std::move(request), resource.constData(), nextPiece);
    wasSilent_ = connection_->wasSilent();
    if (connection_->failed(answer))
        answer.reset();
    if (!connection_->isConnected())
        connection_.reset();
    return answer;
}

JobList Server::jobs(const QString& destination, Which which)
{
    static const char* const kAttributes[] = {"job-id", "job-state"};
    JobList result;
    // Without a name the server would answer for all queues.
    if (destination.isEmpty())
        return result;
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOBS, destination);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr,
                 which == Which::active ? "not-completed" : "completed");
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = ask(std::move(request), "/");
    Job job;
    const auto finish = [&] {
        // A number that is none belongs to no job.
        if (const Job done = std::exchange(job, Job()); done.id > 0)
            result.append(done);
    };
    for (ipp_attribute_t* a = answer ? ippFirstAttribute(answer.get()) : nullptr; a;
         a = ippNextAttribute(answer.get())) {
        const char* name = ippGetName(a);
        if (!name || ippGetGroupTag(a) != IPP_TAG_JOB)
            finish();
        else if (qstrcmp(name, "job-id") == 0)
            job.id = ippGetInteger(a, 0);
        else if (qstrcmp(name, "job-state") == 0)
            job.state = ippGetInteger(a, 0);
    }
    finish();
    return result;
}

bool Server::cancelAndPurge(const QString& destination, int id)
{
    if (id <= 0 || destination.isEmpty())
        return false;
    cups::Ipp request = cups::newRequest(IPP_OP_CANCEL_JOB, destination);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "purge-job", 1);
    return ask(std::move(request), "/jobs/") != nullptr;
}

int Server::createJob(const QString& destination, const QString& title)
{
    if (destination.isEmpty())
        return 0;
    cups::Ipp request = cups::newRequest(IPP_OP_CREATE_JOB, destination);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 title.toUtf8().constData());
    return cups::jobIdOf(ask(std::move(request), "/printers/" + destination.toUtf8()));
}

bool Server::sendDocument(const QString& destination, int id, const QString& name, const char* format,
                          const QByteArray& document)
{
    cups::Ipp request = cups::newRequest(IPP_OP_SEND_DOCUMENT, destination);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 name.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr, format);
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "last-document", 1);
    return ask(std::move(request), "/printers/" + destination.toUtf8(), [left = document]() mutable {
               return std::optional(std::exchange(left, QByteArray()));
           }) != nullptr;
}

std::optional<QStringList> Server::stateReasons(const QString& destination)
{
    if (destination.isEmpty())
        return std::nullopt;
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, destination);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-state-reasons");
    const cups::Ipp answer = ask(std::move(request), "/");
    ipp_attribute_t* found =
        answer ? ippFindAttribute(answer.get(), "printer-state-reasons", IPP_TAG_KEYWORD) : nullptr;
    if (!found)
        return std::nullopt;
    QStringList reasons;
    for (int i = 0; i < ippGetCount(found); ++i)
        reasons += QString::fromUtf8(ippGetString(found, i, nullptr)).split(QLatin1Char(','));
    return reasons;
}

} // namespace halvern::jobs
