// SPDX-License-Identifier: MIT
#include "portal/print_call.h"

#include "dialog/job/pdf_output.h"
#include "dialog/page/photo_opening.h"
#include "dialog/window/print_dialog.h"
#include "dialog/window/review_switch.h"
#include "platform/foundation/threads/work_queue.h"
#include "portal/sent_job.h"

namespace halvern {

PrintCall::PrintCall(PortalRoom room, CallDetails details, const QDBusUnixFileDescriptor& document,
                     const QDBusMessage& message)
    : PortalCall(room, std::move(details), message), descriptor_(document)
{
}

PrintCall::~PrintCall()
{
    if (dialog_)
        disconnect(dialog_.get(), nullptr, this, nullptr);
}

void PrintCall::start()
{
    // A token is used up whatever becomes of the document.
    const QVariant token = details_.options.value(QStringLiteral("token"));
    if (token.typeId() == QMetaType::UInt)
        prepared_ = room_.tokens.take(token.toUInt(), details_.application);
    connect(&spool_, &DocumentSpool::finished, this, &PrintCall::takeDocument);
    spool_.start(descriptor_.fileDescriptor(), details_.title);
    descriptor_ = {};
}

void PrintCall::takeDocument(const SpooledDocument& document)
{
    document_ = document;
    if (!document.problem.isEmpty()) {
        fail(document.problem);
        return;
    }
    if (prepared_ && !reviewsDocuments())
        sendPrepared();
    else
        showDocument();
}

void PrintCall::showDocument()
{
    SessionRequest request = prepared_ ? prepared_->review : SessionRequest();
    if (request.title.isEmpty())
        request.title = details_.title;
    // A picture has no page of its own.
    if (document_.kind == DocumentKind::picture && request.scaling)
        request.scaling = Scaling::fit;
    if (document_.kind == DocumentKind::postScript)
        request.document = BlindDocument{true, applicationsName()};
    else
        request.files = QStringList(*document_.path);
    request.areFilesBorrowed = true;
    show(request);
}

void PrintCall::sendPrepared()
{
    if (document_.kind != DocumentKind::picture) {
        send(prepared_->order);
        return;
    }
    QPointer<PrintCall> self(this);
    const bool isStarted = WorkQueue().async([self, path = document_.path] {
        const PhotoFile file = openPhotoFile(*path);
        mainQueue().async([self, file] {
            if (self)
                self->sendPictures(file);
        });
    });
    if (!isStarted)
        fail(DocumentSpool::tooBusySentence());
}

// As the dialog prints a picture, in the place of the page that the application would have made.
void PrintCall::sendPictures(const PhotoFile& file)
{
    if (file.pages.empty()) {
        fail(file.problem);
        return;
    }
    // Whether one is to be printed that is not whole is asked there.
    if (!file.problem.isEmpty()) {
        showDocument();
        return;
    }
    const auto [paper, imageable] = prepared_->sheet;
    std::vector<SheetToPrint> sheets;
    for (const Photo& photo : file.pages)
        sheets.emplace_back(photo, layOut({paper, imageable, photo.ownSize}));
    send(std::make_unique<PrintRun>(named(prepared_->order), std::move(sheets),
                                    PdfQuality{prepared_->resolution}, nullptr));
}

// What was accepted goes to the printer, also if the application has gone.
void PrintCall::close()
{
    const bool isOnItsWay = isSent_ || (prepared_ && !dialog_ && !reviewsDocuments());
    if (isOnItsWay) {
        spool_.hurry();
        return;
    }
    if (dialog_ && (dialog_->isRunning() || dialog_->unfinishedFile())) {
        if (dialog_->isVisible())
            dialog_->done(QDialog::Rejected);
        return;
    }
    answer(PortalResponse::failed);
    Q_EMIT over();
}

void PrintCall::giveUp()
{
    hasGivenUp_ = true;
    if (dialog_ && dialog_->unfinishedFile())
        dialog_->unfinishedFile()->cancel();
    if (dialog_ && dialog_->isRunning())
        dialog_->run()->cancel();
    else if (!isSent_)
        fail(SentJob::givenUpSentence());
}

void PrintCall::fail(const QString& sentence)
{
    room_.notices.tell(applicationsName(), sentence, keepsAlive_);
    answer(PortalResponse::failed);
    Q_EMIT over();
}

JobRequest PrintCall::named(JobRequest order) const
{
    if (order.title.isEmpty())
        order.title = details_.title.isEmpty() ? applicationsName() : details_.title;
    return order;
}

void PrintCall::send(JobRequest order)
{
    order.format = mimeTypeOf(document_.kind);
    send(std::make_unique<PrintRun>(named(std::move(order)), *document_.path, nullptr));
}

void PrintCall::send(std::unique_ptr<PrintRun> run)
{
    auto* job = new SentJob(room_, applicationsName(), std::move(run), std::exchange(document_, {}));
    connect(job, &SentJob::submitted, this, [this] {
        answer(PortalResponse::done);
        Q_EMIT over();
    });
    connect(job, &SentJob::failed, this, [this] {
        answer(PortalResponse::failed);
        Q_EMIT over();
    });
    isSent_ = true;
    Q_EMIT sent(job);
    job->start();
}

void PrintCall::show(SessionRequest request)
{
    session_ = std::make_unique<DialogSession>(std::move(request), room_.panels);
    dialog_ = std::make_unique<PrintDialog>(*session_);
    connect(dialog_.get(), &QDialog::finished, this, &PrintCall::takeEnd);
    connect(dialog_.get(), &PrintDialog::started, this, &PrintCall::followRun);
    showDialog(*dialog_);
    session_->start();
}

void PrintCall::followRun()
{
    connect(dialog_->run(), &PrintRun::submitted, this, [this] { answer(PortalResponse::done); });
}

void PrintCall::takeEnd()
{
    if (dialog_->order()) {
        send(*dialog_->order());
        return;
    }
    PrintRun* const run = dialog_->run();
    if (dialog_->isRunning() && run->jobId() == 0) {
        // Still on its way: whoever closes the window leaves it alone.
        connect(run, &PrintRun::submitted, this, &PrintCall::over);
        connect(run, &PrintRun::finished, this,
                [this](const PrintOutcome& outcome) { takeOutcome(outcome); });
        return;
    }
    if (PdfOutput* const file = dialog_->unfinishedFile()) {
        // It is wanted, also without the window.
        connect(file, &PdfOutput::finished, this, [this](const PdfOutcome& outcome) {
            if (!outcome.isWritten && !outcome.wasCancelled)
                room_.notices.tell(applicationsName(), outcome.sentence, keepsAlive_);
            answer(PortalResponse::cancelled);
            Q_EMIT over();
        });
        return;
    }
    // What failed was told in the dialog.
    const bool hasFailed = run && !run->isCancelled() && !dialog_->outcome().printed && !dialog_->isRunning();
    answer(hasFailed ? PortalResponse::failed : PortalResponse::cancelled);
    Q_EMIT over();
}

void PrintCall::takeOutcome(const PrintOutcome& outcome)
{
    if (outcome.stage != JobStage::cancelled || hasGivenUp_) {
        fail(hasGivenUp_ ? SentJob::givenUpSentence() : outcome.sentence);
        return;
    }
    answer(PortalResponse::cancelled);
    Q_EMIT over();
}

} // namespace halvern
