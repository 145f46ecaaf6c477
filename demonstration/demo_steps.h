// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextStream>

class QWidget;

namespace halvern {

class DialogSession;
class PrintDialog;

/// Works a print dialog like a user: real clicks and keys on controls found by object name or tag. Main
/// thread only; every step runs the event loop until its condition holds, or gives up after a time.
class DemoSteps {
public:
    /// Both outlive this object. Screenshots go into `screens`; what was done is written to `out`.
    DemoSteps(PrintDialog& dialog, DialogSession& session, QString screens, QTextStream& out);

    /// Runs one step; the sentence about a failure, empty on success.
    QString run(const QString& step);

private:
    QString waitReady();
    QString showPage(const QString& identifier);
    QString onTarget(const QString& verb, QWidget& target, const QString& value);
    QString choose(QWidget& target, const QString& choice);
    QString type(QWidget& target, const QString& text);
    QString slide(QWidget& target, const QString& value);
    QString waitFor(const QString& verb, const QString& target, const QString& value);
    QString runCommand(const QString& command);
    QString screenshot(const QString& name, const QString& target);
    QString print();
    QWidget* find(const QString& target) const;

    PrintDialog& dialog_;
    DialogSession& session_;
    QString screens_;
    QTextStream& out_;
};

} // namespace halvern
