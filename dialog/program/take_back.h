// SPDX-License-Identifier: MIT
#pragma once

namespace halvern {

/// What is left to take a job back when the program is asked to leave.
inline constexpr int kTakeBackMilliseconds = 3000;

} // namespace halvern
