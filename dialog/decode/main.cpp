// SPDX-License-Identifier: MIT
// halvern-decode: decodes photos for the dialog, which starts it. It waits, warm and idle, until it is asked
// for a process that reads one file; such a process has closed all doors behind it before it looks at the
// file, and has gone when the dialog has gone. With --version it says what it reads, and by what.
#include "dialog/decode/conversation.h"
#include "dialog/decode/readers.h"
#include "dialog/decode/sandbox.h"

#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

// The C library's header forgets to say so.
extern "C" {
#include <sys/pidfd.h>
}

namespace {

using namespace halvern;

constexpr int kControl = 3; // the descriptor by which the dialog asks

void readFile(const Descriptor& socket, pid_t parent)
{
    if (enterSandbox() && getppid() == parent)
        converse(socket);
}

// What libraries complain of is told in sentences of our own; a sanitizer's report is not.
void silence()
{
#ifndef HALVERN_SANITIZED
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDERR_FILENO);
#endif
}

int serve()
{
    signal(SIGCHLD, SIG_IGN); // nobody asks how a reader ended
    silence();
    close_range(kControl + 1, ~0U, 0);
    prepareSandbox();
    const pid_t self = getpid();
    QByteArray message;
    Descriptor socket;
    while (receiveMessage(kControl, &message, &socket, -1) == Received::message) {
        const pid_t reader = fork();
        if (reader == 0) {
            close(kControl);
            readFile(socket, self);
            _exit(0);
        }
        socket.reset();
        const Descriptor process(reader > 0 ? pidfd_open(reader, 0) : -1);
        if (!sendMessage(kControl, {}, process.number()))
            break;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::fputs(qPrintable(readerVersions()), stdout);
        return 0;
    }
    if (argc != 1 || fcntl(kControl, F_GETFD) < 0) {
        std::fputs("halvern-decode is started by halvern-print; it does nothing by itself.\n", stderr);
        return 2;
    }
    _exit(serve());
}
