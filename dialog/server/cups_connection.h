#pragma once

#include <QString>

#include <atomic>
#include <memory>

struct _http_s;
struct _ipp_s;

namespace halvern::cups {

/// A flag that the main thread raises to make a worker give up its conversation with the server.
using CancelFlag = std::shared_ptr<std::atomic<bool>>;

CancelFlag makeCancelFlag();

struct HttpCloser {
    void operator()(_http_s* http) const;
};

struct IppDeleter {
    void operator()(_ipp_s* ipp) const;
};

using Http = std::unique_ptr<_http_s, HttpCloser>;
using Ipp = std::unique_ptr<_ipp_s, IppDeleter>;

/// A connection of the calling thread's own to the CUPS server. Never shared between threads. A server that
/// stays silent for `patienceSeconds`, or a raised flag, ends every wait.
class Connection {
public:
    explicit Connection(CancelFlag cancelled, int patienceSeconds = 12);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Null if the server cannot be reached; error() then says why.
    _http_s* http() const { return http_.get(); }

    bool isConnected() const { return http_ != nullptr; }

    bool isCancelled() const;

    /// Sends a request (ownership taken) to `resource` and waits for the answer. Null without an answer.
    /// An answer may still carry a failure: see failed().
    Ipp request(Ipp request, const char* resource);

    /// Whether the answer is missing or reports a failure; fills error().
    bool failed(const Ipp& answer);

    /// A sentence about the last failure in the user's language: what happened and what to do.
    QString error() const { return error_; }

private:
    static int keepWaiting(_http_s* http, void* self);
    void rememberFailure();

    CancelFlag cancelled_;
    int patience_;
    int waited_ = 0;
    int cancelConnect_ = 0;
    Http http_;
    QString error_;
};

/// A new request for `operation` on the queue, with the attributes that every request needs. With a null
/// queue name it is a request to the server itself.
Ipp newRequest(int operation, const QString& queue);

/// The sentence for a server that cannot be reached.
QString serverUnreachable();

} // namespace halvern::cups
