// Reads the outline of a JPEG file, so that its compressed data can go into a print job untouched.
#include "dialog/page/photo.h"

#include <QColorSpace>
#include <QFile>
#include <QImageReader>

namespace halvern {

namespace {

constexpr qint64 kLargestFile = 256LL * 1024 * 1024;

struct JpegOutline {
    QSize size;
    int components = 0;
    QByteArray profile;
    bool hasColourTransformMarker = false;
    int colourTransform = 0;
};

int wordAt(const QByteArray& bytes, qsizetype at)
{
    return (quint8(bytes[at]) << 8) | quint8(bytes[at + 1]);
}

bool isFrameHeader(int marker)
{
    // SOF0 to SOF2: what every reader of PDF files decodes. C4, C8 and CC are not frames.
    return marker >= 0xC0 && marker <= 0xC2;
}

void readSegment(const QByteArray& segment, int marker, JpegOutline& outline)
{
    if (isFrameHeader(marker) && segment.size() >= 6 && segment[0] == 8) {
        outline.size = QSize(wordAt(segment, 3), wordAt(segment, 1));
        outline.components = quint8(segment[5]);
    } else if (marker == 0xE2 && segment.startsWith(QByteArray("ICC_PROFILE\0", 12)) && segment.size() > 14) {
        outline.profile += segment.mid(14);
    } else if (marker == 0xEE && segment.startsWith("Adobe") && segment.size() >= 12) {
        outline.hasColourTransformMarker = true;
        outline.colourTransform = quint8(segment[11]);
    }
}

std::optional<JpegOutline> readOutline(const QByteArray& bytes)
{
    if (bytes.size() < 4 || wordAt(bytes, 0) != 0xFFD8)
        return std::nullopt;
    JpegOutline outline;
    qsizetype at = 2;
    while (at + 4 <= bytes.size() && quint8(bytes[at]) == 0xFF) {
        const int marker = quint8(bytes[at + 1]);
        if (marker == 0xFF) { // padding
            ++at;
            continue;
        }
        if (marker == 0xDA)
            return outline;
        const int length = wordAt(bytes, at + 2);
        if (length < 2 || at + 2 + length > bytes.size())
            return std::nullopt;
        readSegment(bytes.mid(at + 4, length - 2), marker, outline);
        at += 2 + length;
    }
    return std::nullopt;
}

bool needsConverting(const JpegOutline& outline)
{
    if (outline.profile.isEmpty())
        return false;
    const QColorSpace space = QColorSpace::fromIccProfile(outline.profile);
    // A profile that we cannot read is one that we cannot convert from either: the numbers go as they are.
    return space.isValid() && space != QColorSpace(QColorSpace::SRgb);
}

} // namespace

std::optional<JpegData> readJpegData(const Photo& photo)
{
    QFile file(photo.path);
    if (photo.isPdf || !file.open(QIODevice::ReadOnly) || file.size() > kLargestFile)
        return std::nullopt;
    JpegData data;
    data.bytes = file.readAll();
    const std::optional<JpegOutline> outline = readOutline(data.bytes);
    if (!outline || outline->size.isEmpty() || needsConverting(*outline))
        return std::nullopt;
    if (outline->components != 1 && outline->components != 3)
        return std::nullopt;
    if (outline->hasColourTransformMarker && outline->components == 3 && outline->colourTransform != 1)
        return std::nullopt;
    data.size = outline->size;
    data.components = outline->components;
    QImageReader reader(photo.path);
    const QImageIOHandler::Transformations turn = reader.transformation();
    data.isMirrored = turn.testFlag(QImageIOHandler::TransformationMirror);
    data.quarterTurns = turn.testFlag(QImageIOHandler::TransformationRotate90) ? 1 : 0;
    if (turn.testFlag(QImageIOHandler::TransformationFlip)) {
        // Upside down is a half turn and a mirror.
        data.isMirrored = !data.isMirrored;
        data.quarterTurns += 2;
    }
    const QSize upright = data.quarterTurns % 2 ? data.size.transposed() : data.size;
    if (upright != photo.pixels)
        return std::nullopt;
    return data;
}

} // namespace halvern
