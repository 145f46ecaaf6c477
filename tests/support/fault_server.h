#pragma once

#include <QByteArray>

#include <atomic>
#include <optional>
#include <thread>

namespace halvern {

/// A print server with a fault, on the loopback, that this process's libcups talks to while the object lives.
/// It takes one connection after the other, reads a question, answers with `answer` and goes on as `then`
/// says until the client leaves. Main thread only.
class FaultServer {
public:
    enum class Then { close, beSilent, drip, flood };

    FaultServer(QByteArray answer, Then then);
    ~FaultServer();
    FaultServer(const FaultServer&) = delete;
    FaultServer& operator=(const FaultServer&) = delete;

    int connections() const { return connections_; }

    /// Whether it was the server that ended a conversation, for having said all that it had.
    bool hasLetGo() const { return hasLetGo_; }

private:
    void run();
    void converse(int client);
    bool waitFor(int socket, int milliseconds) const;

    QByteArray answer_;
    Then then_;
    int listener_;
    int stop_[2];
    std::atomic<int> connections_ = 0;
    std::atomic<bool> hasLetGo_ = false;
    std::optional<QByteArray> before_;
    std::thread thread_;
};

} // namespace halvern
