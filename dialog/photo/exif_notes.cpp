// SPDX-License-Identifier: MIT
#include "dialog/photo/exif_notes.h"

#include <QtEndian>

#include <optional>

namespace halvern {

namespace {

constexpr int kOrientation = 0x0112;
constexpr int kThumbnailStart = 0x0201;
constexpr int kThumbnailLength = 0x0202;
constexpr int kExifDirectory = 0x8769;
constexpr int kColorSpace = 0xA001;
constexpr int kInteroperability = 0xA005;
constexpr int kInteroperabilityIndex = 0x0001;
constexpr int kSrgb = 1;
constexpr int kAdobeRgb = 2; // in no standard, but written by some cameras
constexpr int kUncalibrated = 0xFFFF;
constexpr quint32 kEntry = 12; // bytes
constexpr int kShort = 3;

class Tiff {
public:
    explicit Tiff(const QByteArray& bytes) : bytes_(bytes), isLittle_(bytes.startsWith("II")) {}

    bool isValid() const { return isLittle_ || bytes_.startsWith("MM"); }

    quint32 firstDirectory() const { return number32(4).value_or(0); }

    // Where the four bytes of an entry's value are; nothing if there is no such entry.
    std::optional<quint32> find(quint32 directory, int tag) const
    {
        const quint32 count = number16(directory).value_or(0);
        for (quint32 i = 0; directory != 0 && i < count; ++i) {
            const quint32 entry = directory + 2 + i * kEntry;
            if (number16(entry) == tag && number32(entry + 8))
                return entry + 8;
        }
        return std::nullopt;
    }

    // A number that stands in its entry.
    std::optional<quint32> value(quint32 directory, int tag) const
    {
        const std::optional<quint32> at = find(directory, tag);
        if (!at)
            return std::nullopt;
        if (const std::optional<int> narrow = number16(*at); narrow && number16(*at - 6) == kShort)
            return quint32(*narrow);
        return number32(*at);
    }

    QByteArray text(quint32 at) const { return bytes_.mid(at, 3); }

    // The directory behind this one; 0 if there is none.
    quint32 next(quint32 directory) const
    {
        const quint32 count = number16(directory).value_or(0);
        return directory == 0 ? 0 : number32(directory + 2 + count * kEntry).value_or(0);
    }

    QByteArray piece(quint32 at, quint32 length) const
    {
        return qsizetype(at) + qsizetype(length) <= bytes_.size() ? bytes_.mid(at, length) : QByteArray();
    }

private:
    std::optional<int> number16(quint32 at) const
    {
        if (qsizetype(at) + 2 > bytes_.size())
            return std::nullopt;
        const char* from = bytes_.constData() + at;
        return isLittle_ ? qFromLittleEndian<quint16>(from) : qFromBigEndian<quint16>(from);
    }

    std::optional<quint32> number32(quint32 at) const
    {
        if (qsizetype(at) + 4 > bytes_.size())
            return std::nullopt;
        const char* from = bytes_.constData() + at;
        return isLittle_ ? qFromLittleEndian<quint32>(from) : qFromBigEndian<quint32>(from);
    }

    QByteArray bytes_;
    bool isLittle_;
};

ColorTag colorTagOf(const Tiff& tiff, quint32 exif)
{
    const quint32 space = tiff.value(exif, kColorSpace).value_or(0);
    if (space == kSrgb)
        return ColorTag::sRgb;
    if (space == kAdobeRgb)
        return ColorTag::adobeRgb;
    // Cameras write "uncalibrated", and that it is Adobe RGB in a place of its own.
    const quint32 directory = tiff.value(exif, kInteroperability).value_or(0);
    const std::optional<quint32> index = tiff.find(directory, kInteroperabilityIndex);
    return space == kUncalibrated && index && tiff.text(*index) == "R03" ? ColorTag::adobeRgb
                                                                         : ColorTag::none;
}

} // namespace

ExifNotes readExifNotes(const QByteArray& bytes)
{
    const Tiff tiff(bytes);
    if (!tiff.isValid())
        return {};
    const quint32 first = tiff.firstDirectory();
    ExifNotes notes;
    notes.orientation = orientationOfTag(int(tiff.value(first, kOrientation).value_or(1)));
    if (const quint32 exif = tiff.value(first, kExifDirectory).value_or(0); exif != 0)
        notes.colorTag = colorTagOf(tiff, exif);
    return notes;
}

QByteArray embeddedThumbnail(const QByteArray& bytes)
{
    const Tiff tiff(bytes);
    if (!tiff.isValid())
        return {};
    const quint32 second = tiff.next(tiff.firstDirectory());
    const quint32 length = tiff.value(second, kThumbnailLength).value_or(0);
    const QByteArray file = tiff.piece(tiff.value(second, kThumbnailStart).value_or(0), length);
    return file.startsWith("\xFF\xD8") ? file : QByteArray();
}

} // namespace halvern
