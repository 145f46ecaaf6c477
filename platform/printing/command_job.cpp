// SPDX-License-Identifier: MIT
#include "platform/printing/command_job.h"

#include "platform/printing/job_watch.h"

namespace halvern {

using jobs::Which;

QString commandFile(const QStringList& commands)
{
    return QStringLiteral("#CUPS-COMMAND\n%1\n").arg(commands.join(QLatin1Char('\n')));
}

int CommandJob::processingJob()
{
    for (const jobs::Job& job : server_.jobs(queue_, Which::active)) {
        if (job.state == jobs::kProcessing)
            return job.id;
    }
    return 0;
}

void CommandJob::send(const QStringList& commands)
{
    id_ = server_.createJob(queue_, QStringLiteral("Updating status ..."));
    if (id_ > 0)
        server_.sendDocument(queue_, id_, QStringLiteral("CommandJob"), jobs::kCommandFormat,
                             commandFile(commands).toUtf8());
}

CommandJob::End CommandJob::watch(const std::function<bool()>& isEnough, const std::function<bool()>& pause,
                                  AfterSilence afterSilence)
{
    JobWatch state(id_);
    for (;;) {
        switch (state.step()) {
        case JobWatch::Step::lookWhetherEnough:
            state.looked(isEnough());
            break;
        case JobWatch::Step::askForActiveJobs:
            state.gotActiveJobs(server_.jobs(queue_, Which::active));
            break;
        case JobWatch::Step::pause:
            state.paused(pause());
            break;
        case JobWatch::Step::askForCompletedJobs:
            if (afterSilence == AfterSilence::end && server_.wasSilent())
                return End::silent;
            state.gotCompletedJobs(server_.jobs(queue_, Which::completed));
            if (afterSilence == AfterSilence::end && server_.wasSilent())
                return End::silent;
            break;
        case JobWatch::Step::endEnough:
            return End::enough;
        case JobWatch::Step::endCompleted:
            return End::completed;
        case JobWatch::Step::endFailed:
            return End::failed;
        }
    }
}

} // namespace halvern
