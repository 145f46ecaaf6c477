#pragma once

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
    /// Starts the server. If that fails, isRunning() is false and error() has the script's words.
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

struct ScriptResult {
    int status = -1;
    QString output;
    QString error;
};

/// Runs scripts/private-cups.
ScriptResult runPrivateCups(const QStringList& arguments);

/// The environment that `start` printed.
std::map<QByteArray, QByteArray> parseAssignments(const QString& text);

} // namespace halvern
