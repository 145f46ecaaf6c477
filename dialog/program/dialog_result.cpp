// SPDX-License-Identifier: MIT
#include "dialog/program/dialog_result.h"

#include "dialog/program/exit_status.h"
#include "dialog/window/print_dialog.h"

#include <QJsonDocument>

namespace halvern {

namespace {

QString statusWord(int exitStatus)
{
    switch (exitStatus) {
    case kExitPrinted:
        return QStringLiteral("printed");
    case kExitUnfinished:
        return QStringLiteral("sent");
    case kExitUnknown:
        return QStringLiteral("unknown");
    case kExitCancelled:
        return QStringLiteral("cancelled");
    default:
        return QStringLiteral("failed");
    }
}

} // namespace

DialogResult::DialogResult(DialogSession& session, PrintDialog& dialog) : session_(session), dialog_(dialog)
{
    // What is chosen afterwards is not what was sent.
    connect(&dialog, &PrintDialog::started, this, [this] {
        pressed_ = chosen();
        pressed_.insert(QStringLiteral("options"), sentOptions());
        connect(dialog_.run(), &PrintRun::submitted, this, [this](int id) {
            job_ = pressed_;
            job_.insert(QStringLiteral("job"), id);
        });
        connect(dialog_.run(), &PrintRun::finished, this, [this](const PrintOutcome& outcome) {
            if (dialog_.run()->jobId() > 0 || job_.isEmpty())
                message_ = outcome.sentence;
        });
    });
}

QJsonObject DialogResult::chosen() const
{
    return {{QStringLiteral("printer"), session_.printerName()},
            {QStringLiteral("title"), session_.jobTitle()},
            {QStringLiteral("copies"), session_.page().copies},
            {QStringLiteral("pages"), rangesOf(session_.printedPhotos())}};
}

QJsonObject DialogResult::sentOptions() const
{
    const JobRequest& job = dialog_.run()->job();
    QJsonObject options;
    for (const OptionValue& option : job.options) {
        // Whoever reads this may keep it: no PIN and no password.
        if (!job.secrets.contains(option.key))
            options.insert(option.key, option.value);
    }
    return options;
}

QByteArray DialogResult::json(int exitStatus)
{
    QJsonObject result = job_.isEmpty() ? pressed_ : job_;
    if (result.isEmpty()) {
        result = chosen();
        result.insert(QStringLiteral("options"), QJsonObject());
    }
    result.insert(QStringLiteral("status"), statusWord(exitStatus));
    result.insert(QStringLiteral("exitStatus"), exitStatus);
    result.insert(QStringLiteral("job"), job_.value(QStringLiteral("job")).toInt());
    result.insert(QStringLiteral("message"), message_);
    return QJsonDocument(result).toJson(QJsonDocument::Compact);
}

} // namespace halvern
