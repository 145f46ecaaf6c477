// SPDX-License-Identifier: MIT
#include "platform/foundation/threads/all_cores.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <vector>

namespace halvern {

void onAllCores(qsizetype count, qsizetype least, const std::function<void(qsizetype, qsizetype)>& work)
{
    const qsizetype cores = std::max<qsizetype>(std::thread::hardware_concurrency(), 1);
    const qsizetype shares = std::clamp<qsizetype>(count / std::max<qsizetype>(least, 1), 1, cores);
    const qsizetype each = (count + shares - 1) / shares;
    std::vector<std::thread> others;
    qsizetype first = 0;
    try {
        for (; first + each < count; first += each)
            others.emplace_back([&work, first, each] { work(first, each); });
    } catch (const std::system_error&) {
        // What is left is done here.
    }
    if (first < count)
        work(first, count - first);
    for (std::thread& other : others)
        other.join();
}

} // namespace halvern
