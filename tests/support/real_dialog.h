// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"
#include "tests/support/test.h"

namespace halvern {

/// The print dialog on a queue of the private server in use, shown offscreen and worked like a user does.
class RealDialog {
public:
    /// `panels` outlives this object.
    RealDialog(const SessionRequest& request, PanelSource& panels);
    ~RealDialog();

    /// Whether printer and photo come.
    bool isReady();

    /// Shows the page with the identifier; false if there is none.
    bool showPage(const char* identifier);

    /// The shown page's control with the tag; never null, an unknown tag fails the test.
    QWidget* control(int tag);
    QLineEdit* field(int tag);
    QAbstractButton* button(int tag);

    /// Clicks the button if it is not in the state already.
    void setOn(int tag, bool on);

    /// Replaces what a field holds by a text, key by key. The focus stays in the field.
    void type(int tag, const QString& text);

    /// Presses Print and waits until the job has ended. The job's number, 0 if it was not printed.
    int print();

    /// The same with the keyboard's shortcut, which leaves the focus where it is.
    int printByKey();

    DialogSession session;
    PrintDialog dialog;

private:
    int jobWhenOver();
};

/// How many sheets the printer put out for the job.
qsizetype sheetsOf(const PrivateCups& server, int job);

} // namespace halvern
