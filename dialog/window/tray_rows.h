// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QButtonGroup;
class QRadioButton;

namespace halvern {

/// What is in which of the printer's trays, each to be printed on by a click. Main thread only.
class TrayRows : public QWidget {
    Q_OBJECT

public:
    TrayRows(DialogSession& session, QWidget* parent);

    /// Takes what the printer tells and what is chosen.
    void refresh();

    /// Whether the printer tells of no tray.
    bool isEmpty() const { return texts_.isEmpty(); }

private:
    void setTexts(const QStringList& texts);

    DialogSession& session_;
    QButtonGroup* group_;
    QStringList texts_;
};

} // namespace halvern
