// SPDX-License-Identifier: MIT
#include "portal/sent_job.h"

#include "portal/life.h"

namespace halvern {

SentJob::SentJob(PortalRoom room, const QString& application, JobRequest job, SpooledDocument document)
    : room_(room),
      application_(application),
      document_(std::move(document)),
      keepsAlive_(room.life.hold()),
      run_(std::move(job), *document_.path, nullptr)
{
    connect(&run_, &PrintRun::submitted, this, [this] {
        document_.path.reset(); // the server has it
        Q_EMIT submitted();
    });
    connect(&run_, &PrintRun::followed, this, &SentJob::takeStatus);
    connect(&run_, &PrintRun::finished, this, &SentJob::takeOutcome);
}

// Nobody looks on, and what keeps a job from being printed is told once.
void SentJob::takeStatus(const JobStatus& status, const QString& sentence)
{
    const bool waitsForSomebody =
        (status.stage == JobStage::stopped || status.stage == JobStage::blocked) && !told_.contains(sentence);
    if (!waitsForSomebody)
        return;
    told_.insert(sentence);
    room_.notices.tell(application_, sentence, keepsAlive_);
}

void SentJob::takeOutcome(const PrintOutcome& outcome)
{
    if (!outcome.printed && outcome.stage != JobStage::cancelled)
        room_.notices.tell(application_, outcome.sentence, keepsAlive_);
    if (outcome.jobId == 0)
        Q_EMIT failed();
    Q_EMIT over();
}

} // namespace halvern
