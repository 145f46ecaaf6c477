#pragma once

#include <cstddef>
#include <functional>
#include <optional>

namespace halvern::test {

/// Runs `work` and answers the most heap memory that it held at once, in bytes. Counts through the
/// sanitizers' allocation hooks; answers nothing in builds without GCC's sanitizers. Main thread only.
std::optional<std::size_t> peakMemoryOf(const std::function<void()>& work);

} // namespace halvern::test
