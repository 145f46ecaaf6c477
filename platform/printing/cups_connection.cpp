// SPDX-License-Identifier: MIT
#include "platform/printing/cups_connection.h"

#include "platform/printing/cups_ppd.h"
#include "platform/printing/server_certificate.h"
#include "platform/printing/server_files.h"

#include <sys/socket.h>

namespace halvern::cups {

namespace {

constexpr std::chrono::milliseconds kLookAtSilence(1000);
// The first, one with what the library knows by itself, one after a change to TLS, and some wrong passwords.
constexpr int kMostAttempts = 8;
// So long the server may think about whether it wants a document.
constexpr int kRefusalMilliseconds = 1000;

const char* noPassword(const char*, http_t*, const char*, const char*, void*)
{
    // Without this, libcups asks on the terminal.
    return nullptr;
}

// A program that has just started knows what the last one has learned.
QString jobOwner(const QString& host)
{
    if (const std::optional<QString> known = Access::shared().jobOwner(host))
        return *known;
    const QString kept = keptJobOwner(host);
    Access::shared().setJobOwner(host, kept);
    return kept;
}

void setJobOwner(const QString& host, const QString& user)
{
    if (jobOwner(host) != user)
        keepJobOwner(host, user);
    Access::shared().setJobOwner(host, user);
}

ExchangeWatch::Clock::time_point fromNow(std::chrono::milliseconds time)
{
    return ExchangeWatch::Clock::now() + time;
}

} // namespace

struct Connection::Question {
    ipp_t* ipp; ///< null: what is at the resource
    const char* resource;
    const NextPiece* nextPiece; ///< null: no document
};

CancelFlag makeCancelFlag()
{
    return std::make_shared<std::atomic<bool>>(false);
}

void HttpCloser::operator()(_http_s* http) const
{
    httpClose(http);
}

void IppDeleter::operator()(_ipp_s* ipp) const
{
    ippDelete(ipp);
}

Connection::Connection(CancelFlag cancelled, const Limits& limits)
    : cancelled_(std::move(cancelled)), limits_(limits)
{
    ExchangeWatch watch(fromNow(limits_.whole), cancelled_);
    connect(watch);
}

Connection::Connection(Host host, CancelFlag cancelled, const Limits& limits)
    : host_(std::move(host)), cancelled_(std::move(cancelled)), limits_(limits)
{
    ExchangeWatch watch(fromNow(limits_.whole), cancelled_);
    connect(watch);
}

Connection::~Connection() = default;

bool Connection::isCancelled() const
{
    return cancelled_ && cancelled_->load();
}

bool Connection::wasNotFound() const
{
    return status_ == HTTP_STATUS_NOT_FOUND;
}

bool Connection::wasForbidden() const
{
    return status_ == HTTP_STATUS_UNAUTHORIZED || status_ == HTTP_STATUS_FORBIDDEN ||
           status_ == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
}

bool Connection::mayBeDone() const
{
    return isSent_ && !wasForbidden();
}

// Called after each second of silence; a byte in between starts the count anew.
int Connection::keepWaiting(http_t*, void* self)
{
    auto* connection = static_cast<Connection*>(self);
    const auto now = ExchangeWatch::Clock::now();
    if (now - connection->lastWait_ > kLookAtSilence + kLookAtSilence / 2)
        connection->waited_ = {};
    connection->waited_ += kLookAtSilence;
    connection->lastWait_ = now;
    return !connection->isCancelled() && connection->waited_ < connection->limits_.silence;
}

Http Connection::makeHttp() const
{
    // The port is known once the server is. Not connected yet: the limits come first.
    const char* server = host_ ? host_->name.constData() : cupsServer();
    const int port = host_ ? host_->port : ippPort();
    const http_encryption_t encryption = !host_               ? cupsEncryption()
                                         : host_->isEncrypted ? HTTP_ENCRYPTION_ALWAYS
                                                              : HTTP_ENCRYPTION_IF_REQUESTED;
    return Http(httpConnect2(server, port, nullptr, AF_UNSPEC, encryption, 1, 0, nullptr));
}

// Never reuses what failed, because libcups would then connect once more by itself.
bool Connection::open(ExchangeWatch& watch)
{
    http_ = makeHttp();
    if (http_) {
        httpSetTimeout(http_.get(), std::chrono::duration<double>(kLookAtSilence).count(),
                       &Connection::keepWaiting, this);
        if (httpReconnect2(http_.get(), watch.millisecondsLeft(), watch.giveUp()) != 0)
            http_.reset();
    }
    if (!http_) {
        failure_ = Failure::unreachable;
        error_ = serverUnreachable();
        return false;
    }
    mustReconnect_ = false;
    watch.setSocket(httpGetFd(http_.get()));
    return true;
}

bool Connection::connect(ExchangeWatch& watch)
{
    cupsSetPasswordCB2(noPassword, nullptr);
    // What is there to read before a question is the end of an idle connection.
    if (http_ && !mustReconnect_ && !httpWait(http_.get(), 0)) {
        watch.setSocket(httpGetFd(http_.get()));
        return true;
    }
    const char* known = http_ ? httpGetAuthString(http_.get()) : nullptr;
    const QByteArray password(known);
    if (!open(watch) || !encrypt(watch) || !isTrusted(watch)) {
        http_.reset();
        return false;
    }
    if (!password.isEmpty())
        httpSetAuthString(http_.get(), password.constData(), nullptr);
    return true;
}

// Whether there is something to encrypt, and nobody has said that it must not be.
bool Connection::mayEncrypt() const
{
    return !host_ && !isPrivate() && cupsEncryption() != HTTP_ENCRYPTION_NEVER;
}

// A server that has shown a certificate is not talked to openly unasked: who answers in its place need not
// encrypt.
bool Connection::encrypt(ExchangeWatch& watch)
{
    const QString host = hostName();
    const bool isExpected = mayEncrypt() && hasCertificate(host);
    if (!(mustEncrypt_ || isExpected) || httpIsEncrypted(http_.get()) ||
        httpEncryption(http_.get(), HTTP_ENCRYPTION_REQUIRED) == 0)
        return true;
    if (mustEncrypt_ || watch.hasFired() || isCancelled()) {
        failure_ = Failure::unreachable;
        error_ = mustEncrypt_ ? noEncryption(host) : serverUnreachable();
        return false;
    }
    if (!open(watch))
        return false;
    watch.setDeadline(ExchangeWatch::Clock::time_point::max());
    const bool isMeant = isTrustedOpenly(host, cancelled_);
    watch.setDeadline(fromNow(limits_.whole));
    if (isMeant)
        return true;
    failure_ = Failure::untrusted;
    error_ = notTrusted(host);
    return false;
}

bool Connection::tryToEncrypt()
{
    if (!http_ || !canEncrypt_ || !mayEncrypt())
        return isConnected();
    ExchangeWatch watch(fromNow(limits_.whole), cancelled_);
    Http before = std::exchange(http_, nullptr);
    waited_ = {};
    mustEncrypt_ = true;
    const bool isEncrypted = connect(watch);
    waited_ = {};
    if (isEncrypted || failure_ == Failure::untrusted)
        return isEncrypted;
    canEncrypt_ = false;
    mustEncrypt_ = false;
    mustReconnect_ = true;
    failure_ = Failure::none;
    http_ = std::move(before);
    return true;
}

// A printer's own certificate is nobody's word for anything: it is asked for nothing that is secret.
bool Connection::isTrusted(ExchangeWatch& watch)
{
    if (host_ || !httpIsEncrypted(http_.get()))
        return true;
    watch.setDeadline(ExchangeWatch::Clock::time_point::max());
    const bool isKnown = isTrustedServer(http_.get(), hostName(), cancelled_);
    watch.setDeadline(fromNow(limits_.whole));
    if (isKnown)
        return true;
    failure_ = Failure::untrusted;
    error_ = notTrusted(hostName());
    return false;
}

bool Connection::isPrivate() const
{
    return http_ && (httpIsEncrypted(http_.get()) || httpAddrFamily(httpGetAddress(http_.get())) == AF_LOCAL);
}

QString Connection::hostName() const
{
    constexpr int kUsualPort = 631;
    char name[HTTP_MAX_HOST] = "";
    if (!http_ || !httpGetHostname(http_.get(), name, sizeof(name)))
        return QString::fromUtf8(cupsServer());
    const bool isLocal = httpAddrFamily(httpGetAddress(http_.get())) == AF_LOCAL;
    const int port = isLocal ? kUsualPort : httpAddrPort(httpGetAddress(http_.get()));
    const QString host = QString::fromUtf8(name);
    return port == kUsualPort ? host : QStringLiteral("%1:%2").arg(host).arg(port);
}

// libcups asks on this thread, within authenticate(). A login that was given in this exchange already is
// wrong.
const char* Connection::giveLogin(const char*, http_t*, const char*, const char*, void* self)
{
    auto* connection = static_cast<Connection*>(self);
    const LoginQuestion question{
        {connection->hostName()}, QString::fromUtf8(cupsUser()), connection->isPrivate()};
    connection->given_ = Access::shared().login(question, connection->given_, connection->cancelled_);
    if (connection->given_ && !question.isEncrypted && !connection->given_->mayTravelOpenly)
        connection->given_.reset();
    if (!connection->given_)
        return nullptr;
    cupsSetUser(connection->given_->user.toUtf8().constData());
    connection->password_ = connection->given_->password.toUtf8();
    return connection->password_.constData();
}

bool Connection::authenticate(const Question& question, ExchangeWatch& watch)
{
    const QByteArray user(cupsUser());
    watch.setDeadline(ExchangeWatch::Clock::time_point::max());
    cupsSetPasswordCB2(&Connection::giveLogin, this);
    const bool isAnswered =
        cupsDoAuthentication(http_.get(), question.ipp ? "POST" : "GET", question.resource) == 0;
    cupsSetPasswordCB2(noPassword, nullptr);
    cupsSetUser(user.constData());
    watch.setDeadline(fromNow(limits_.whole));
    return isAnswered;
}

// A server that wants a login for jobs has them under its name, and asks about them by that name only.
void Connection::nameUser(ipp_t* request) const
{
    const QString owner = host_ ? QString() : jobOwner(hostName());
    ipp_attribute_t* name =
        owner.isEmpty() ? nullptr : ippFindAttribute(request, "requesting-user-name", IPP_TAG_NAME);
    if (name)
        ippSetString(request, &name, 0, owner.toUtf8().constData());
}

bool Connection::sendQuestion(const Question& question)
{
    http_t* http = http_.get();
    isSent_ = true;
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
    httpSetExpect(http, question.nextPiece ? HTTP_STATUS_CONTINUE : HTTP_STATUS_NONE);
    if (!question.ipp)
        return httpGet(http, question.resource) == 0;
    nameUser(question.ipp);
    httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
    // No length: in pieces, for as long as there are some.
    httpSetLength(http, question.nextPiece ? 0 : ippLength(question.ipp));
    if (httpPost(http, question.resource) != 0)
        return false;
    ippSetState(question.ipp, IPP_STATE_IDLE);
    for (ipp_state_t state = IPP_STATE_IDLE; state != IPP_STATE_DATA;) {
        state = ippWrite(http, question.ipp);
        if (state == IPP_STATE_ERROR)
            return false;
    }
    return httpFlushWrite(http) >= 0;
}

// False if the conversation has broken; `status` is what the server said before it had the whole document.
bool Connection::sendDocument(const NextPiece& nextPiece, ExchangeWatch& watch, int& status)
{
    http_t* http = http_.get();
    if (httpWait(http, kRefusalMilliseconds))
        status = httpUpdate(http);
    if (status != HTTP_STATUS_CONTINUE)
        return status != HTTP_STATUS_ERROR;
    watch.setDeadline(ExchangeWatch::Clock::time_point::max());
    for (;;) {
        const std::optional<QByteArray> piece = nextPiece();
        isPieceTaken_ = true;
        if (!piece || isCancelled())
            return false;
        if (piece->isEmpty())
            break;
        if (httpWrite2(http, piece->constData(), size_t(piece->size())) < 0)
            return false;
    }
    watch.setDeadline(fromNow(limits_.whole));
    return httpWrite2(http, "", 0) >= 0;
}

// One question and the head of its answer; HTTP's status.
int Connection::exchange(const Question& question, ExchangeWatch& watch)
{
    int status = HTTP_STATUS_CONTINUE;
    if (!sendQuestion(question) || (question.nextPiece && !sendDocument(*question.nextPiece, watch, status)))
        return HTTP_STATUS_ERROR;
    while (status == HTTP_STATUS_CONTINUE)
        status = httpUpdate(http_.get());
    return status;
}

// Whether to ask again: the server wanted more than the question before it looked at that.
bool Connection::answerRefusal(const Question& question, int status, ExchangeWatch& watch)
{
    if (status != HTTP_STATUS_UNAUTHORIZED && status != HTTP_STATUS_UPGRADE_REQUIRED)
        return false;
    if (isPieceTaken_) {
        failure_ = Failure::brokenOff;
        return false;
    }
    isSent_ = false;
    if (status == HTTP_STATUS_UPGRADE_REQUIRED) {
        mustEncrypt_ = true;
        return true;
    }
    if (host_)
        return false;
    const bool wasPrivate = isPrivate();
    watch.setDeadline(ExchangeWatch::Clock::time_point::max());
    const bool isStillMeant = tryToEncrypt();
    watch.setDeadline(fromNow(limits_.whole));
    return isStillMeant && (wasPrivate != isPrivate() || authenticate(question, watch));
}

void Connection::takeSuccess(const Question& question)
{
    if (!given_)
        return;
    Access::shared().wasRight({hostName()}, *given_);
    if (question.ipp && ippGetOperation(question.ipp) == IPP_OP_CREATE_JOB)
        setJobOwner(hostName(), given_->user);
}

int Connection::ask(const Question& question, ExchangeWatch& watch)
{
    int status = HTTP_STATUS_ERROR;
    given_.reset();
    isSent_ = false;
    isPieceTaken_ = false;
    for (int attempt = 0; attempt < kMostAttempts && connect(watch); ++attempt) {
        status = exchange(question, watch);
        mustReconnect_ = true;
        if (!answerRefusal(question, status, watch))
            break;
    }
    if (!http_)
        return HTTP_STATUS_ERROR;
    if (status == HTTP_STATUS_OK)
        takeSuccess(question);
    return status;
}

ssize_t Connection::read(char* buffer, size_t length)
{
    const ssize_t count = httpRead2(http_.get(), buffer, length);
    received_ += std::max<ssize_t>(count, 0);
    if (received_ <= limits_.bytes)
        return count;
    failure_ = Failure::tooMuch;
    return -1;
}

ssize_t Connection::readPiece(void* self, ipp_uchar_t* buffer, size_t length)
{
    size_t done = 0;
    while (done < length) {
        const ssize_t count =
            static_cast<Connection*>(self)->read(reinterpret_cast<char*>(buffer) + done, length - done);
        if (count <= 0)
            return -1;
        done += size_t(count);
    }
    return ssize_t(done);
}

// Whether the answer is there to its last byte; what is left of it goes to `content`, if that is wanted.
bool Connection::readToTheEnd(QByteArray* content)
{
    QByteArray buffer(64 * 1024, Qt::Uninitialized);
    ssize_t count = 0;
    while ((count = read(buffer.data(), size_t(buffer.size()))) > 0) {
        if (content)
            content->append(buffer.constData(), count);
    }
    return count == 0 && httpGetState(http_.get()) == HTTP_STATE_WAITING;
}

// Asks, and has `readAnswer` read what comes; false if the answer is not there as a whole.
bool Connection::converse(const Question& question, const std::function<bool()>& readAnswer)
{
    ExchangeWatch watch(fromNow(limits_.whole), cancelled_);
    waited_ = {};
    received_ = 0;
    failure_ = Failure::none;
    status_ = ask(question, watch);
    if (status_ == HTTP_STATUS_OK && readAnswer()) {
        mustReconnect_ = qstricmp(httpGetField(http_.get(), HTTP_FIELD_CONNECTION), "close") == 0;
        return true;
    }
    if (isCancelled())
        failure_ = Failure::cancelled;
    else if (watch.hasFired() || waited_ >= limits_.silence)
        failure_ = Failure::silent;
    else if (failure_ == Failure::none)
        failure_ = status_ >= HTTP_STATUS_BAD_REQUEST ? Failure::refused : Failure::brokenOff;
    return false;
}

Ipp Connection::request(Ipp request, const char* resource, const NextPiece& nextPiece)
{
    Ipp answer(ippNew());
    const bool isWhole = converse({request.get(), resource, nextPiece ? &nextPiece : nullptr}, [&] {
        return ippReadIO(this, &Connection::readPiece, 1, nullptr, answer.get()) == IPP_STATE_DATA &&
               (httpGetState(http_.get()) == HTTP_STATE_WAITING || readToTheEnd(nullptr));
    });
    return isWhole ? std::move(answer) : nullptr;
}

std::optional<QByteArray> Connection::get(const char* resource)
{
    QByteArray content;
    const bool isWhole = converse({nullptr, resource, nullptr}, [&] { return readToTheEnd(&content); });
    return isWhole ? std::optional(content) : std::nullopt;
}

Ipp newRequest(int operation, const QString& queue)
{
    Ipp request(ippNewRequest(ipp_op_t(operation)));
    if (!queue.isEmpty()) {
        char uri[HTTP_MAX_URI];
        // The server looks at the path only; a port would be a guess for a UNIX socket.
        httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof(uri), "ipp", nullptr, "localhost", 0,
                         "/printers/%s", queue.toUtf8().constData());
        ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    }
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

int jobIdOf(const Ipp& answer)
{
    ipp_attribute_t* id = answer ? ippFindAttribute(answer.get(), "job-id", IPP_TAG_INTEGER) : nullptr;
    return id ? std::max(ippGetInteger(id, 0), 0) : 0;
}

} // namespace halvern::cups
