// SPDX-License-Identifier: MIT
#include "dialog/page/tiff_pages.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <cstring>
#include <memory>

#include <tiffio.h>

namespace halvern {

namespace {

constexpr tmsize_t kMostInOnePiece = tmsize_t(2) * 1024 * 1024 * 1024 - 1;

struct CloseTiff {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};

using TiffFile = std::unique_ptr<TIFF, CloseTiff>;

int noteError(TIFF*, void* wasComplained, const char*, const char*, va_list)
{
    *static_cast<bool*>(wasComplained) = true;
    return 1;
}

// The JPEG data within a TIFF file are made up by their library where they are missing, with a warning.
int noteWarning(TIFF*, void* wasComplained, const char* module, const char*, va_list)
{
    if (module && std::strncmp(module, "JPEG", 4) == 0)
        *static_cast<bool*>(wasComplained) = true;
    return 1;
}

TiffFile openTiff(const QString& path, bool* wasComplained)
{
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options, kMostInOnePiece);
    TIFFOpenOptionsSetErrorHandlerExtR(options, noteError, wasComplained);
    TIFFOpenOptionsSetWarningHandlerExtR(options, noteWarning, wasComplained);
    // "m": not mapped, because a mapped file that shrinks meanwhile ends the program.
    TiffFile file(TIFFOpenExt(QFile::encodeName(path).constData(), "rm", options));
    TIFFOpenOptionsFree(options);
    return file;
}

bool isBesideAPicture(TIFF* tiff)
{
    uint32_t kind = 0;
    return TIFFGetField(tiff, TIFFTAG_SUBFILETYPE, &kind) && (kind & (FILETYPE_REDUCEDIMAGE | FILETYPE_MASK));
}

} // namespace

bool looksLikeTiff(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(4);
    const QByteArray starts[] = {QByteArray("II*\0", 4), QByteArray("MM\0*", 4), QByteArray("II+\0", 4),
                                 QByteArray("MM\0+", 4)};
    return std::find(std::begin(starts), std::end(starts), start) != std::end(starts);
}

void silenceTiffLibrary()
{
    static const bool isSilent = [] {
        TIFFSetErrorHandler(nullptr);
        TIFFSetWarningHandler(nullptr);
        return true;
    }();
    Q_UNUSED(isSilent)
}

std::vector<int> tiffPages(const QString& path)
{
    std::vector<int> pages;
    bool wasComplained = false;
    const TiffFile tiff = openTiff(path, &wasComplained);
    if (tiff) {
        int directory = 0;
        do {
            if (!isBesideAPicture(tiff.get()))
                pages.push_back(directory);
            ++directory;
        } while (TIFFReadDirectory(tiff.get()));
    }
    return pages.empty() ? std::vector<int>{0} : pages;
}

bool isTiffPageWhole(const QString& path, int directory)
{
    bool wasComplained = false;
    const TiffFile tiff = openTiff(path, &wasComplained);
    if (!tiff || !TIFFSetDirectory(tiff.get(), tdir_t(directory)))
        return false;
    wasComplained = false;
    const bool isTiled = TIFFIsTiled(tiff.get());
    const tmsize_t size = isTiled ? TIFFTileSize(tiff.get()) : TIFFStripSize(tiff.get());
    if (size <= 0 || size > kMostInOnePiece)
        return false;
    const std::unique_ptr<char[]> piece(new (std::nothrow) char[size_t(size)]);
    const uint32_t pieces = isTiled ? TIFFNumberOfTiles(tiff.get()) : TIFFNumberOfStrips(tiff.get());
    for (uint32_t i = 0; piece && i < pieces && !wasComplained; ++i) {
        const tmsize_t read = isTiled ? TIFFReadEncodedTile(tiff.get(), i, piece.get(), size)
                                      : TIFFReadEncodedStrip(tiff.get(), i, piece.get(), size);
        wasComplained = wasComplained || read < 0;
    }
    return piece && !wasComplained;
}

} // namespace halvern
