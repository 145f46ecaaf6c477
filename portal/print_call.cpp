// SPDX-License-Identifier: MIT
#include "portal/print_call.h"

#include "dialog/window/print_dialog.h"
#include "dialog/window/review_switch.h"
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
    if (prepared_ && !reviewsDocuments()) {
        send(prepared_->order);
        return;
    }
    SessionRequest request = prepared_ ? prepared_->review : SessionRequest();
    if (request.title.isEmpty())
        request.title = details_.title;
    if (document.kind == DocumentKind::postScript)
        request.document = BlindDocument{true, applicationsName()};
    else
        request.files = QStringList(*document.path);
    show(request);
}

// What was accepted goes to the printer, also if the application has gone.
void PrintCall::close()
{
    answer(PortalResponse::failed);
    if (prepared_ && !dialog_ && !reviewsDocuments())
        return;
    if (dialog_ && dialog_->isRunning()) {
        dialog_->done(QDialog::Rejected);
        return;
    }
    Q_EMIT over();
}

void PrintCall::fail(const QString& sentence)
{
    room_.notices.tell(applicationsName(), sentence, keepsAlive_);
    answer(PortalResponse::failed);
    Q_EMIT over();
}

void PrintCall::send(JobRequest order)
{
    if (order.title.isEmpty())
        order.title = details_.title.isEmpty() ? applicationsName() : details_.title;
    order.format = mimeTypeOf(document_.kind);
    // A picture has no page of its own.
    const bool isPicture = document_.kind != DocumentKind::pdf && document_.kind != DocumentKind::postScript;
    for (OptionValue& option : order.options) {
        if (isPicture && option.key == QLatin1StringView("print-scaling"))
            option.value = QStringLiteral("fit");
    }
    auto* job = new SentJob(room_, applicationsName(), std::move(order), std::exchange(document_, {}));
    connect(job, &SentJob::submitted, this, [this] {
        answer(PortalResponse::done);
        Q_EMIT over();
    });
    connect(job, &SentJob::failed, this, [this] {
        answer(PortalResponse::failed);
        Q_EMIT over();
    });
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
    // What failed was told in the dialog.
    const bool hasFailed = run && !run->isCancelled() && !dialog_->outcome().printed && !dialog_->isRunning();
    answer(hasFailed ? PortalResponse::failed : PortalResponse::cancelled);
    Q_EMIT over();
}

void PrintCall::takeOutcome(const PrintOutcome& outcome)
{
    if (outcome.stage != JobStage::cancelled) {
        fail(outcome.sentence);
        return;
    }
    answer(PortalResponse::cancelled);
    Q_EMIT over();
}

} // namespace halvern
