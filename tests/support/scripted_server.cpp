// SPDX-License-Identifier: MIT
#include "tests/support/scripted_server.h"
#include "tests/support/text.h"

#include <cups/cups.h>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace halvern {

ScriptedServer::ScriptedServer(Script script, QByteArray answer, Then then)
    : script_(std::move(script)),
      answer_(std::move(answer)),
      then_(then),
      listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* place = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener_, place, size) != 0 || listen(listener_, 8) != 0 ||
        getsockname(listener_, place, &size) != 0)
        qFatal("no server on the loopback");
    port_ = ntohs(address.sin_port);
    if (qEnvironmentVariableIsSet("CUPS_SERVER"))
        before_ = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(port_));
    cupsSetServer(nullptr);
    thread_ = std::thread([this] { accept(); });
}

ScriptedServer::~ScriptedServer()
{
    shutdown(listener_, SHUT_RDWR);
    thread_.join();
    for (const int socket : sockets_)
        shutdown(socket, SHUT_RDWR);
    for (std::thread& thread : threads_)
        thread.join();
    for (const int socket : sockets_)
        close(socket);
    close(listener_);
    if (before_)
        qputenv("CUPS_SERVER", *before_);
    else
        qunsetenv("CUPS_SERVER");
    cupsSetServer(nullptr);
}

void ScriptedServer::accept()
{
    while (http_t* http = httpAcceptConnection(listener_, 1)) {
        // The socket of its own stays open until the end, so that nobody else gets its number.
        sockets_.push_back(dup(httpGetFd(http)));
        ++callers_;
        ++connections_;
        threads_.emplace_back([this, http] {
            if (script_)
                converse(http);
            else
                misbehave(httpGetFd(http));
            shutdown(httpGetFd(http), SHUT_RDWR);
            httpClose(http);
            --callers_;
        });
    }
}

void ScriptedServer::misbehave(int client)
{
    constexpr int kPieces = 2000;
    char question[4096];
    if (recv(client, question, sizeof question, 0) <= 0)
        return;
    const auto say = [client](const QByteArray& text) {
        return send(client, text.constData(), size_t(text.size()), MSG_NOSIGNAL) >= 0;
    };
    const auto hasLeft = [client](int milliseconds) {
        pollfd line{client, POLLRDHUP, 0};
        return poll(&line, 1, milliseconds) != 0;
    };
    bool isHeard = say(answer_);
    const QByteArray piece = then_ == Then::flood ? QByteArray(64 * 1024, '*') : QByteArray("*");
    for (int i = 0; i < kPieces && isHeard && (then_ == Then::drip || then_ == Then::flood); ++i)
        isHeard = say(piece) && !hasLeft(then_ == Then::drip ? 10 : 0);
    // What it still asks is not answered.
    while (isHeard && then_ == Then::beSilent)
        isHeard = recv(client, question, sizeof question, 0) > 0;
    if (then_ == Then::stall)
        isHeard = isHeard && !hasLeft(-1);
    hasLetGo_ = hasLetGo_ || isHeard;
}

void ScriptedServer::converse(http_t* http)
{
    char uri[HTTP_MAX_URI];
    for (;;) {
        http_state_t state = HTTP_STATE_WAITING;
        while ((state = httpReadRequest(http, uri, sizeof uri)) == HTTP_STATE_WAITING) {
        }
        http_status_t status = HTTP_STATUS_CONTINUE;
        while (state == HTTP_STATE_POST && (status = httpUpdate(http)) == HTTP_STATUS_CONTINUE) {
        }
        if (state != HTTP_STATE_POST || status != HTTP_STATUS_OK)
            return;
        if (httpGetExpect(http) == HTTP_STATUS_CONTINUE)
            httpWriteResponse(http, HTTP_STATUS_CONTINUE);
        const cups::Ipp request(ippNew());
        ipp_state_t read = IPP_STATE_IDLE;
        while (read != IPP_STATE_DATA && read != IPP_STATE_ERROR)
            read = ippRead(http, request.get());
        if (read == IPP_STATE_ERROR)
            return;
        char document[4096];
        while (httpGetState(http) == HTTP_STATE_POST_RECV && httpRead2(http, document, sizeof document) > 0) {
        }
        if (!login_.isEmpty() &&
            QByteArray(httpGetField(http, HTTP_FIELD_AUTHORIZATION)) != "Basic " + login_.toBase64()) {
            httpClearFields(http);
            httpSetField(http, HTTP_FIELD_WWW_AUTHENTICATE, "Basic realm=\"Test\"");
            httpSetLength(http, 0);
            httpWriteResponse(http, HTTP_STATUS_UNAUTHORIZED);
            httpFlushWrite(http);
            return;
        }
        {
            const std::scoped_lock lock(mutex_);
            asked_.append(QString::fromLatin1(ippOpString(ippGetOperation(request.get()))));
        }
        const cups::Ipp answer = script_(request.get());
        if (!answer)
            return;
        httpClearFields(http);
        httpSetField(http, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
        httpSetLength(http, ippLength(answer.get()));
        ippSetState(answer.get(), IPP_STATE_IDLE);
        if (httpWriteResponse(http, HTTP_STATUS_OK) != 0 || ippWrite(http, answer.get()) != IPP_STATE_DATA)
            return;
        httpFlushWrite(http);
    }
}

QStringList ScriptedServer::asked() const
{
    const std::scoped_lock lock(mutex_);
    return asked_;
}

cups::Ipp scriptedAnswer(int status)
{
    cups::Ipp answer(ippNew());
    ippSetStatusCode(answer.get(), ipp_status_t(status));
    ippSetVersion(answer.get(), 2, 0);
    ippSetRequestId(answer.get(), 1);
    ippAddString(answer.get(), IPP_TAG_OPERATION, IPP_TAG_CHARSET, "attributes-charset", nullptr, "utf-8");
    ippAddString(answer.get(), IPP_TAG_OPERATION, IPP_TAG_LANGUAGE, "attributes-natural-language", nullptr,
                 "en");
    return answer;
}

} // namespace halvern
