// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QObject>

namespace halvern {

class DialogSession;
class PrintDialog;

/// What was chosen in a dialog when Print was pressed the last time, and what became of it; docs/portal.md
/// describes it. Main thread only; dialog and session outlive it.
class DialogResult : public QObject {
    Q_OBJECT

public:
    DialogResult(DialogSession& session, PrintDialog& dialog);

    /// A JSON object in a line, for a closed dialog.
    QByteArray json(int exitStatus);

private:
    QJsonObject chosen() const;
    QJsonObject sentOptions() const;

    DialogSession& session_;
    PrintDialog& dialog_;
    QJsonObject pressed_; // empty: Print was not pressed
    QString message_;
    QJsonObject job_; // the last one that was sent; empty: none was
};

} // namespace halvern
