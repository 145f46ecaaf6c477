// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"
#include "platform/plugin_api/panel.h"

#include <QLabel>

namespace halvern {

/// What will be printed, and how: first what every job has, then what somebody chose page by page, and last,
/// in a line, what is switched off as the printer has it by default. Main thread only.
class SummaryPage : public QLabel {
    Q_OBJECT

public:
    SummaryPage(DialogSession& session, QWidget* parent);

    /// Takes the current values.
    void refresh();

private:
    struct Line {
        QString title;
        QString value;
    };

    QList<Line> jobLines() const;
    QList<Line> linesOf(const QStringList& keys);
    QList<Line> panelLines(halvern::Panel& panel);
    bool isOff(const QString& key) const;

    DialogSession& session_;
    QStringList off_;         // titles of what is switched off
    qsizetype notListed_ = 0; // values that are left out of a very long list
};

} // namespace halvern
