// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

#include <map>

namespace halvern {

/// A program of the test's own.
class ChildProcess {
public:
    ChildProcess();
    /// Kills the program if it still runs.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Starts a program, looked for in PATH, with this process's environment and what `more` sets in
    /// addition; a null value takes a variable out.
    bool start(const QString& program, const QStringList& arguments,
               const std::map<QByteArray, QByteArray>& more = {});

    /// Waits until it has ended: its exit status, -1 if a signal ended it or it has not ended in time.
    int wait(int milliseconds = 300'000);

    void kill();

    /// Sends it a signal, if it still runs.
    void signal(int number) const;

    QByteArray standardOutput();
    QByteArray standardError();

private:
    QProcess process_;
    QByteArray output_;
    QByteArray error_;
};

struct ProgramResult {
    /// -1: a signal ended it, or it has not ended in time.
    int status = -1;
    QString output;
    QString error;
};

/// Runs a program to its end.
ProgramResult runProgram(const QString& program, const QStringList& arguments,
                         const std::map<QByteArray, QByteArray>& more = {});

} // namespace halvern
