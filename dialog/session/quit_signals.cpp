// SPDX-License-Identifier: MIT
#include "dialog/session/quit_signals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <memory>

#include <fcntl.h>
#include <unistd.h>

namespace halvern {

namespace {

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

constexpr int kQuitSignals[] = {SIGINT, SIGTERM, SIGHUP};

// What the handler sets; the flag that it points to lives for ever.
std::atomic<bool>* signalled = nullptr;

// Wakes the event loop: the handler writes a byte. Both ends stay open for as long as the process lives.
int wakeEnds[2] = {-1, -1};

// Only async-signal-safe calls here, and the interrupted code's errno stays.
extern "C" void noteQuitSignal(int)
{
    const int error = errno;
    *signalled = true;
    // Whoever sends another one means it.
    for (const int signal : kQuitSignals)
        std::signal(signal, SIG_DFL);
    if (wakeEnds[1] >= 0 && write(wakeEnds[1], "", 1) < 0) {
        // The pipe is full of earlier ones.
    }
    errno = error;
}

} // namespace

cups::CancelFlag quitFlag()
{
    static const auto* const flag = std::make_unique<cups::CancelFlag>(cups::makeCancelFlag()).release();
    return *flag;
}

void watchQuitSignals()
{
    signalled = quitFlag().get();
    struct sigaction action = {};
    action.sa_handler = noteQuitSignal;
    // Calls that were interrupted go on.
    action.sa_flags = SA_RESTART;
    for (const int signal : kQuitSignals) {
        struct sigaction before = {};
        // What nohup and background shells have switched off stays off.
        if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            sigaction(signal, &action, nullptr);
    }
}

bool quitWasSignalled()
{
    return *quitFlag();
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
