// SPDX-License-Identifier: MIT
#pragma once

#include "printer/job_options.h"

#include <QImage>

#include <cstdint>
#include <span>
#include <vector>

namespace halvern {

struct PageHeader;

/// The place and the size of the text, in millimetres. The Backprint panel's preview, which shares no code
/// with the printer, has the same numbers in platform/maker/backprint_text.h; a test compares them.
namespace printed_back {

inline constexpr double kEdge = 8.0;
inline constexpr double kLetterHeight = 3.5;
inline constexpr double kLineHeight = 6.0;

} // namespace printed_back

/// The two lines for the back of a sheet as they are printed: those that are switched on and not empty, with
/// the substitutes for comma and apostrophe turned back. UTF-8.
std::vector<std::string> backLines(const JobOptions& options);

/// A sheet's back with lines of text near its upper edge. Only the rows with text are kept in memory. Needs a
/// QGuiApplication; main thread only.
class BackText {
public:
    BackText(const std::vector<std::string>& lines, const PageHeader& page);

    /// Fills the row `y` of the page, three bytes a pixel.
    void row(uint32_t y, std::span<uint8_t> pixels) const;

private:
    QImage strip_;
    uint32_t top_ = 0;
};

} // namespace halvern
