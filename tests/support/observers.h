// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/text.h"

#include <QStringList>

#include <functional>
#include <future>

namespace halvern {

/// Collects the lines of our log category while it exists. One at a time.
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList lines() const;

    int count(const QString& line) const { return int(lines().count(line)); }

    void clear();
};

/// Counts the alert sounds instead of playing them.
class BeepCounter {
public:
    BeepCounter();
    ~BeepCounter();
    BeepCounter(const BeepCounter&) = delete;
    BeepCounter& operator=(const BeepCounter&) = delete;

    int count = 0;
};

/// Makes the built bundle the main one, so that panels linked into the test find their layouts and
/// translations; in `language` ("de_DE") until the next call.
void useBuiltBundle(const QString& language = q("en_US"));

/// Seconds after which a test gives up. No test waits for a time: what takes a moment here takes a minute on
/// a machine that is busy with something else.
inline constexpr int kPatience = 300;

/// Runs the event loop until the condition holds; false if patience ends first.
bool waitUntil(const std::function<bool()>& condition, int seconds = kPatience);

/// The answer of `question`, asked from another thread: the main thread does not wait for a slow server.
template <class Question> auto offMainThread(Question question)
{
    return std::async(std::launch::async, std::move(question)).get();
}

/// Delivers everything that is queued for the main thread, deletions included.
void drainMainQueue();

} // namespace halvern
