#pragma once

#include "platform/printing/cups_connection.h"

#include <QStringList>
#include <QTemporaryDir>

#include <mutex>
#include <thread>
#include <vector>

namespace halvern {

/// A print server that a test plays, on a UNIX socket that this process's libcups talks to while the object
/// lives. Each connection has a thread. Main thread only.
class ScriptedServer {
public:
    /// The answer to a request, on a thread of the server's; null breaks the connection off instead.
    using Script = std::function<cups::Ipp(_ipp_s* request)>;

    explicit ScriptedServer(Script script);
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    /// The operations that were asked for, in order.
    QStringList asked() const;

private:
    void accept();
    void converse(_http_s* http);

    Script script_;
    QTemporaryDir folder_;
    int listener_;
    std::optional<QByteArray> before_;
    mutable std::mutex mutex_;
    QStringList asked_;
    std::vector<int> sockets_;
    std::vector<std::thread> threads_;
    std::thread thread_;
};

/// An answer with a status, for a script to add to.
cups::Ipp scriptedAnswer(int status = 0);

} // namespace halvern
