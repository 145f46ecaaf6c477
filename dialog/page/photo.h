// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/page/photo_placement.h"
#include "dialog/photo/picture_rows.h"

#include <QImage>
#include <QSizeF>

#include <compare>
#include <memory>
#include <vector>

namespace halvern {

/// What tells a file from another one that takes its place.
struct FileStamp {
    qint64 bytes = 0;
    qint64 changed = 0; ///< milliseconds since 1970

    auto operator<=>(const FileStamp&) const = default;
};

/// One page to print: a photo file, or one page of a PDF or TIFF file. A value; the pixels are read again
/// when they are needed, except the small copy for the preview.
struct Photo {
    QString path;
    int page = 0; ///< where the file has it, from 0
    bool isPdf = false;
    QSize pixels;   ///< upright, that is, after the camera's orientation is applied; empty for a PDF
    QSizeF ownSize; ///< points: what "actual size" prints
    QImage preview; ///< upright, sRGB, at most kPreviewEdge pixels on its longer edge; null: not kept
    /// A part of the file is missing or wrong; what is not there is gray, or smeared.
    bool isDamaged = false;
    bool printsDamaged = false; ///< the user wants it printed whatever is found to be missing
    FileStamp stamp;            ///< of the file when it was opened; empty: not known
    int pageNumber = 0;         ///< what a reader counts, from 1; 0: the file has one page only
    int pagesInFile = 1;        ///< that can be read
    bool isFileDamaged = false; ///< this page or another one of its file
    quint64 id = 0;             ///< tells it from all others in its dialog, the same file again included
    PhotoPlacement placement;   ///< what the user wants of it
};

inline constexpr int kPreviewEdge = 1600;
inline constexpr size_t kKeptPreviews = 8; ///< of one file and of all: the others' are read again when wanted

/// A photo among others. A file that has taken another one's place holds another photo.
struct PhotoKey {
    QString path;
    int page = 0;
    FileStamp stamp;

    bool operator==(const PhotoKey&) const = default;
    std::strong_ordering operator<=>(const PhotoKey&) const = default;
};

PhotoKey keyOf(const Photo& photo);

/// A file's pages, or the sentence that says why there are none. The sentence is also there if pages are
/// damaged.
struct PhotoFile {
    std::vector<Photo> pages;
    QString problem;
};

/// What "actual size" prints: the pixels at the resolution that the file says, 0 for none, as far as it is to
/// be believed.
QSizeF ownSizeInPoints(const QSize& pixels, double dotsPerInch);

/// Of a file as it is now; empty if there is none. Any thread.
FileStamp stampOf(const QString& path);

/// Whether the file is another one than when it was opened. Any thread.
bool hasChanged(const Photo& photo);

/// Reads a file of any format that there is a reader for. Takes as long as decoding takes: call it on a
/// worker. Any thread.
PhotoFile readPhotoFile(const QString& path);

/// The photo's pixels row by row, as its file has them: what a job is made from. They may be scaled down as
/// long as the longer edge has `leastEdge` pixels, 0: never; a PDF page is drawn at `resolution` dots per
/// inch instead, in sRGB. Null, with a sentence in `problem`, if the file is gone, has changed since it was
/// opened or cannot be read. Damage that was not known before is a problem once all rows are read. Any
/// thread.
std::unique_ptr<PictureRows> openPixels(const Photo& photo, int resolution, int leastEdge, QString* problem);

/// The whole picture, upright and in sRGB; a PDF page is drawn at `resolution` dots per inch. Null, with a
/// sentence in `problem`, as openPixels(). Any thread.
QImage readPixels(const Photo& photo, int resolution, QString* problem);

} // namespace halvern
