// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/printing/cups_connection.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <chrono>
#include <memory>
#include <optional>

/// The jobs of the CUPS server's queues.
namespace HALVERN_EXPORT halvern {
namespace jobs {

/// IPP job states, as Job::state has them.
inline constexpr int kPending = 3;
inline constexpr int kHeld = 4;
inline constexpr int kProcessing = 5;
inline constexpr int kStopped = 6;
inline constexpr int kCanceled = 7;
inline constexpr int kAborted = 8;
inline constexpr int kCompleted = 9;

struct Job {
    int id = 0;
    int state = 0;
};

using JobList = QList<Job>;

enum class Which { active, completed };

/// The state of the job with the ID; 0 if it is not in the list.
int stateOf(const JobList& list, int id);

/// The CUPS server's jobs, over a connection of its own that each exchange has so long for as `timeout` says.
/// Connects at the first call, and again after a failure. One thread at a time; every call blocks.
class Server {
public:
    explicit Server(std::chrono::milliseconds timeout = std::chrono::seconds(5));
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// All users' jobs of the destination, in the server's order; none after an error or without a name.
    JobList jobs(const QString& destination, Which which);

    /// Cancels a job and removes it from the server's history. False if the server refuses, or if the ID is
    /// not positive: CUPS takes 0 for the current job and -1 for all jobs, whoever they belong to.
    bool cancelAndPurge(const QString& destination, int id);

    /// Creates a job without options. Its ID; 0 on failure.
    int createJob(const QString& destination, const QString& title);

    /// Starts the job's only document, writes it and finishes it. False if that fails; the job may then exist
    /// without a document.
    bool sendDocument(const QString& destination, int id, const QString& name, const char* format,
                      const QByteArray& document);

    /// The destination's state reasons, in the server's order; nothing if there is no such destination.
    std::optional<QStringList> stateReasons(const QString& destination);

    /// Whether the last call ended because the server was silent.
    bool wasSilent() const { return wasSilent_; }

private:
    cups::Ipp ask(cups::Ipp request, const QByteArray& resource, const cups::NextPiece& nextPiece = {});

    std::unique_ptr<cups::Connection> connection_;
    std::chrono::milliseconds timeout_;
    bool wasSilent_ = false;
};

/// The format of a command job's document.
inline constexpr char kCommandFormat[] = "application/vnd.cups-command";

} // namespace jobs
} // namespace halvern
