// SPDX-License-Identifier: MIT
#include "printer/png_page.h"

#include "printer/page_stream.h"

#include <cerrno>
#include <cmath>
#include <csetjmp>
#include <cstring>
#include <fcntl.h>
#include <png.h>
#include <unistd.h>

namespace halvern {

struct PngPage::State {
    std::filesystem::path file;
    std::filesystem::path part;
    std::FILE* out = nullptr;
    png_structp png = nullptr;
    png_infop info = nullptr;
    bool finished = false;
    std::string error;
};

namespace {

void onPngError(png_structp png, png_const_charp message)
{
    *static_cast<std::string*>(png_get_error_ptr(png)) = message;
    longjmp(png_jmpbuf(png), 1);
}

void onPngWarning(png_structp, png_const_charp) {}

png_uint_32 perMetre(uint32_t dpi)
{
    return static_cast<png_uint_32>(std::lround(dpi / 0.0254));
}

// Nothing in here may need a destructor: libpng leaves by longjmp.
bool writeHead(png_structp png, png_infop info, std::FILE* out, const PageHeader& page)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_init_io(png, out);
    // Speed before size: a large page at 720 dpi is a quarter of a gigabyte of rows.
    png_set_compression_level(png, 1);
    png_set_filter(png, 0, PNG_FILTER_SUB);
    png_set_user_limits(png, kMaxPageSide, kMaxPageSide);
    png_set_IHDR(png, info, page.width, page.height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, info, perMetre(page.xDpi), perMetre(page.yDpi), PNG_RESOLUTION_METER);
    png_write_info(png, info);
    return true;
}

bool writeRow(png_structp png, const uint8_t* pixels)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_write_row(png, pixels);
    return true;
}

bool writeEnd(png_structp png, png_infop info)
{
    if (setjmp(png_jmpbuf(png)) != 0)
        return false;
    png_write_end(png, info);
    return true;
}

} // namespace

PngPage::PngPage(const std::filesystem::path& file, const PageHeader& page)
    : state_(std::make_unique<State>())
{
    state_->file = file;
    state_->part = file.string() + ".part";
    const int fd = ::open(state_->part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0644);
    state_->out = fd < 0 ? nullptr : ::fdopen(fd, "wb");
    if (state_->out == nullptr) {
        state_->error = std::strerror(errno);
        return;
    }
    state_->png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &state_->error, onPngError, onPngWarning);
    state_->info = state_->png == nullptr ? nullptr : png_create_info_struct(state_->png);
    if (state_->info == nullptr)
        state_->error = "out of memory";
    else
        writeHead(state_->png, state_->info, state_->out, page);
}

PngPage::~PngPage()
{
    if (state_->png != nullptr)
        png_destroy_write_struct(&state_->png, &state_->info);
    if (state_->out != nullptr)
        std::fclose(state_->out);
    if (!state_->finished)
        ::unlink(state_->part.c_str());
}

bool PngPage::row(std::span<const uint8_t> pixels)
{
    return state_->error.empty() && writeRow(state_->png, pixels.data());
}

bool PngPage::finish()
{
    if (!state_->error.empty() || !writeEnd(state_->png, state_->info))
        return false;
    const bool closed = std::fclose(state_->out) == 0;
    state_->out = nullptr;
    state_->finished = closed && ::rename(state_->part.c_str(), state_->file.c_str()) == 0;
    if (!state_->finished)
        state_->error = std::strerror(errno);
    return state_->finished;
}

const std::string& PngPage::error() const
{
    return state_->error;
}

} // namespace halvern
