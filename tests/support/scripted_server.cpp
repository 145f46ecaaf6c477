#include "tests/support/scripted_server.h"

#include <cups/cups.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace halvern {

ScriptedServer::ScriptedServer(Script script)
    : script_(std::move(script)), listener_(socket(AF_UNIX, SOCK_STREAM, 0))
{
    const QByteArray path = folder_.filePath(QStringLiteral("s")).toUtf8();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    if (bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        listen(listener_, 8) != 0)
        qFatal("no server at %s", path.constData());
    if (qEnvironmentVariableIsSet("CUPS_SERVER"))
        before_ = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", path);
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
        threads_.emplace_back([this, http] {
            converse(http);
            shutdown(httpGetFd(http), SHUT_RDWR);
            httpClose(http);
        });
    }
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
