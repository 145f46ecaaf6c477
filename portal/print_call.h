// SPDX-License-Identifier: MIT
#pragma once

#include "portal/document_spool.h"
#include "portal/portal_call.h"

#include <QDBusUnixFileDescriptor>

namespace halvern {

struct PhotoFile;
struct PrintOutcome;

class DialogSession;
class PrintRun;
class SentJob;

/// A document that an application hands over: printed at once with what was accepted for it before, or shown
/// in a dialog. Main thread only.
class PrintCall : public PortalCall {
    Q_OBJECT

public:
    PrintCall(PortalRoom room, CallDetails details, const QDBusUnixFileDescriptor& document,
              const QDBusMessage& message);
    ~PrintCall() override;

    void start() override;

    void close() override;
    void giveUp() override;

Q_SIGNALS:
    /// Sent without a window; the job outlives the call.
    void sent(halvern::SentJob* job);

private:
    void takeDocument(const SpooledDocument& document);
    void fail(const QString& sentence);
    void sendPrepared();
    void sendPictures(const PhotoFile& file);
    void send(JobRequest order);
    void send(std::unique_ptr<PrintRun> run);
    void showDocument();
    JobRequest named(JobRequest order) const;
    void show(SessionRequest request);
    void takeEnd();
    void takeOutcome(const PrintOutcome& outcome);
    void followRun();

    QDBusUnixFileDescriptor descriptor_;
    DocumentSpool spool_;
    SpooledDocument document_;
    std::optional<PreparedJob> prepared_;
    bool isSent_ = false;
    bool hasGivenUp_ = false;
    std::unique_ptr<DialogSession> session_;
    std::unique_ptr<PrintDialog> dialog_;
};

} // namespace halvern
