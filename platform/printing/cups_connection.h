// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"
#include "platform/printing/access.h"
#include "platform/printing/exchange_watch.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

struct _http_s;
struct _ipp_s;

/// The one way to the CUPS server, for the dialog and for panels.
namespace HALVERN_EXPORT halvern {
namespace cups {

CancelFlag makeCancelFlag();

struct HttpCloser {
    void operator()(_http_s* http) const;
};

struct IppDeleter {
    void operator()(_ipp_s* ipp) const;
};

using Http = std::unique_ptr<_http_s, HttpCloser>;
using Ipp = std::unique_ptr<_ipp_s, IppDeleter>;

/// How much a server may ask of who asks it.
struct Limits {
    std::chrono::milliseconds silence{10000}; ///< without a byte
    std::chrono::milliseconds whole{
        10000};                      ///< to connect, ask and read the whole answer; not to send a document
    qint64 bytes = 16 * 1024 * 1024; ///< of an answer, unpacked
};

/// Who is asked in place of the server that the environment names: a printer, which gets no password of
/// anybody's.
struct Host {
    QByteArray name;
    int port = 0;
    bool isEncrypted = false;
};

/// The next piece of a document to be sent, empty at its end; nothing to give up.
using NextPiece = std::function<std::optional<QByteArray>()>;

/// A connection of one thread at a time to the CUPS server that the environment names. Every wait ends at its
/// limits or when the flag is raised. A name and
/// a password that the server wants, or a certificate of its that is not to be trusted, are asked of
/// cups::Access; that time does not count. A server with a kept certificate is talked to in secret. A
/// document goes out once: a server that wants to know who sends it only then has broken off. After a failed
/// exchange the next one connects anew.
class Connection {
public:
    explicit Connection(CancelFlag cancelled, const Limits& limits = {});
    Connection(Host host, CancelFlag cancelled, const Limits& limits);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// False if the server cannot be reached; error() then says why.
    bool isConnected() const { return http_ != nullptr; }

    bool isCancelled() const;

    /// Sends a request (ownership taken) to `resource`, with a document behind it if one is given, and waits
    /// for the answer. Null without an answer. An answer may still carry a failure: see failed().
    Ipp request(Ipp request, const char* resource, const NextPiece& nextPiece = {});

    /// What the server has under `resource`; nothing after a failure.
    std::optional<QByteArray> get(const char* resource);

    /// Whether the answer is missing or reports a failure; fills error().
    bool failed(const Ipp& answer);

    /// Whether the last exchange ended because the server was silent or took too long.
    bool wasSilent() const { return failure_ == Failure::silent; }

    /// Whether it ended because the answer went over the limit.
    bool wasTooMuch() const { return failure_ == Failure::tooMuch; }

    /// Whether the server said in the last exchange that what was asked for is not there.
    bool wasNotFound() const;

    /// Whether it wanted a name and a password, or another one's, before it looked at the question.
    bool wasForbidden() const;

    /// Whether the last request, although it has no answer, may have been carried out.
    bool mayBeDone() const;

    /// Whether what goes over it can be read by nobody on the way: it is encrypted, or does not leave the
    /// computer.
    bool isPrivate() const;

    /// Before something secret: encrypts if the server can; isPrivate() then tells. False if it is not the
    /// server that is meant, or gone; error() then says so.
    bool tryToEncrypt();

    /// The server as its user knows it, with a port that is not the usual one.
    QString hostName() const;

    /// A sentence about the last failure in the user's language: what happened and what to do.
    QString error() const { return error_; }

private:
    enum class Failure { none, unreachable, untrusted, silent, cancelled, tooMuch, brokenOff, refused };
    struct Question;

    Http makeHttp() const;
    static int keepWaiting(_http_s* http, void* self);
    static ssize_t readPiece(void* self, unsigned char* buffer, size_t length);
    bool open(ExchangeWatch& watch);
    bool connect(ExchangeWatch& watch);
    bool mayEncrypt() const;
    int ask(const Question& question, ExchangeWatch& watch);
    int exchange(const Question& question, ExchangeWatch& watch);
    static const char* giveLogin(const char* prompt, _http_s* http, const char* method, const char* resource,
                                 void* self);
    bool authenticate(const Question& question, ExchangeWatch& watch);
    bool answerRefusal(const Question& question, int status, ExchangeWatch& watch);
    void takeSuccess(const Question& question);
    void nameUser(_ipp_s* request) const;
    bool encrypt(ExchangeWatch& watch);
    bool isTrusted(ExchangeWatch& watch);
    bool sendQuestion(const Question& question);
    bool sendDocument(const NextPiece& nextPiece, ExchangeWatch& watch, int& status);
    ssize_t read(char* buffer, size_t length);
    bool readToTheEnd(QByteArray* content);
    bool converse(const Question& question, const std::function<bool()>& readAnswer);
    QString sentence(int ippStatus, const QString& message) const;

    std::optional<Host> host_;
    CancelFlag cancelled_;
    Limits limits_;
    std::chrono::milliseconds waited_{0};
    ExchangeWatch::Clock::time_point lastWait_;
    bool mustReconnect_ = false;
    bool mustEncrypt_ = false;
    bool canEncrypt_ = true;    ///< as far as was tried
    bool isSent_ = false;       ///< something of the last request
    bool isPieceTaken_ = false; ///< of its document
    int status_ = 0;            ///< HTTP's, of the last exchange
    qint64 received_ = 0;
    Failure failure_ = Failure::none;
    Http http_;
    std::optional<Login> given_; ///< to the server, in this exchange
    QByteArray password_;        ///< the same for libcups
    QString error_;
};

/// A new request for `operation` on the queue, with the attributes that every request needs. With an empty
/// queue name it is a request to the server itself. Who sends it is who the server knows the user as, once
/// the conversation knows that.
Ipp newRequest(int operation, const QString& queue);

/// The job that an answer names; 0 if it names none.
int jobIdOf(const Ipp& answer);

/// The sentences for a server that cannot be reached, not in secret, or is not the one that is meant.
QString serverUnreachable();
QString noEncryption(const QString& host);
QString notTrusted(const QString& host);

} // namespace cups
} // namespace halvern
