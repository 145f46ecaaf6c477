// SPDX-License-Identifier: MIT
#include "dialog/decode/camera_notes.h"

#include <exiv2/exiv2.hpp>
#include <libheif/heif.h>

#include <cmath>
#include <vector>

namespace halvern {

namespace {

constexpr int kSrgb = 1;
constexpr int kUncalibrated = 0xFFFF;
constexpr size_t kTiffOffset = 4; // what a HEIF file puts before the Exif data
constexpr int kMostStars = 5;

struct Data {
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
};

QString cut(const std::string& text)
{
    return QString::fromUtf8(text.data(), qsizetype(std::min(text.size(), size_t(kLongestDetail) * 4)))
        .trimmed()
        .left(kLongestDetail);
}

QString textOf(const Exiv2::ExifData& exif, const char* key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() ? QString() : cut(found->toString());
}

double numberOf(const Exiv2::ExifData& exif, const char* key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    if (found == exif.end() || found->count() == 0)
        return 0.0;
    const auto [above, below] = found->toRational();
    const double number = below != 0 ? double(above) / below : 0.0;
    return std::isfinite(number) && number > 0.0 ? number : 0.0;
}

int integerOf(const Exiv2::ExifData& exif, const char* key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() || found->count() == 0 ? 0 : int(found->toLong());
}

// A text in the file's main language: without the language that stands before it.
QString textOf(const Exiv2::XmpData& xmp, const char* key)
{
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    if (found == xmp.end() || found->count() == 0)
        return {};
    std::string text = found->toString(0);
    if (text.starts_with("lang=")) {
        const size_t blank = text.find(' ');
        text = blank == std::string::npos ? std::string() : text.substr(blank + 1);
    }
    return cut(text);
}

QString textOf(const Exiv2::IptcData& iptc, const char* key)
{
    const auto found = iptc.findKey(Exiv2::IptcKey(key));
    return found == iptc.end() ? QString() : cut(found->toString());
}

QString firstOf(std::initializer_list<QString> texts)
{
    for (const QString& text : texts) {
        if (!text.isEmpty())
            return text;
    }
    return {};
}

// "2024:05:06 12:13:14" -> "2024-05-06 12:13:14"
QString dateOf(QString text)
{
    if (text.size() >= 10 && text[4] == u':' && text[7] == u':')
        text[4] = text[7] = u'-';
    return text.startsWith(QLatin1StringView("0000")) ? QString() : text.left(19);
}

ExifNotes notesOf(const Exiv2::ExifData& exif)
{
    ExifNotes notes;
    notes.orientation = orientationOfTag(integerOf(exif, "Exif.Image.Orientation"));
    const int space = integerOf(exif, "Exif.Photo.ColorSpace");
    // Cameras call Adobe RGB uncalibrated, and say more in the index of interoperability.
    if (space == kSrgb)
        notes.colorTag = ColorTag::sRgb;
    else if (space == 2 ||
             (space == kUncalibrated &&
              textOf(exif, "Exif.Iop.InteroperabilityIndex").startsWith(QLatin1StringView("R03"))))
        notes.colorTag = ColorTag::adobeRgb;
    return notes;
}

PhotoDetails detailsOf(const Data& data)
{
    PhotoDetails details;
    details.taken = dateOf(firstOf({textOf(data.exif, "Exif.Photo.DateTimeOriginal"),
                                    textOf(data.exif, "Exif.Photo.DateTimeDigitized"),
                                    textOf(data.exif, "Exif.Image.DateTime")}));
    const QString make = textOf(data.exif, "Exif.Image.Make");
    const QString model = textOf(data.exif, "Exif.Image.Model");
    details.camera = model.startsWith(make) ? model : QString(make + u' ' + model).trimmed();
    details.lens = textOf(data.exif, "Exif.Photo.LensModel");
    details.exposure = numberOf(data.exif, "Exif.Photo.ExposureTime");
    details.aperture = numberOf(data.exif, "Exif.Photo.FNumber");
    details.focalLength = numberOf(data.exif, "Exif.Photo.FocalLength");
    details.sensitivity = integerOf(data.exif, "Exif.Photo.ISOSpeedRatings");
    details.title =
        firstOf({textOf(data.xmp, "Xmp.dc.title"), textOf(data.iptc, "Iptc.Application2.ObjectName")});
    details.description =
        firstOf({textOf(data.xmp, "Xmp.dc.description"), textOf(data.iptc, "Iptc.Application2.Caption"),
                 textOf(data.exif, "Exif.Image.ImageDescription")});
    const int stars = textOf(data.xmp, "Xmp.xmp.Rating").toInt();
    const int cameraStars = integerOf(data.exif, "Exif.Image.Rating");
    details.rating = std::clamp(stars > 0 ? stars : cameraStars, 0, kMostStars);
    return details;
}

struct ReleaseHeif {
    void operator()(heif_context* context) const { heif_context_free(context); }

    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
};

// Exiv2 reads this format in some builds only; the data it knows.
Data dataOfHeif(FileBytes bytes)
{
    Data data;
    const std::unique_ptr<heif_context, ReleaseHeif> context(heif_context_alloc());
    heif_image_handle* found = nullptr;
    if (heif_context_read_from_memory_without_copy(context.get(), bytes.data(), bytes.size(), nullptr).code !=
            heif_error_Ok ||
        heif_context_get_primary_image_handle(context.get(), &found).code != heif_error_Ok)
        return data;
    const std::unique_ptr<heif_image_handle, ReleaseHeif> handle(found);
    const int count = heif_image_handle_get_number_of_metadata_blocks(found, nullptr);
    std::vector<heif_item_id> ids(size_t(std::max(count, 0)));
    heif_image_handle_get_list_of_metadata_block_IDs(found, nullptr, ids.data(), count);
    for (const heif_item_id id : ids) {
        std::vector<uchar> block(heif_image_handle_get_metadata_size(found, id));
        if (block.empty() || heif_image_handle_get_metadata(found, id, block.data()).code != heif_error_Ok)
            continue;
        const std::string_view type = heif_image_handle_get_metadata_type(found, id);
        if (type == "Exif" && block.size() > kTiffOffset) {
            const size_t skip = kTiffOffset + (size_t(block[0]) << 24 | size_t(block[1]) << 16 |
                                               size_t(block[2]) << 8 | size_t(block[3]));
            if (skip < block.size())
                Exiv2::ExifParser::decode(data.exif, block.data() + skip, uint32_t(block.size() - skip));
        } else if (type == "mime") {
            Exiv2::XmpParser::decode(data.xmp, std::string(block.begin(), block.end()));
        }
    }
    return data;
}

Data dataOf(FileBytes bytes)
{
    if (isHeif(bytes))
        return dataOfHeif(bytes);
    const auto image = Exiv2::ImageFactory::open(bytes.data(), long(bytes.size()));
    image->readMetadata();
    return {image->exifData(), image->iptcData(), image->xmpData()};
}

} // namespace

Metadata metadataOf(FileBytes bytes)
{
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    try {
        const Data data = dataOf(bytes);
        return {notesOf(data.exif), detailsOf(data)};
    } catch (const std::exception&) {
        return {}; // a photo without metadata is a photo
    }
}

ExifNotes notesOfExif(FileBytes exif)
{
    Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
    try {
        Exiv2::ExifData data;
        Exiv2::ExifParser::decode(data, exif.data(), uint32_t(exif.size()));
        return notesOf(data);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace halvern
