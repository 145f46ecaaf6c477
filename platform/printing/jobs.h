#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <memory>
#include <optional>

struct _http_s;

/// The jobs of the CUPS server's queues.
namespace halvern::jobs {

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

/// A connection to the CUPS server that the calling thread's default connection would go to, with limits of
/// its own: a server that has stopped answering fails a call after about `timeout` seconds, where the default
/// connection would wait for ever. Connects at the first call, and again after a failure. One thread at a
/// time; every call blocks. On a thread other than the main one nobody is asked for a password.
class Server {
public:
    explicit Server(int timeout = 15);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// All users' jobs of the destination, in the server's order; none after an error or without a name.
    JobList jobs(const QString& destination, Which which);

    /// Cancels a job and removes it from the server's history. False if the server refuses, or if the ID is
    /// not positive: CUPS takes 0 for the current job and -1 for all jobs, whoever they belong to.
    bool cancelAndPurge(const QString& destination, int id);

    /// Creates a job without options. Its ID; 0 or less on failure.
    int createJob(const QString& destination, const QString& title);

    /// Starts the job's only document, writes it and finishes it. False if any of the three fails; the job
    /// may then exist without a document.
    bool sendDocument(const QString& destination, int id, const QString& name, const char* format,
                      const QByteArray& document);

    /// The options of the destination (without instance), in the server's order; nothing if there is no such
    /// destination.
    std::optional<QList<QPair<QString, QString>>> destinationOptions(const QString& destination);

private:
    struct Close {
        void operator()(_http_s* http) const;
    };

    _http_s* http();

    std::unique_ptr<_http_s, Close> http_;
    int timeout_;
};

/// The format of a command job's document.
inline constexpr char kCommandFormat[] = "application/vnd.cups-command";

} // namespace halvern::jobs
