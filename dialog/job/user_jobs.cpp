// SPDX-License-Identifier: MIT
#include "dialog/job/user_jobs.h"

#include "dialog/job/auth_info.h"
#include "dialog/server/state_reasons.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <functional>

namespace halvern {

namespace {

// More than anybody looks through; a server that keeps every job has a hundred thousand.
constexpr int kMostActive = 500;
constexpr int kMostEnded = 100;

struct UserJobsWords {
    Q_DECLARE_TR_FUNCTIONS(UserJobs)
};

QString firstText(ipp_attribute_t* attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

void readReasons(ipp_attribute_t* attribute, QStringList& reasons)
{
    for (int i = 0; i < ippGetCount(attribute); ++i) {
        const QString text = QString::fromUtf8(ippGetString(attribute, i, nullptr));
        if (!text.isEmpty() && text != QLatin1StringView("none"))
            reasons.append(text);
    }
}

/// A job as it is read, before its state can be told.
struct Reading {
    UserJob job;
    int state = 0;
};

struct Field {
    const char* name;
    void (*read)(ipp_attribute_t* attribute, Reading& reading);
};

constexpr Field kFields[] = {
    {"job-id", [](ipp_attribute_t* a, Reading& r) { r.job.id = ippGetInteger(a, 0); }},
    {"job-name", [](ipp_attribute_t* a, Reading& r) { r.job.title = firstText(a); }},
    {"job-state", [](ipp_attribute_t* a, Reading& r) { r.state = ippGetInteger(a, 0); }},
    {"job-state-reasons", [](ipp_attribute_t* a, Reading& r) { readReasons(a, r.job.status.reasons); }},
    {"job-printer-state-reasons",
     [](ipp_attribute_t* a, Reading& r) { readReasons(a, r.job.status.printerReasons); }},
    {"job-printer-state-message",
     [](ipp_attribute_t* a, Reading& r) { r.job.status.message = firstText(a); }},
    {"job-printer-uri",
     [](ipp_attribute_t* a, Reading& r) {
         r.job.queue =
             QString::fromUtf8(QByteArray::fromPercentEncoding(firstText(a).section(u'/', -1).toUtf8()));
     }},
    {"job-media-sheets-completed",
     [](ipp_attribute_t* a, Reading& r) { r.job.status.pagesDone = std::max(0, ippGetInteger(a, 0)); }},
    {"job-media-sheets",
     [](ipp_attribute_t* a, Reading& r) { r.job.pages = std::max(0, ippGetInteger(a, 0)); }},
    {"time-at-creation",
     [](ipp_attribute_t* a, Reading& r) {
         if (const int seconds = ippGetInteger(a, 0); seconds > 0)
             r.job.sent = QDateTime::fromSecsSinceEpoch(seconds);
     }},
    {"job-preserved", [](ipp_attribute_t* a, Reading& r) { r.job.isKept = ippGetBoolean(a, 0) != 0; }},
};

void readField(ipp_attribute_t* attribute, Reading& reading)
{
    const QLatin1StringView name(ippGetName(attribute));
    const auto* field = std::ranges::find_if(
        kFields, [&](const Field& each) { return name == QLatin1StringView(each.name); });
    if (field != std::end(kFields))
        field->read(attribute, reading);
}

std::vector<Reading> readJobs(ipp_t* answer)
{
    std::vector<Reading> jobs(1);
    for (ipp_attribute_t* a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        if (!ippGetName(a))
            jobs.emplace_back();
        else if (ippGetGroupTag(a) == IPP_TAG_JOB)
            readField(a, jobs.back());
    }
    std::erase_if(jobs, [](const Reading& reading) { return reading.job.id <= 0; });
    return jobs;
}

cups::Ipp askFor(cups::Connection& server, const QString& queue, const char* which, int limit)
{
    cups::Ipp request = cups::newRequest(IPP_OP_GET_JOBS, queue);
    if (queue.isEmpty())
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                     "ipp://localhost/");
    ippAddBoolean(request.get(), IPP_TAG_OPERATION, "my-jobs", 1);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, which);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", limit);
    std::vector<const char*> names;
    for (const Field& field : kFields)
        names.push_back(field.name);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(names.size()), nullptr, names.data());
    return server.request(std::move(request), "/");
}

// A waiting job does not say that its printer is paused: the printer does.
const QStringList& reasonsOf(const QString& queue, cups::Connection& server,
                             QHash<QString, QStringList>& known)
{
    const auto found = known.constFind(queue);
    if (found != known.cend())
        return *found;
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-state-reasons");
    QStringList reasons;
    if (const cups::Ipp answer = server.request(std::move(request), "/"))
        readReasons(ippFindAttribute(answer.get(), "printer-state-reasons", IPP_TAG_KEYWORD), reasons);
    return *known.insert(queue, reasons);
}

QString stageText(const JobStatus& status)
{
    switch (status.stage) {
    case JobStage::unknown:
        break;
    case JobStage::waiting:
        return UserJobsWords::tr("Waiting");
    case JobStage::blocked:
        return UserJobsWords::tr("Waiting: the printer is paused");
    case JobStage::held:
        return isHeldForLogin(status) ? UserJobsWords::tr("Held: the printer wants a name and a password")
                                      : UserJobsWords::tr("Held");
    case JobStage::printing:
        return UserJobsWords::tr("Printing");
    case JobStage::stopped:
        return UserJobsWords::tr("Stopped");
    case JobStage::cancelled:
        return UserJobsWords::tr("Cancelled");
    case JobStage::aborted:
        return UserJobsWords::tr("Failed");
    case JobStage::completed:
    case JobStage::gone:
    case JobStage::lost:
        return UserJobsWords::tr("Printed");
    }
    return UserJobsWords::tr("Unknown");
}

