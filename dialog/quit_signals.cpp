#include "dialog/quit_signals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace halvern {

namespace {

std::atomic<bool> wasSignalled = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

// Wakes the event loop: the handler writes a byte. Both ends stay open for as long as the process lives.
int wakeEnds[2] = {-1, -1};

// Only async-signal-safe calls here, and the interrupted code's errno stays.
extern "C" void noteQuitSignal(int)
{
    const int error = errno;
    wasSignalled = true;
    if (wakeEnds[1] >= 0 && write(wakeEnds[1], "", 1) < 0) {
        // The pipe is full of earlier ones.
    }
    errno = error;
}

} // namespace

void watchQuitSignals()
{
    struct sigaction action = {};
    action.sa_handler = noteQuitSignal;
    // The usual action is back when the handler runs, and calls that were interrupted go on.
    action.sa_flags = int(SA_RESETHAND | SA_RESTART);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        // What nohup and background shells have switched off stays off.
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

bool quitWasSignalled()
{
    return wasSignalled;
}

void onQuitSignal(QObject* context, std::function<void()> leave)
{
    if (wakeEnds[0] < 0 && pipe2(wakeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier = new QSocketNotifier(wakeEnds[0], QSocketNotifier::Read, context);
    QObject::connect(notifier, &QSocketNotifier::activated, context, [notifier, leave = std::move(leave)] {
        notifier->setEnabled(false);
        leave();
    });
    watchQuitSignals();
}

} // namespace halvern
