#include "tests/support/fault_server.h"

#include <QtGlobal>

#include <cups/cups.h>

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace halvern {

FaultServer::FaultServer(QByteArray answer, Then then)
    : answer_(std::move(answer)), then_(then), listener_(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* place = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener_, place, size) != 0 || listen(listener_, 8) != 0 ||
        getsockname(listener_, place, &size) != 0 || pipe(stop_) != 0)
        qFatal("no server on the loopback");
    if (qEnvironmentVariableIsSet("CUPS_SERVER"))
        before_ = qgetenv("CUPS_SERVER");
    qputenv("CUPS_SERVER", "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)));
    cupsSetServer(nullptr);
    thread_ = std::thread([this] { run(); });
}

FaultServer::~FaultServer()
{
    close(stop_[1]);
    thread_.join();
    close(stop_[0]);
    close(listener_);
    if (before_)
        qputenv("CUPS_SERVER", *before_);
    cupsSetServer(nullptr);
}

// False once the test is over.
bool FaultServer::waitFor(int socket, int milliseconds) const
{
    pollfd both[] = {{socket, POLLIN, 0}, {stop_[0], 0, 0}};
    poll(both, 2, milliseconds);
    return both[1].revents == 0;
}

void FaultServer::run()
{
    while (waitFor(listener_, -1)) {
        const int client = accept(listener_, nullptr, nullptr);
        ++connections_;
        converse(client);
        close(client);
    }
}

void FaultServer::converse(int client)
{
    constexpr int kBytes = 2000;
    char question[4096];
    if (!waitFor(client, -1) || recv(client, question, sizeof question, 0) <= 0)
        return;
    const auto say = [client](const QByteArray& text) {
        return send(client, text.constData(), size_t(text.size()), MSG_NOSIGNAL) >= 0;
    };
    bool isHeard = say(answer_);
    const QByteArray piece = then_ == Then::flood ? QByteArray(64 * 1024, '*') : QByteArray("*");
    for (int i = 0; i < kBytes && isHeard && (then_ == Then::drip || then_ == Then::flood); ++i)
        isHeard = say(piece) && (then_ == Then::flood || waitFor(stop_[0], 10));
    // Until the client leaves; what it still asks is not answered.
    while (isHeard && then_ == Then::beSilent)
        isHeard = waitFor(client, -1) && recv(client, question, sizeof question, 0) > 0;
    hasLetGo_ = hasLetGo_ || isHeard;
}

} // namespace halvern
