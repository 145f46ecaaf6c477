// SPDX-License-Identifier: MIT
#pragma once

#include "printer/job_options.h"

#include <cstdint>
#include <cstdio>
#include <optional>
#include <span>
#include <string>
#include <sys/types.h>
#include <variant>
#include <vector>

/// What the printer's filters send to its back end.
///
/// The stream begins with the line "HALVERN-PAGES 1". Records follow, each a line "TAG LENGTH" and LENGTH
/// bytes:
///
///   OPTION   KEY=VALUE, one record for each option of the job, in the job's order
///   PAGE     "SHEET SIDE KIND WIDTH HEIGHT XDPI YDPI"; SIDE is front or back, KIND picture or text. After
///   the
///            record come HEIGHT rows of WIDTH pixels, three bytes each (red, green, blue), top row first
///   COMMAND  a command file
///   END      nothing: the stream is complete. A stream without it was cut off.
///
/// A job of several documents, a banner page and a photo for example, is several streams, one behind the
/// other.
namespace halvern {

struct PageHeader {
    int sheet = 1;
    bool back = false;
    bool text = false;
    uint32_t width = 0;
    uint32_t height = 0;
    uint32_t xDpi = 0;
    uint32_t yDpi = 0;
};

/// The largest page side, in pixels, and the largest other record, in bytes, that a reader accepts.
inline constexpr uint32_t kMaxPageSide = 200'000;
inline constexpr size_t kMaxRecord = size_t{1} << 20;

/// Writes a stream. Each operation answers false once the stream cannot be written any more.
class PageStreamWriter {
public:
    /// `out` stays the caller's.
    explicit PageStreamWriter(std::FILE* out);

    bool options(const JobOptions& options);

    /// Announces a page; header.height calls of row() must follow.
    bool page(const PageHeader& header);

    /// One row, three bytes a pixel.
    bool row(std::span<const uint8_t> pixels);

    bool command(const std::string& file);

    /// Ends the stream and flushes it.
    bool end();

private:
    bool record(const char* tag, const std::string& payload);

    std::FILE* out_;
};

struct StreamCommand {
    std::string file;
};

struct StreamEnd {};

using StreamItem = std::variant<JobOption, PageHeader, StreamCommand, StreamEnd>;

/// Reads a stream from a file descriptor, with a buffer of fixed size. After a cancelled job, a stream that
/// was cut off or one that is not understood, next() and row() answer failure, and error() says why; it is
/// empty if the job was cancelled.
class PageStreamReader {
public:
    /// `fd` stays the caller's.
    explicit PageStreamReader(int fd);

    std::optional<StreamItem> next();

    /// Waits for the next document's stream, after the end of one. False, without an error, if there is none.
    bool nextStream();

    /// The next row of the page last met; exactly as many bytes as a row has.
    bool row(std::span<uint8_t> pixels);

    const std::string& error() const { return error_; }

private:
    bool fail(const std::string& why);
    bool begin();
    ssize_t read();
    bool fill();
    bool bytes(uint8_t* to, size_t count);
    std::optional<std::string> line();
    std::optional<StreamItem> item(const std::string& tag, std::string payload);

    int fd_;
    bool begun_ = false;
    size_t at_ = 0;
    size_t filled_ = 0;
    std::vector<uint8_t> buffer_;
    std::string error_;
};

} // namespace halvern
