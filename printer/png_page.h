// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>

namespace halvern {

struct PageHeader;

/// A page on its way into a PNG file, one row at a time (8 bits a channel, red, green, blue, with the
/// resolution in pHYs). The file gets its name when it is whole: until finish() it is FILE.part, and a page
/// that is dropped before leaves nothing.
class PngPage {
public:
    PngPage(const std::filesystem::path& file, const PageHeader& page);
    ~PngPage();
    PngPage(const PngPage&) = delete;
    PngPage& operator=(const PngPage&) = delete;

    /// False if the file cannot be written; error() then says why.
    bool row(std::span<const uint8_t> pixels);
    bool finish();
    const std::string& error() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace halvern
