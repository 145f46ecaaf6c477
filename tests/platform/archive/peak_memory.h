#pragma once

#include <cstddef>
#include <functional>

namespace halvern::test {

/// Runs `work` and answers the most heap memory that it held at once, in bytes. Counts through the
/// sanitizers' allocation hooks; answers 0 in builds without them. Main thread only.
std::size_t peakMemoryOf(const std::function<void()>& work);

} // namespace halvern::test
