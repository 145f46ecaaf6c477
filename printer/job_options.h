// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The options of a job, as CUPS hands them to filters and back ends. Any thread.
namespace halvern {

struct JobOption {
    std::string key;
    std::string value;
};

using JobOptions = std::vector<JobOption>;

/// Reads the options argument: KEY=VALUE words between blanks, in their order, repeated keys included. A
/// backslash takes the next byte as it is, single and double quotes keep blanks, and a word without "=" is a
/// boolean: KEY is "true", noKEY is "false". A brace is a byte like any other, since the server sends free
/// text unescaped.
JobOptions parseJobOptions(std::string_view text);

/// The last value given for the key; nothing if there is none. Keys are compared exactly.
std::optional<std::string> optionValue(const JobOptions& options, std::string_view key);

/// Whether the last value of the key is "True", in any case of letters.
bool optionIsOn(const JobOptions& options, std::string_view key);

/// options.txt: one KEY=VALUE a line, values byte for byte. A line break within a value is followed by a tab,
/// so that a line that begins with a tab goes on with the value of the line before it.
std::string optionsFile(const JobOptions& options);

} // namespace halvern
