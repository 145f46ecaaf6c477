// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/server/printer_actions.h"
#include "dialog/session/dialog_session.h"

#include <QWidget>

namespace halvern {

/// Buttons for what would help the selected printer: "Resume" and the like; none while it needs no help. The
/// server decides who may. Main thread only.
class PrinterButtons : public QWidget {
    Q_OBJECT

public:
    PrinterButtons(DialogSession& session, QWidget* parent);

    void refresh();

Q_SIGNALS:
    /// The server refused, or did not answer; a sentence.
    void failed(const QString& sentence);

private:
    void run(PrinterAction action);

    DialogSession& session_;
    QList<PrinterAction> actions_;
};

} // namespace halvern
