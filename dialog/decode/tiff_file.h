// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/decode/picture_source.h"

#include <memory>

#include <tiffio.h>

namespace halvern {

/// A TIFF file in memory, opened by its library without a word on the terminal.
class TiffFile {
public:
    /// Throws Unreadable.
    explicit TiffFile(FileBytes bytes);
    TiffFile(const TiffFile&) = delete;
    TiffFile& operator=(const TiffFile&) = delete;

    TIFF* get() const { return tiff_.get(); }

    /// Where its pictures stand among its directories, from 0: without the reduced copies and the masks that
    /// programs keep beside them. Only the first one if there is nothing else.
    QList<qint32> pictures();

    /// Once pictures() was called: whether it names a directory after the last one that can be read.
    bool isCutOff() const { return isCutOff_; }

    /// Goes to a directory. Throws Unreadable.
    void show(int directory);

    /// Complains of holes in the packed data of what is shown, which the library unpacks to something.
    void lookForHoles();

    /// Whether the library complained since show(), or lookForHoles() did.
    bool hasComplained() const { return hasComplained_; }

    template <typename Value> Value field(uint32_t tag, Value otherwise) const
    {
        Value value = otherwise;
        return TIFFGetFieldDefaulted(get(), tag, &value) ? value : otherwise;
    }

private:
    struct Close {
        void operator()(TIFF* tiff) const { TIFFClose(tiff); }
    };

    static int noteError(TIFF*, void* file, const char*, const char*, va_list);
    static int noteWarning(TIFF*, void* file, const char* module, const char*, va_list);

    FileBytes bytes_;
    uint64_t place_ = 0;
    bool hasComplained_ = false;
    bool isCutOff_ = false;
    std::unique_ptr<TIFF, Close> tiff_;

    friend struct TiffBytes;
};

} // namespace halvern
