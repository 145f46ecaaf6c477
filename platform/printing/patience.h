// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

/// How long the main thread waits for the CUPS server: 50 ms in one turn of its event loop, however often it
/// asks; before the loop runs, 50 ms each time.
namespace HALVERN_EXPORT halvern {
namespace cups {

bool isMainThread();

/// On the main thread, with `lock` held: waits for `isDone`, which a worker makes true and announces through
/// `changed`. False if the time is over before.
bool waitPatiently(std::condition_variable& changed, std::unique_lock<std::mutex>& lock,
                   const std::function<bool()>& isDone);

/// Runs `work`, which blocks on the server and owns all that it touches: on the calling thread, or, if that
/// is the main thread, on a worker that it waits for patiently. False if it is still under way.
bool runPatiently(std::function<void()> work);

/// The answer of `question`; `late` if the main thread cannot wait for it.
template <class Answer, class Question> Answer askPatiently(Question question, Answer late)
{
    const auto answer = std::make_shared<std::optional<Answer>>();
    const bool isThere =
        runPatiently([answer, question = std::move(question)] { answer->emplace(question()); });
    return isThere ? std::move(**answer) : std::move(late);
}

} // namespace cups
} // namespace halvern
