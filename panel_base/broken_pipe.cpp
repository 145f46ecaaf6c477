#include "panel_base/broken_pipe.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>

namespace halvern {

namespace {

// Only async-signal-safe calls here, and the interrupted code's errno stays.
extern "C" void brokenPipeHandler(int number)
{
    const int error = errno;
    char line[] = "caught a signal ..........\n";
    char* at = line + sizeof("caught a signal ") - 1;
    char digits[10];
    std::size_t count = 0;
    do {
        digits[count++] = char('0' + number % 10);
        number /= 10;
    } while (number > 0);
    while (count > 0)
        *at++ = digits[--count];
    *at++ = '\n';
    if (write(STDERR_FILENO, line, std::size_t(at - line)) < 0) {
        // Nothing to do: the log itself is gone.
    }
    errno = error;
}

} // namespace

bool installBrokenPipeHandler()
{
    return std::signal(SIGPIPE, brokenPipeHandler) != SIG_ERR;
}

} // namespace halvern
