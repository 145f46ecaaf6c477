// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"
#include "tests/support/test.h"

#include <atomic>
#include <mutex>
#include <thread>

namespace halvern {

/// A print server that a test plays, on the loopback, that this process's libcups talks to while the object
/// lives. Each connection has a thread. Main thread only.
class ScriptedServer {
public:
    /// The answer to a request, on a thread of the server's; null breaks the connection off instead.
    using Script = std::function<cups::Ipp(_ipp_s* request)>;

    /// What one with a fault does until the client leaves, once it has read a question and answered it with
    /// some bytes. A silent one hears what else is said, one that stalls does not.
    enum class Then { close, beSilent, stall, drip, flood };

    explicit ScriptedServer(Script script) : ScriptedServer(std::move(script), {}, Then::close) {}

    ScriptedServer(QByteArray answer, Then then) : ScriptedServer({}, std::move(answer), then) {}

    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    /// From now on "NAME:PASSWORD" is wanted for each request. Before the first one.
    void requireLogin(const QByteArray& login) { login_ = login; }

    /// The operations that were asked for, in order.
    QStringList asked() const;

    int port() const { return port_; }

    /// How many have come, and how many of them have not left.
    int connections() const { return connections_; }

    int callers() const { return callers_; }

    /// Whether it was a faulty server that ended a conversation, for having said all that it had.
    bool hasLetGo() const { return hasLetGo_; }

private:
    ScriptedServer(Script script, QByteArray answer, Then then);
    void accept();
    void converse(_http_s* http);
    void misbehave(int client);

    Script script_;
    QByteArray answer_;
    Then then_;
    QByteArray login_;
    int listener_;
    int port_ = 0;
    std::optional<QByteArray> before_;
    std::atomic<int> connections_ = 0;
    std::atomic<int> callers_ = 0;
    std::atomic<bool> hasLetGo_ = false;
    mutable std::mutex mutex_;
    QStringList asked_;
    std::vector<int> sockets_;
    std::vector<std::thread> threads_;
    std::thread thread_;
};

/// An answer with a status, for a script to add to.
cups::Ipp scriptedAnswer(int status = 0);

} // namespace halvern
