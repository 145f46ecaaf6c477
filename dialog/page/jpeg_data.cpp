// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_data.h"

#include "dialog/page/jpeg_markers.h"
#include "dialog/page/jpeg_scan.h"
#include "dialog/photo/exif_notes.h"

#include <QFile>
#include <QMap>
#include <QtEndian>

namespace halvern {

namespace {

using namespace jpeg_marker;

constexpr int kProgressive = 0xC2;
constexpr int kLastFrame = 0xCF;
constexpr int kReserved = 0xC8;
constexpr int kArithmeticTables = 0xCC;
constexpr int kJfif = 0xE0;
constexpr int kExif = 0xE1;
constexpr int kProfile = 0xE2;
constexpr int kAdobe = 0xEE;

bool isFrame(int marker)
{
    return marker >= kBaseline && marker <= kLastFrame && marker != kHuffmanTables && marker != kReserved &&
           marker != kArithmeticTables;
}

// What a head's segments say, gathered one by one.
struct Findings {
    JpegInfo info;
    int frame = 0;
    int precision = 0;
    QByteArray componentNames;
    bool hasJfif = false;
    bool hasExif = false;
    int adobeTransform = -1;
    QMap<int, QByteArray> profilePieces;
    int profileCount = 0;

    void takeFrame(int marker, const QByteArray& body)
    {
        if (body.size() < 6 || frame != 0)
            return;
        frame = marker;
        precision = uchar(body[0]);
        info.size = {qFromBigEndian<quint16>(body.constData() + 3),
                     qFromBigEndian<quint16>(body.constData() + 1)};
        info.components = uchar(body[5]);
        for (qsizetype i = 6; i + 2 < body.size(); i += 3)
            componentNames.append(body[i]);
    }

    void takeJfif(const QByteArray& body)
    {
        if (body.size() < 12 || !body.startsWith(QByteArray("JFIF\0", 5)))
            return;
        hasJfif = true;
        const double density = qFromBigEndian<quint16>(body.constData() + 8);
        if (body[7] == 1 || body[7] == 2)
            info.dotsPerInch = body[7] == 2 ? density * kCentimetresPerInch : density;
    }

    void takeProfile(const QByteArray& body)
    {
        const QByteArray name("ICC_PROFILE\0", 12);
        if (body.size() < name.size() + 2 || !body.startsWith(name))
            return;
        profileCount = uchar(body[name.size() + 1]);
        profilePieces.insert(uchar(body[name.size()]), body.mid(name.size() + 2));
    }

    void takeSegment(int marker, const QByteArray& body)
    {
        const QByteArray exif("Exif\0\0", 6);
        if (isFrame(marker))
            takeFrame(marker, body);
        else if (marker == kJfif)
            takeJfif(body);
        else if (marker == kProfile)
            takeProfile(body);
        else if (marker == kAdobe && body.size() >= 12 && body.startsWith("Adobe"))
            adobeTransform = uchar(body[11]);
        else if (marker == kExif && !hasExif && body.startsWith(exif)) {
            hasExif = true;
            const QByteArray tiff = body.mid(exif.size());
            const ExifNotes notes = readExifNotes(tiff);
            info.orientation = notes.orientation;
            info.colorTag = notes.colorTag;
            info.thumbnail = embeddedThumbnail(tiff);
        }
    }

    // The colours that decoders agree to find in three components.
    bool isYcc() const
    {
        if (info.components != 3 || adobeTransform >= 0)
            return info.components == 3 && adobeTransform == 1;
        return hasJfif || componentNames != "RGB";
    }

    JpegInfo finished()
    {
        for (int i = 1; i <= profileCount; ++i)
            info.profile += profilePieces.value(i);
        if (profilePieces.size() != profileCount)
            info.profile.clear();
        const bool isHuffman = frame == kBaseline || frame == kExtended || frame == kProgressive;
        info.suitsPdf = isHuffman && precision == 8 && (info.components == 1 || isYcc());
        return info;
    }
};

} // namespace

StoredPicture JpegInfo::asStored() const
{
    StoredPicture picture;
    picture.size = picture.fullSize = size;
    picture.format = components == 1   ? PixelFormat::gray8
                     : components == 4 ? PixelFormat::cmyk8
                                       : PixelFormat::rgb8;
    picture.profile = profile;
    picture.colorTag = colorTag;
    picture.orientation = orientation;
    picture.dotsPerInch = dotsPerInch;
    return picture;
}

std::optional<JpegInfo> readJpegInfo(const QString& path, bool through)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? readJpegHead(file) : QByteArray();
    Findings findings;
    // readJpegHead() has walked the same way.
    for (qsizetype at = 2; at + 4 <= head.size();) {
        const int marker = uchar(head[at + 1]);
        if (marker == kPadding) {
            ++at;
            continue;
        }
        const int length = qFromBigEndian<quint16>(head.constData() + at + 2);
        findings.takeSegment(marker, head.mid(at + 4, length - 2));
        at += 2 + length;
    }
    JpegInfo info = findings.finished();
    if (info.size.isEmpty())
        return std::nullopt;
    info.isWhole = through && isJpegInOrder(file);
    return info;
}

std::optional<JpegInfo> untouchableJpeg(const Photo& photo)
{
    // Made-up pixels differ from decoder to decoder: a damaged photo prints as it was shown.
    if (photo.isPdf || photo.isDamaged || hasChanged(photo))
        return std::nullopt;
    std::optional<JpegInfo> info = readJpegInfo(photo.path, false);
    const bool isAsOpened = info && info->suitsPdf && info->orientation.upright(info->size) == photo.pixels;
    return isAsOpened ? info : std::nullopt;
}

} // namespace halvern
