#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

namespace halvern {

/// One page to print: a photo file, or one page of a PDF. A value; the pixels are read again when they are
/// needed, except the small copy for the preview.
struct Photo {
    QString path;
    int page = 0; ///< of a PDF, from 0
    bool isPdf = false;
    QSize pixels;   ///< upright, that is, after the camera's orientation is applied; empty for a PDF
    QSizeF ownSize; ///< points: what "actual size" prints
    QImage preview; ///< upright, sRGB, at most kPreviewEdge pixels on its longer edge
};

inline constexpr int kPreviewEdge = 1600;

/// A file's pages, or the sentence that says why there are none.
struct PhotoFile {
    std::vector<Photo> pages;
    QString problem;
};

/// Reads a JPEG, PNG, TIFF or PDF file. Takes as long as decoding takes: call it on a worker. Any thread.
PhotoFile readPhotoFile(const QString& path);

/// A quick look without decoding: the sentence about a file that is missing, a folder, empty or unreadable.
QString fileProblem(const QString& path);

/// The whole picture, upright and in sRGB; a PDF page is drawn at `resolution` dots per inch. Null, with a
/// sentence in `problem`, if the file has changed or is gone. Any thread.
QImage readPixels(const Photo& photo, int resolution, QString* problem);

/// A JPEG file whose compressed data can go into a print job as they stand.
struct JpegData {
    QByteArray bytes;
    QSize size;              ///< as stored
    int components = 3;      ///< 1 or 3
    int quarterTurns = 0;    ///< clockwise, to make it upright
    bool isMirrored = false; ///< mirrored left to right before it is turned
};

/// Nothing if the photo is no such JPEG: another format, four components, or colours that need converting.
std::optional<JpegData> readJpegData(const Photo& photo);

} // namespace halvern
