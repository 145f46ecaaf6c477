// SPDX-License-Identifier: MIT
#include "platform/printing/exchange_watch.h"

#include "platform/foundation/log.h"

#include <QString>

#include <algorithm>
#include <condition_variable>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace halvern::cups {

struct ExchangeWatch::Entry {
    Clock::time_point deadline;
    CancelFlag cancelled;
    int socket = -1; ///< a descriptor of our own: libcups may close and reopen its own at any time
    int giveUp = 0;
    bool hasFired = false;
};

namespace {

constexpr std::chrono::milliseconds kLookAtFlags(50);

/// The thread that looks at deadlines and flags, for all conversations of the process.
template <class Entry> struct Watchman {
    std::mutex mutex;
    std::condition_variable changed;
    std::list<Entry*> entries;
    bool isAwake = false;

    static Watchman& instance()
    {
        // Never destroyed: its thread is never joined.
        static auto* const watchman = std::make_unique<Watchman>().release();
        return *watchman;
    }

    // All with the lock held.

    static void end(Entry& entry)
    {
        entry.hasFired = true;
        std::atomic_ref(entry.giveUp).store(1);
        if (entry.socket >= 0)
            shutdown(entry.socket, SHUT_RDWR);
    }

    static void closeSocket(Entry& entry)
    {
        if (entry.socket >= 0)
            close(entry.socket);
        entry.socket = -1;
    }

    void wake()
    {
        if (std::exchange(isAwake, true)) {
            changed.notify_all();
            return;
        }
        try {
            std::thread([this] { run(); }).detach();
        } catch (const std::system_error& error) {
            isAwake = false;
            logLine(QStringLiteral("no thread for deadlines: %1").arg(QString::fromLocal8Bit(error.what())));
        }
    }

    [[noreturn]] void run()
    {
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return !entries.empty(); });
            const auto now = ExchangeWatch::Clock::now();
            for (Entry* entry : entries) {
                const bool isOver = now >= entry->deadline || (entry->cancelled && entry->cancelled->load());
                if (isOver && !entry->hasFired)
                    end(*entry);
            }
            changed.wait_for(lock, kLookAtFlags);
        }
    }
};

} // namespace

ExchangeWatch::ExchangeWatch(Clock::time_point deadline, CancelFlag cancelled)
    : entry_(std::make_unique<Entry>(Entry{deadline, std::move(cancelled)}))
{
    auto& watchman = Watchman<Entry>::instance();
    const std::scoped_lock lock(watchman.mutex);
    watchman.entries.push_back(entry_.get());
    watchman.wake();
}

ExchangeWatch::~ExchangeWatch()
{
    auto& watchman = Watchman<Entry>::instance();
    const std::scoped_lock lock(watchman.mutex);
    watchman.entries.remove(entry_.get());
    Watchman<Entry>::closeSocket(*entry_);
}

void ExchangeWatch::setSocket(int socket)
{
    auto& watchman = Watchman<Entry>::instance();
    const std::scoped_lock lock(watchman.mutex);
    Watchman<Entry>::closeSocket(*entry_);
    entry_->socket = fcntl(socket, F_DUPFD_CLOEXEC, 0);
    if (entry_->hasFired)
        Watchman<Entry>::end(*entry_);
}

void ExchangeWatch::setDeadline(Clock::time_point deadline)
{
    const std::scoped_lock lock(Watchman<Entry>::instance().mutex);
    entry_->deadline = deadline;
}

int ExchangeWatch::millisecondsLeft() const
{
    const std::scoped_lock lock(Watchman<Entry>::instance().mutex);
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(entry_->deadline - Clock::now()).count();
    return int(std::clamp<long long>(left, 1, 24 * 3600 * 1000));
}

int* ExchangeWatch::giveUp()
{
    return &entry_->giveUp;
}

bool ExchangeWatch::hasFired() const
{
    const std::scoped_lock lock(Watchman<Entry>::instance().mutex);
    return entry_->hasFired;
}

} // namespace halvern::cups
