// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/child_process.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <map>
#include <optional>

namespace halvern {

/// A private CUPS server with virtual printers, for the life of the object: scripts/private-cups in a folder
/// of its own, with the environment that it prints set in this process. One at a time is what libcups in this
/// process talks to: the one started last. Main thread only.
class PrivateCups {
public:
    /// Starts the server; ends the test program with the script's words if that fails.
    PrivateCups();

    /// Stops the server and takes the environment back.
    ~PrivateCups();
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;

    bool isRunning() const { return running_; }

    const QString& error() const { return error_; }

    /// Adds a queue. An empty PPD is the Tessarin's, an empty URI the queue's own without faults; `more` are
    /// further arguments of the script's add-queue. False: not added, error() says why.
    bool addQueue(const QString& name, const QString& ppd = QString(), const QString& uri = QString(),
                  const QStringList& more = QStringList());

    /// DIR of the script, and the folder below it in which each job leaves its folder.
    QString dir() const;
    QString jobsDir() const;

    /// JOBS/ID/FILE.
    QString jobFile(int job, const QString& file) const;

    /// What options.txt of the job holds; nothing while the printer has not received the options.
    std::optional<std::map<QString, QString>> receivedOptions(int job) const;

    /// Ends the server before its time, as a failing one would; the object can then only be destroyed.
    bool stop();

private:
    QTemporaryDir folder_;
    std::map<QByteArray, std::optional<QByteArray>> saved_;
    QString error_;
    bool running_ = false;
};

/// Runs scripts/private-cups.
ProgramResult runPrivateCups(const QStringList& arguments);

/// What the server in use says of a job; nothing if it does not know the attribute.
QStringList jobAttribute(int job, const char* name);

/// The environment that `start` printed.
std::map<QByteArray, QByteArray> parseAssignments(const QString& text);

} // namespace halvern
