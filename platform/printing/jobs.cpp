#include "platform/printing/jobs.h"

#include <QCoreApplication>
#include <QThread>

#include <cups/cups.h>

#include <array>
#include <memory>
#include <span>

namespace halvern::jobs {

namespace {

constexpr int kAllUsers = 0;
constexpr int kPurge = 1;
constexpr int kLastDocument = 1;

/// The jobs that libcups allocated, freed by it.
class CupsJobs {
public:
    CupsJobs(http_t* http, const QByteArray& destination, int which)
        : count_(cupsGetJobs2(http, &jobs_, destination.constData(), kAllUsers, which))
    {
    }

    ~CupsJobs() { cupsFreeJobs(count_, jobs_); }

    CupsJobs(const CupsJobs&) = delete;
    CupsJobs& operator=(const CupsJobs&) = delete;

    // The count is -1 after an error.
    std::span<const cups_job_t> all() const { return {jobs_, count_ > 0 ? size_t(count_) : 0}; }

private:
    cups_job_t* jobs_ = nullptr;
    int count_;
};

/// The destinations that libcups allocated, freed by it.
class CupsDestinations {
public:
    explicit CupsDestinations(http_t* http) : count_(cupsGetDests2(http, &dests_)) {}

    ~CupsDestinations() { cupsFreeDests(count_, dests_); }

    CupsDestinations(const CupsDestinations&) = delete;
    CupsDestinations& operator=(const CupsDestinations&) = delete;

    const cups_dest_t* find(const QByteArray& name) const
    {
        return cupsGetDest(name.constData(), nullptr, count_, dests_);
    }

private:
    cups_dest_t* dests_ = nullptr;
    int count_;
};

using Ipp = std::unique_ptr<ipp_t, decltype([](ipp_t* message) { ippDelete(message); })>;

int giveUp(http_t*, void*)
{
    return 0;
}

const char* nobodyToAsk(const char*, http_t*, const char*, const char*, void*)
{
    return nullptr;
}

} // namespace

int stateOf(const JobList& list, int id)
{
    for (const Job& job : list) {
        if (job.id == id)
            return job.state;
    }
    return 0;
}

void Server::Close::operator()(_http_s* http) const
{
    httpClose(http);
}

Server::Server(int timeout) : timeout_(timeout)
{
    // The library's own way is to ask on the terminal that the dialog was started from.
    const QCoreApplication* app = QCoreApplication::instance();
    if (app && QThread::currentThread() != app->thread())
        cupsSetPasswordCB2(nobodyToAsk, nullptr);
}

Server::~Server() = default;

// A null connection would mean the default one to libcups, which waits without limit.
_http_s* Server::http()
{
    if (!http_) {
        http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 timeout_ * 1000, nullptr));
        if (http_)
            httpSetTimeout(http_.get(), timeout_, giveUp, nullptr);
    }
    return http_.get();
}

JobList Server::jobs(const QString& destination, Which which)
{
    JobList result;
    // Without a name the server would answer for all queues.
    if (destination.isEmpty() || !http())
        return result;
    const CupsJobs found(http(), destination.toUtf8(),
                         which == Which::active ? CUPS_WHICHJOBS_ACTIVE : CUPS_WHICHJOBS_COMPLETED);
    for (const cups_job_t& job : found.all())
        result.append({job.id, int(job.state)});
    return result;
}

bool Server::cancelAndPurge(const QString& destination, int id)
{
    if (id <= 0 || !http())
        return false;
    return cupsCancelJob2(http(), destination.toUtf8().constData(), id, kPurge) <= IPP_STATUS_OK_CONFLICTING;
}

// Not cupsCreateJob(): it looks the destination up first, and part of that goes over the default connection,
// beyond our time limit (measured: 124 s for a server that has stopped answering).
int Server::createJob(const QString& destination, const QString& title)
{
    if (destination.isEmpty() || !http())
        return 0;
    const QByteArray queue = destination.toUtf8();
    std::array<char, HTTP_MAX_URI> uri{};
    if (httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), int(uri.size()), "ipp", nullptr, "localhost", 0,
                         "/printers/%s", queue.constData()) < HTTP_URI_STATUS_OK)
        return 0;
    ipp_t* request = ippNewRequest(IPP_OP_CREATE_JOB);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title.toUtf8().constData());
    const QByteArray resource = "/printers/" + queue;
    const Ipp answer(cupsDoRequest(http(), request, resource.constData()));
    ipp_attribute_t* id = ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER);
    return id ? ippGetInteger(id, 0) : 0;
}

bool Server::sendDocument(const QString& destination, int id, const QString& name, const char* format,
                          const QByteArray& document)
{
    if (!http())
        return false;
    const QByteArray queue = destination.toUtf8();
    const http_status_t started =
        cupsStartDocument(http(), queue.constData(), id, name.toUtf8().constData(), format, kLastDocument);
    const http_status_t written = cupsWriteRequestData(http(), document.constData(), size_t(document.size()));
    const ipp_status_t finished = cupsFinishDocument(http(), queue.constData());
    return started == HTTP_STATUS_CONTINUE && written == HTTP_STATUS_CONTINUE &&
           finished <= IPP_STATUS_OK_CONFLICTING;
}

std::optional<QList<QPair<QString, QString>>> Server::destinationOptions(const QString& destination)
{
    if (!http())
        return std::nullopt;
    const CupsDestinations all(http());
    const cups_dest_t* found = all.find(destination.toUtf8());
    if (!found)
        return std::nullopt;
    QList<QPair<QString, QString>> result;
    for (const cups_option_t& option : std::span(found->options, size_t(found->num_options)))
        result.append({QString::fromUtf8(option.name), QString::fromUtf8(option.value)});
    return result;
}

} // namespace halvern::jobs
