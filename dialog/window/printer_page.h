// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/dialog_session.h"

#include <QWidget>

class QFormLayout;
class QLabel;

namespace halvern {

class SupplyBars;

/// What is going on with the selected printer: its state and what to do about it, since when, what waits,
/// what is left of its supplies. Main thread only.
class PrinterPage : public QWidget {
    Q_OBJECT

public:
    PrinterPage(DialogSession& session, QWidget* parent);

    /// Takes what is known now.
    void refresh();

private:
    QLabel* addLabel(const QString& name, const QString& title);
    void show(QLabel* label, const QString& text);
    QString membersText(const QStringList& members) const;

    DialogSession& session_;
    QFormLayout* form_;
    QLabel* state_;
    QLabel* advice_;
    QLabel* since_;
    QLabel* jobs_;
    QLabel* members_;
    QLabel* note_;
    SupplyBars* supplies_;
};

} // namespace halvern
