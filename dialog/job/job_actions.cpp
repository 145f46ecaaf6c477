// SPDX-License-Identifier: MIT
#include "dialog/job/job_actions.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

namespace halvern {

namespace {

struct JobActionsWords {
    Q_DECLARE_TR_FUNCTIONS(JobActions)
};

cups::Ipp send(cups::Connection& server, int operation, const QString& queue, int jobId)
{
    cups::Ipp request = cups::newRequest(operation, queue);
    if (jobId > 0)
        ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    return server.request(std::move(request), jobId > 0 ? "/jobs/" : "/admin/");
}

// With a job number it is about the job, without one about the queue.
ActionResult act(int operation, const QString& queue, int jobId, const char* forbidden)
{
    cups::Connection server(nullptr, kActionLimits);
    const cups::Ipp answer = send(server, operation, queue, jobId);
    if (!server.failed(answer))
        return {};
    if (isForbidden(server, answer))
        return {true, JobActionsWords::tr(forbidden).arg(queue)};
    // Somebody else was faster.
    if (answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_POSSIBLE)
        return {};
    return {answer != nullptr, server.error()};
}

} // namespace

bool isForbidden(const cups::Connection& server, const cups::Ipp& answer)
{
    const int status = answer ? ippGetStatusCode(answer.get()) : IPP_STATUS_OK;
    return server.wasForbidden() || status == IPP_STATUS_ERROR_FORBIDDEN ||
           status == IPP_STATUS_ERROR_NOT_AUTHENTICATED || status == IPP_STATUS_ERROR_NOT_AUTHORIZED;
}

ActionResult cancelJob(const QString& queue, int jobId)
{
    return act(IPP_OP_CANCEL_JOB, queue, jobId,
               QT_TRANSLATE_NOOP("JobActions",
                                 "The print server does not let you cancel this job. Ask whoever "
                                 "looks after it."));
}

ActionResult applyRemedy(Remedy remedy, const QString& queue, int jobId)
{
    switch (remedy) {
    case Remedy::none:
        return {};
    case Remedy::resumePrinter:
        return act(IPP_OP_RESUME_PRINTER, queue, 0,
                   QT_TRANSLATE_NOOP("JobActions", "The print server does not let you resume \"%1\". Ask "
                                                   "whoever looks after it; the job waits meanwhile."));
    case Remedy::releaseJob:
        return act(IPP_OP_RELEASE_JOB, queue, jobId,
                   QT_TRANSLATE_NOOP("JobActions", "The print server does not let you release the job. Ask "
                                                   "whoever looks after it; the job waits meanwhile."));
    case Remedy::restartJob:
        return act(IPP_OP_RESTART_JOB, queue, jobId,
                   QT_TRANSLATE_NOOP("JobActions",
                                     "The print server does not let you print the job again. Ask "
                                     "whoever looks after it."));
    }
    return {};
}

} // namespace halvern
