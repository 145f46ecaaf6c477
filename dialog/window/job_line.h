// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QLabel>
#include <QTimer>

namespace halvern {

/// What Print would send, in a line of words above it; what does not fit is marked. It follows the session,
/// and reads it at most once in a turn of the event loop. Main thread only.
class JobLine : public QLabel {
    Q_OBJECT

public:
    JobLine(DialogSession& session, QWidget* parent);

    /// Takes the current values at once.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;

private:
    DialogSession& session_;
    QTimer soon_;
    QString shown_;
};

} // namespace halvern
