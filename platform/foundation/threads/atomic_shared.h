// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <memory>
#include <mutex>
#include <utility>

namespace HALVERN_EXPORT halvern {

/// A shared reference that threads may read, replace and take without further arrangement.
template <class T> class AtomicShared {
public:
    std::shared_ptr<T> get() const
    {
        const std::scoped_lock lock(mutex_);
        return value_;
    }

    void set(std::shared_ptr<T> value) { exchange(std::move(value)); }

    /// Stores `value` and answers what was there before.
    std::shared_ptr<T> exchange(std::shared_ptr<T> value)
    {
        const std::scoped_lock lock(mutex_);
        return std::exchange(value_, std::move(value));
    }

    /// Stores `value` if `isWanted` says so of what is there, in one step; whether it did.
    template <class Test> bool setIf(const Test& isWanted, std::shared_ptr<T> value)
    {
        const std::scoped_lock lock(mutex_);
        if (!isWanted(value_.get()))
            return false;
        value_.swap(value);
        return true;
    }

    explicit operator bool() const { return get() != nullptr; }

private:
    mutable std::mutex mutex_;
    std::shared_ptr<T> value_;
};

} // namespace halvern
