// SPDX-License-Identifier: MIT
#include "dialog/decode/tiff_file.h"

#include "dialog/decode/packed_data.h"

#include <algorithm>
#include <cstring>

namespace halvern {

namespace {

constexpr tmsize_t kMostInOnePiece = tmsize_t(2) * 1024 * 1024 * 1024 - 1;
constexpr int kMostDirectories = 10'000;

} // namespace

// What the library asks of a file.
struct TiffBytes {
    static tmsize_t read(thandle_t handle, void* to, tmsize_t size)
    {
        auto& file = *static_cast<TiffFile*>(handle);
        const uint64_t there = file.bytes_.size() - std::min<uint64_t>(file.place_, file.bytes_.size());
        const uint64_t given = std::min<uint64_t>(there, uint64_t(std::max<tmsize_t>(size, 0)));
        std::memcpy(to, file.bytes_.data() + file.place_, given);
        file.place_ += given;
        return tmsize_t(given);
    }

    static tmsize_t write(thandle_t, void*, tmsize_t) { return -1; }

    static toff_t seek(thandle_t handle, toff_t offset, int whence)
    {
        auto& file = *static_cast<TiffFile*>(handle);
        const uint64_t from = whence == SEEK_CUR ? file.place_ : whence == SEEK_END ? file.bytes_.size() : 0;
        return file.place_ = from + offset;
    }

    static int close(thandle_t) { return 0; }

    static toff_t size(thandle_t handle) { return static_cast<TiffFile*>(handle)->bytes_.size(); }

    static int map(thandle_t handle, void** base, toff_t* size)
    {
        auto& file = *static_cast<TiffFile*>(handle);
        *base = const_cast<uchar*>(file.bytes_.data());
        *size = file.bytes_.size();
        return 1;
    }

    static void unmap(thandle_t, void*, toff_t) {}
};

int TiffFile::noteError(TIFF*, void* file, const char*, const char*, va_list)
{
    static_cast<TiffFile*>(file)->hasComplained_ = true;
    return 1;
}

// The JPEG data within a TIFF file are made up by their library where they are missing, with a warning.
int TiffFile::noteWarning(TIFF*, void* file, const char* module, const char*, va_list)
{
    if (module && std::strncmp(module, "JPEG", 4) == 0)
        static_cast<TiffFile*>(file)->hasComplained_ = true;
    return 1;
}

TiffFile::TiffFile(FileBytes bytes) : bytes_(bytes)
{
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options, kMostInOnePiece);
    TIFFOpenOptionsSetErrorHandlerExtR(options, &TiffFile::noteError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options, &TiffFile::noteWarning, this);
    tiff_.reset(TIFFClientOpenExt("photo", "r", this, TiffBytes::read, TiffBytes::write, TiffBytes::seek,
                                  TiffBytes::close, TiffBytes::size, TiffBytes::map, TiffBytes::unmap,
                                  options));
    TIFFOpenOptionsFree(options);
    if (!tiff_)
        throw Unreadable{PhotoFault::damaged};
}

QList<qint32> TiffFile::pictures()
{
    QList<qint32> pictures;
    int directory = 0;
    do {
        const auto kind = field<uint32_t>(TIFFTAG_SUBFILETYPE, 0);
        if (!(kind & (FILETYPE_REDUCEDIMAGE | FILETYPE_MASK)))
            pictures.append(directory);
        ++directory;
        const bool isLast = TIFFLastDirectory(get());
        if (isLast || directory == kMostDirectories)
            break;
        isCutOff_ = !TIFFReadDirectory(get());
    } while (!isCutOff_);
    return pictures.isEmpty() ? QList<qint32>{0} : pictures;
}

void TiffFile::show(int directory)
{
    if (!TIFFSetDirectory(get(), tdir_t(directory)))
        throw Unreadable{PhotoFault::damaged};
    hasComplained_ = false;
}

void TiffFile::lookForHoles()
{
    const auto packing = field<uint16_t>(TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    const bool isDeflated = packing == COMPRESSION_ADOBE_DEFLATE || packing == COMPRESSION_DEFLATE;
    const bool isUsual = field<uint16_t>(TIFFTAG_FILLORDER, FILLORDER_MSB2LSB) == FILLORDER_MSB2LSB;
    if (!isUsual || (!isDeflated && packing != COMPRESSION_LZW))
        return;
    const uint32_t count = TIFFIsTiled(get()) ? TIFFNumberOfTiles(get()) : TIFFNumberOfStrips(get());
    for (uint32_t i = 0; i < count; ++i) {
        const uint64_t from = std::min<uint64_t>(TIFFGetStrileOffset(get(), i), bytes_.size());
        const uint64_t length = std::min<uint64_t>(TIFFGetStrileByteCount(get(), i), bytes_.size() - from);
        const FileBytes data = bytes_.subspan(from, length);
        // A large even area is deflated to zeros; the other way of packing never repeats a code so often.
        if (hasHole(data) && !(isDeflated && isDeflatedWhole(data)))
            hasComplained_ = true;
    }
}

} // namespace halvern
