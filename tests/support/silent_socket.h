#pragma once

#include <QByteArray>

#include <cstring>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace halvern {

/// A server on a UNIX socket that takes calls and says nothing, while it exists. Main thread only.
class SilentSocket {
public:
    explicit SilentSocket(const QByteArray& path)
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
        if (bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            listen(socket_, 5) != 0)
            qFatal("no socket at %s", path.constData());
    }

    ~SilentSocket()
    {
        for (const int caller : callers_)
            close(caller);
        close(socket_);
    }

    SilentSocket(const SilentSocket&) = delete;
    SilentSocket& operator=(const SilentSocket&) = delete;

    /// How many have called so far.
    int calls()
    {
        for (int one = 0; (one = accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0;)
            callers_.push_back(one);
        return int(callers_.size());
    }

    /// Whether the last one to call still waits for an answer.
    bool hasCaller()
    {
        if (calls() == 0)
            return false;
        pollfd line{callers_.back(), POLLRDHUP, 0};
        return poll(&line, 1, 0) == 0;
    }

private:
    std::vector<int> callers_;
    int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
};

} // namespace halvern
