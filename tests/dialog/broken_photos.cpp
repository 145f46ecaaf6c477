// SPDX-License-Identifier: MIT
#include "tests/dialog/broken_photos.h"

#include "tests/support/text.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <memory>
#include <random>

#include <libheif/heif.h>

namespace halvern {
namespace {

// Something in every corner, and noise that packs badly, so that each part of a file holds pixels.
QImage motif(QImage::Format format)
{
    QImage image(240, 160, QImage::Format_RGB32);
    std::minstd_rand random(7);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor(x, y, int(random() % 64) + 96));
    }
    return image.convertToFormat(format);
}

QByteArray written(const char* format, QImage::Format pixels = QImage::Format_RGB888, int compression = -1)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(90);
    writer.setCompression(compression);
    return writer.write(motif(pixels)) ? buffer.data() : QByteArray();
}

QByteArray pdf()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter painter(&writer);
    painter.drawImage(QRect(0, 0, 6000, 4000), motif(QImage::Format_RGB32));
    painter.end();
    return buffer.data();
}

heif_error append(heif_context*, const void* data, size_t size, void* file)
{
    static_cast<QByteArray*>(file)->append(static_cast<const char*>(data), qsizetype(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "ok"};
}

// Empty if this build of the library writes no such files.
QByteArray heif(heif_compression_format format)
{
    const std::unique_ptr<heif_context, void (*)(heif_context*)> context(heif_context_alloc(),
                                                                         heif_context_free);
    heif_encoder* encoder = nullptr;
    heif_image* image = nullptr;
    QByteArray file;
    if (heif_context_get_encoder_for_format(context.get(), format, &encoder).code != heif_error_Ok)
        return file;
    const QImage picture = motif(QImage::Format_RGB888);
    heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB,
                      &image);
    heif_image_add_plane(image, heif_channel_interleaved, picture.width(), picture.height(), 8);
    int stride = 0;
    uint8_t* plane = heif_image_get_plane(image, heif_channel_interleaved, &stride);
    for (int y = 0; y < picture.height(); ++y)
        std::copy_n(picture.constScanLine(y), picture.width() * 3, plane + y * stride);
    heif_writer writer{1, append};
    if (heif_context_encode_image(context.get(), image, encoder, nullptr, nullptr).code == heif_error_Ok)
        heif_context_write(context.get(), &writer, &file);
    heif_image_release(image);
    heif_encoder_release(encoder);
    return file;
}

// The toolkit writes no such files: each pixel as it is, and the codes forgotten before they grow.
QByteArray gif()
{
    constexpr int kForget = 128;
    constexpr int kEnd = 129;
    constexpr int kBeforeTheyGrow = 100;
    const QImage picture = motif(QImage::Format_Grayscale8);
    QByteArray file("GIF89a\xF0\0\xA0\0\xF6\0\0", 13);
    for (int i = 0; i < 128; ++i)
        file.append(3, char(2 * i));
    file.append("!\xF9\x04\0\0\0\0\0,\0\0\0\0\xF0\0\xA0\0\0\x07", 19);
    QByteArray codes;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        if (i % kBeforeTheyGrow == 0)
            codes.append(char(kForget));
        codes.append(char(qGray(picture.pixel(i % picture.width(), i / picture.width())) / 2));
    }
    codes.append(char(kEnd));
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        file.append(char(block.size())).append(block);
    }
    return file.append("\0;", 2);
}

struct Format {
    const char* name;
    QByteArray bytes;
};

std::vector<Format> formats()
{
    std::vector<Format> all{{"jpg", written("jpeg")},
                            {"gray.jpg", written("jpeg", QImage::Format_Grayscale8)},
                            {"png", written("png")},
                            {"deep.png", written("png", QImage::Format_RGBX64)},
                            {"glass.png", written("png", QImage::Format_ARGB32)},
                            {"tif", written("tiff", QImage::Format_RGB888, 0)},
                            {"lzw.tif", written("tiff", QImage::Format_RGB888, 1)},
                            {"webp", written("webp")},
                            {"bmp", written("bmp")},
                            {"ppm", written("ppm")},
                            {"gif", gif()},
                            {"pdf", pdf()},
                            {"heic", heif(heif_compression_HEVC)},
                            {"avif", heif(heif_compression_AV1)}};
    std::erase_if(all, [](const Format& format) { return format.bytes.isEmpty(); });
    return all;
}

// Where 240 or 160 stands as a number, an absurd one.
QByteArray withAbsurdSize(QByteArray bytes, std::minstd_rand& random)
{
    static const QByteArray kSizes[] = {QByteArray("\0\xF0", 2), QByteArray("\xF0\0", 2),
                                        QByteArray("\0\xA0", 2), QByteArray("\xA0\0", 2)};
    static const QByteArray kAbsurd[] = {QByteArray("\xFF\xFF", 2), QByteArray("\0\0", 2),
                                         QByteArray("\x7F\xFF", 2)};
    for (const QByteArray& size : kSizes) {
        for (qsizetype at = bytes.indexOf(size); at >= 0 && at < 1000; at = bytes.indexOf(size, at + 2)) {
            if (random() % 2 == 0)
                bytes.replace(at, 2, kAbsurd[random() % 3]);
        }
    }
    return bytes;
}

BrokenPhoto broken(const Format& format, int number, std::minstd_rand& random)
{
    BrokenPhoto photo{QString(), format.bytes, false, false};
    const char* how = "";
    const auto size = quint32(format.bytes.size());
    switch (number % 5) {
    case 0:
        how = "cut";
        photo.bytes.truncate(qsizetype(random() % size));
        photo.isCut = photo.bytes.size() < qsizetype(size) * 9 / 10;
        break;
    case 1:
        how = "flipped";
        for (quint32 i = random() % 20 + 1; i > 0; --i) {
            const auto at = qsizetype(random() % (i % 2 ? size : std::min(size, 512U)));
            photo.bytes[at] = char(photo.bytes[at] ^ (1 << random() % 8));
        }
        break;
    case 2:
        how = "absurd";
        photo.bytes = withAbsurdSize(photo.bytes, random);
        break;
    case 3: {
        how = "lost";
        const auto block = qsizetype(size / 4);
        photo.bytes.remove(block + qsizetype(random() % (size / 4)), block);
        // Whose readers make do with what is left, and say nothing.
        photo.isCut = QByteArray("gif pdf").indexOf(format.name) < 0;
        break;
    }
    default:
        how = "hole";
        const bool isOfSectors = QByteArray(format.name) == "webp"; // where a flat area may be zeros as well
        auto from = qsizetype(random() % size);
        from -= isOfSectors ? from % 512 : 0;
        photo.bytes.replace(from, qMin(qsizetype(4096), photo.bytes.size() - from),
                            QByteArray(qMin(qsizetype(4096), photo.bytes.size() - from), '\0'));
        // Whose packed data never have as many zeros.
        photo.isCut = (isOfSectors || QByteArray("heic avif").indexOf(format.name) >= 0) &&
                      photo.bytes.size() - from >= 512;
        break;
    }
    photo.name = q("%1-%2.%3").arg(q(how)).arg(number).arg(q(format.name));
    return photo;
}

} // namespace

std::vector<BrokenPhoto> brokenPhotos(quint32 seed, int ofEach)
{
    std::minstd_rand random(seed);
    std::vector<BrokenPhoto> photos;
    for (const Format& format : formats()) {
        photos.push_back({q("whole.%1").arg(q(format.name)), format.bytes, true, false});
        for (int i = 0; i < ofEach; ++i)
            photos.push_back(broken(format, i, random));
    }
    return photos;
}

} // namespace halvern