struct DeedRow {
    JobDeed deed;
    ipp_op_t operation;
    const char* forbidden;
};

constexpr DeedRow kDeeds[] = {
    {JobDeed::cancel, IPP_OP_CANCEL_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you cancel job %1. Ask whoever looks after it.")},
    {JobDeed::hold, IPP_OP_HOLD_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you hold job %1. Ask whoever looks after it.")},
    {JobDeed::release, IPP_OP_RELEASE_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you release job %1. Ask whoever looks after it.")},
    {JobDeed::printAgain, IPP_OP_RESTART_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you print job %1 again. Ask whoever looks after it.")},
    {JobDeed::signIn, IPP_OP_CUPS_AUTHENTICATE_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you sign in for job %1. Ask whoever looks after it.")},
    {JobDeed::move, IPP_OP_CUPS_MOVE_JOB,
     QT_TRANSLATE_NOOP("UserJobs",
                       "The print server does not let you move job %1 to another printer. Ask whoever looks "
                       "after it.")},
};

} // namespace

UserJobs askUserJobs(cups::Connection& server, const QString& queue, bool withEnded)
{
    UserJobs result;
    QHash<QString, QStringList> printerReasons;
    const auto take = [&](const char* which, int limit) {
        const cups::Ipp answer = askFor(server, queue, which, limit);
        if (server.failed(answer)) {
            result.problem = server.error();
            return;
        }
        for (Reading& reading : readJobs(answer.get())) {
            JobStatus& status = reading.job.status;
            if (reading.state == IPP_JSTATE_PENDING || reading.state == IPP_JSTATE_STOPPED)
                status.printerReasons += reasonsOf(reading.job.queue, server, printerReasons);
            status.stage = stageOf(reading.state, status);
            result.jobs.push_back(std::move(reading.job));
        }
    };
    take("not-completed", kMostActive);
    if (withEnded && result.problem.isEmpty())
        take("completed", kMostEnded);
    return result;
}

bool isPossible(JobDeed deed, const UserJob& job)
{
    const JobStage stage = job.status.stage;
    switch (deed) {
    case JobDeed::cancel:
    case JobDeed::move:
        return !hasEnded(stage);
    case JobDeed::hold:
        return stage == JobStage::waiting || stage == JobStage::blocked;
    case JobDeed::release:
        return stage == JobStage::held && remedyFor(job.status) == Remedy::releaseJob;
    case JobDeed::signIn:
        return isHeldForLogin(job.status);
    case JobDeed::printAgain:
        return job.isKept && (hasEnded(stage) || stage == JobStage::stopped);
    }
    return false;
}

ActionResult apply(JobDeed deed, const QString& queue, int jobId, const QString& target)
{
    const DeedRow& row = *std::ranges::find(kDeeds, deed, &DeedRow::deed);
    cups::Connection server(nullptr, kActionLimits);
    cups::Ipp request = cups::newRequest(row.operation, queue);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    if (deed == JobDeed::move) {
        char uri[HTTP_MAX_URI];
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                         "/printers/%s", target.toUtf8().constData());
        ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_URI, "job-printer-uri", nullptr, uri);
    }
    AuthInfo given;
    if (deed == JobDeed::signIn) {
        // What was given before has not let the job in.
        askForOtherAuthInfo(server, queue, jobId);
        const QStringList asked = askedOfUsers(server, queue);
        if (const QString missing = addAuthInfo(server, request.get(), queue, asked, nullptr, given);
            !missing.isEmpty())
            return {true, missing};
    }
    const cups::Ipp answer = server.request(std::move(request), "/jobs/");
    if (!server.failed(answer)) {
        rememberAuthInfo(server, queue, jobId, given);
        return {};
    }
    if (isForbidden(server, answer))
        return {true, UserJobsWords::tr(row.forbidden).arg(jobId)};
    const int status = answer ? ippGetStatusCode(answer.get()) : IPP_STATUS_OK;
    if (status == IPP_STATUS_ERROR_NOT_FOUND)
        return {true,
                deed == JobDeed::move
                    ? UserJobsWords::tr("Job %1 or the printer \"%2\" is not on the print server any more.")
                          .arg(QString::number(jobId), target)
                    : UserJobsWords::tr("Job %1 is not on the print server any more.").arg(jobId)};
    if (status == IPP_STATUS_ERROR_NOT_POSSIBLE)
        return {true,
                UserJobsWords::tr(
                    "That cannot be done with job %1 as it is now: it may have gone on or ended, or the "
                    "print server has not kept its pages.")
                    .arg(jobId)};
    return {answer != nullptr, server.error()};
}

QString jobStateText(const UserJob& job)
{
    return stageText(job.status) + (hasEnded(job.status.stage) ? QString() : jobReasons(job.status));
}

QString jobPagesText(const UserJob& job)
{
    const int done = job.status.pagesDone;
    if (job.pages > 0 && done <= job.pages)
        return UserJobsWords::tr("%1 of %2").arg(done).arg(job.pages);
    return done > 0 ? QString::number(done) : QString();
}

int indexOfJob(const std::vector<UserJob>& jobs, int id)
{
    const auto found = std::ranges::find(jobs, id, &UserJob::id);
    return found == jobs.end() ? -1 : int(found - jobs.begin());
}

} // namespace halvern
