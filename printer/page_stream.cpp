// SPDX-License-Identifier: MIT
#include "printer/page_stream.h"

#include "printer/cancellation.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <sstream>
#include <unistd.h>

namespace halvern {

namespace {

constexpr char kMagic[] = "HALVERN-PAGES 1";
constexpr size_t kMaxLine = 64;
constexpr size_t kBufferSize = size_t{256} * 1024;

std::optional<PageHeader> parsePage(const std::string& text)
{
    PageHeader page;
    std::string side;
    std::string kind;
    std::istringstream in(text);
    in >> page.sheet >> side >> kind >> page.width >> page.height >> page.xDpi >> page.yDpi;
    const bool sane = page.sheet > 0 && page.width > 0 && page.height > 0 && page.xDpi > 0 && page.yDpi > 0 &&
                      page.width <= kMaxPageSide && page.height <= kMaxPageSide;
    if (in.fail() || !sane || (side != "front" && side != "back") || (kind != "picture" && kind != "text"))
        return std::nullopt;
    page.back = side == "back";
    page.text = kind == "text";
    return page;
}

} // namespace

PageStreamWriter::PageStreamWriter(std::FILE* out) : out_(out)
{
    std::fprintf(out_, "%s\n", kMagic);
}

bool PageStreamWriter::record(const char* tag, const std::string& payload)
{
    std::fprintf(out_, "%s %zu\n", tag, payload.size());
    std::fwrite(payload.data(), 1, payload.size(), out_);
    return std::ferror(out_) == 0;
}

bool PageStreamWriter::options(const JobOptions& options)
{
    return std::all_of(options.begin(), options.end(), [this](const JobOption& option) {
        return record("OPTION", option.key + "=" + option.value);
    });
}

bool PageStreamWriter::page(const PageHeader& page)
{
    std::ostringstream text;
    text << page.sheet << (page.back ? " back" : " front") << (page.text ? " text " : " picture ")
         << page.width << ' ' << page.height << ' ' << page.xDpi << ' ' << page.yDpi;
    return record("PAGE", text.str());
}

bool PageStreamWriter::row(std::span<const uint8_t> pixels)
{
    return std::fwrite(pixels.data(), 1, pixels.size(), out_) == pixels.size();
}

bool PageStreamWriter::command(const std::string& file)
{
    return record("COMMAND", file);
}

bool PageStreamWriter::end()
{
    return record("END", "") && std::fflush(out_) == 0;
}

PageStreamReader::PageStreamReader(int fd) : fd_(fd), buffer_(kBufferSize) {}

bool PageStreamReader::fail(const std::string& why)
{
    if (error_.empty() && !cancellation::requested())
        error_ = why;
    return false;
}

// More bytes into the buffer, which is used up: how many, 0 at the end of the data, -1 after a failure.
ssize_t PageStreamReader::read()
{
    if (!cancellation::waitReadable(fd_))
        return -1;
    const ssize_t got = ::read(fd_, buffer_.data(), buffer_.size());
    if (got < 0)
        fail(std::string("the page data cannot be read: ") + std::strerror(errno));
    at_ = 0;
    filled_ = static_cast<size_t>(std::max(got, ssize_t{0}));
    return got;
}

bool PageStreamReader::fill()
{
    const ssize_t got = read();
    if (got == 0)
        fail("the page data ends too early");
    return got > 0;
}

bool PageStreamReader::nextStream()
{
    if (at_ == filled_ && read() <= 0)
        return false;
    begun_ = false;
    return true;
}

bool PageStreamReader::bytes(uint8_t* to, size_t count)
{
    while (count > 0) {
        if (at_ == filled_ && !fill())
            return false;
        const size_t step = std::min(count, filled_ - at_);
        std::memcpy(to, buffer_.data() + at_, step);
        at_ += step;
        to += step;
        count -= step;
    }
    return true;
}

std::optional<std::string> PageStreamReader::line()
{
    std::string text;
    for (uint8_t c = 0; text.size() <= kMaxLine;) {
        if (!bytes(&c, 1))
            return std::nullopt;
        if (c == '\n')
            return text;
        text += static_cast<char>(c);
    }
    fail("the page data is not understood");
    return std::nullopt;
}

bool PageStreamReader::begin()
{
    const auto magic = line();
    if (!magic)
        return false;
    begun_ = true;
    return *magic == kMagic || fail("this is not page data of the Halvern filters");
}

std::optional<StreamItem> PageStreamReader::next()
{
    if (!error_.empty() || (!begun_ && !begin()))
        return std::nullopt;
    const auto head = line();
    if (!head)
        return std::nullopt;
    const size_t blank = head->find(' ');
    size_t length = 0;
    if (blank != std::string::npos) {
        const char* end = head->data() + head->size();
        const auto number = std::from_chars(head->data() + blank + 1, end, length);
        if (number.ec == std::errc() && number.ptr == end && length <= kMaxRecord) {
            std::string payload(length, '\0');
            if (!bytes(reinterpret_cast<uint8_t*>(payload.data()), length))
                return std::nullopt;
            return item(head->substr(0, blank), std::move(payload));
        }
    }
    fail("the page data is not understood");
    return std::nullopt;
}

std::optional<StreamItem> PageStreamReader::item(const std::string& tag, std::string payload)
{
    if (tag == "END")
        return StreamEnd();
    if (tag == "COMMAND")
        return StreamCommand{std::move(payload)};
    if (tag == "PAGE") {
        if (const auto page = parsePage(payload))
            return *page;
    }
    const size_t equals = payload.find('=');
    if (tag == "OPTION" && equals != std::string::npos)
        return JobOption{payload.substr(0, equals), payload.substr(equals + 1)};
    fail("the page data has a record \"" + tag + "\" that is not understood");
    return std::nullopt;
}

bool PageStreamReader::row(std::span<uint8_t> pixels)
{
    return bytes(pixels.data(), pixels.size());
}

} // namespace halvern
