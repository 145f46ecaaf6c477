// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/all_cores.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace halvern {

namespace {

constexpr qsizetype kSharesEach = 4;

} // namespace

void onAllCores(qsizetype count, qsizetype least, const std::function<void(qsizetype, qsizetype)>& work)
{
    const qsizetype cores = std::max<qsizetype>(std::thread::hardware_concurrency(), 1);
    const qsizetype workers = std::clamp<qsizetype>(count / std::max<qsizetype>(least, 1), 1, cores);
    // Small shares, taken by whoever is free: a core that is busy with something else holds nobody up.
    const qsizetype each = std::max<qsizetype>(least, count / (workers * kSharesEach) + 1);
    std::atomic<qsizetype> next = 0;
    const auto takeShares = [&] {
        for (qsizetype first = next.fetch_add(each); first < count; first = next.fetch_add(each))
            work(first, std::min(each, count - first));
    };
    std::vector<std::thread> others;
    try {
        while (qsizetype(others.size()) + 1 < workers)
            others.emplace_back(takeShares);
    } catch (const std::system_error&) {
        // What is left is done here.
    }
    takeShares();
    for (std::thread& other : others)
        other.join();
}

} // namespace halvern
