#pragma once

#include "dialog/dialog_session.h"
#include "dialog/print_dialog.h"
#include "tests/support/private_cups.h"

#include <QLineEdit>

namespace halvern {

/// The print dialog on a queue of the private server in use, shown offscreen and worked like a user does.
class RealDialog {
public:
    RealDialog(const QString& queue, const QString& photo, PanelSource& panels);

    /// Whether printer and photo come.
    bool isReady();

    /// The shown page's control with the tag; never null, an unknown tag fails the test.
    QWidget* control(int tag);

    /// Selects what a field holds, types a text key by key, and leaves the field.
    void type(int tag, const char* text);

    /// Presses Print and waits until the job has ended. The job's number, 0 if it was not printed.
    int print();

    DialogSession session;
    PrintDialog dialog;
};

/// A photo of 600 x 400 pixels at `path`, in several tones.
QString makeTestPhoto(const QString& path);

/// How many sheets the printer put out for the job.
qsizetype sheetsOf(const PrivateCups& server, int job);

} // namespace halvern
