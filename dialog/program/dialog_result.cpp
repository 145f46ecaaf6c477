// SPDX-License-Identifier: MIT
#include "dialog/program/dialog_result.h"

#include "dialog/program/exit_status.h"
#include "dialog/window/print_dialog.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace halvern {

namespace {

QString statusWord(int exitStatus)
{
    switch (exitStatus) {
    case kExitPrinted:
        return QStringLiteral("printed");
    case kExitUnfinished:
        return QStringLiteral("sent");
    case kExitCancelled:
        return QStringLiteral("cancelled");
    default:
        return QStringLiteral("failed");
    }
}

} // namespace

QByteArray dialogResult(DialogSession& session, PrintDialog& dialog, int exitStatus)
{
    QJsonObject result{{QStringLiteral("status"), statusWord(exitStatus)},
                       {QStringLiteral("exitStatus"), exitStatus}};
    const auto insert = [&result](const char* key, const QJsonValue& value) {
        result.insert(QLatin1StringView(key), value);
    };
    const PrintRun* run = dialog.run();
    insert("printer", session.printerName());
    insert("job", run ? run->jobId() : 0);
    insert("message", dialog.outcome().sentence);
    insert("title", session.jobTitle());
    insert("copies", session.page().copies);
    insert("pages", rangesOf(session.chosenPages().pages));
    QJsonObject options;
    if (exitStatus != kExitCancelled) {
        // Whoever reads this may keep it: no PIN and no password.
        const QSet<QString> secrets = session.model() ? session.model()->secrets() : QSet<QString>();
        for (const OptionValue& option : session.valuesToSend().list()) {
            if (!secrets.contains(option.key))
                options.insert(option.key, option.value);
        }
    }
    insert("options", options);
    return QJsonDocument(result).toJson(QJsonDocument::Compact);
}

} // namespace halvern
