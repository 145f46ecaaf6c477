// SPDX-License-Identifier: MIT
#include "portal/sent_job.h"

#include "portal/life.h"

namespace halvern {

namespace {

constexpr Patience kJobPatience{.untilGivenUp = std::chrono::minutes(2)};

} // namespace

SentJob::SentJob(PortalRoom room, const QString& application, std::unique_ptr<PrintRun> run,
                 SpooledDocument document)
    : room_(room),
      application_(application),
      document_(std::move(document)),
      keepsAlive_(room.life.hold()),
      run_(std::move(run))
{
    run_->setPatience(kJobPatience);
    connect(run_.get(), &PrintRun::submitted, this, [this] {
        document_.path.reset(); // the server has it
        Q_EMIT submitted();
    });
    connect(run_.get(), &PrintRun::followed, this, &SentJob::takeStatus);
    connect(run_.get(), &PrintRun::finished, this, &SentJob::takeOutcome);
}

// Nobody looks on, and what keeps a job from being printed is told once.
void SentJob::takeStatus(const JobStatus& status, const QString& sentence)
{
    const bool waitsForSomebody =
        status.stage == JobStage::stopped || status.stage == JobStage::blocked || isHeldForLogin(status);
    if (!waitsForSomebody || told_.contains(sentence))
        return;
    told_.insert(sentence);
    const QString advice =
        isHeldForLogin(status)
            ? QLatin1Char(' ') + tr("Sign in for it in the list of jobs: \"Jobs...\" in the print dialog.")
            : QString();
    room_.notices.tell(application_, sentence + advice, keepsAlive_);
}

void SentJob::giveUp()
{
    hasGivenUp_ = true;
    run_->cancel();
}

QString SentJob::givenUpSentence()
{
    return tr("The document was not printed: the session ended before the print server had all of it. "
              "Print it once more.");
}

void SentJob::takeOutcome(const PrintOutcome& outcome)
{
    if (hasGivenUp_ && outcome.stage == JobStage::cancelled)
        room_.notices.tell(application_, givenUpSentence(), keepsAlive_);
    else if (!outcome.printed && outcome.stage != JobStage::cancelled)
        room_.notices.tell(application_, outcome.sentence, keepsAlive_);
    if (outcome.jobId == 0)
        Q_EMIT failed();
    Q_EMIT over();
}

} // namespace halvern
