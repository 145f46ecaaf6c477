// SPDX-License-Identifier: MIT
#include "dialog/decode/readers.h"

#include <QImageReader>

#include <exiv2/exiv2.hpp>
#include <libheif/heif.h>
#include <png.h>
#include <poppler-version.h>
#include <tiffio.h>
#include <webp/decode.h>

#include <cstdio>

#include <jpeglib.h>

namespace halvern {

namespace {

QString dotted(int number)
{
    return QStringLiteral("%1.%2.%3").arg(number >> 16).arg(number >> 8 & 0xFF).arg(number & 0xFF);
}

QString tiffVersion()
{
    return QString::fromLatin1(TIFFGetVersion())
        .section(QLatin1Char('\n'), 0, 0)
        .section(QLatin1Char(' '), -1);
}

QString heifLine(heif_compression_format format, const char* name)
{
    if (!heif_have_decoder_for_format(format))
        return QStringLiteral("%1: not in this build's libheif\n").arg(QLatin1StringView(name));
    return QStringLiteral("%1: libheif %2\n")
        .arg(QLatin1StringView(name), QLatin1StringView(heif_get_version()));
}

} // namespace

QString readerVersions()
{
    QStringList others;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        if (!QList<QByteArray>{"jpg", "jpeg", "png", "tif", "tiff", "webp"}.contains(format))
            others.append(QString::fromLatin1(format).toUpper());
    }
    return QStringLiteral("JPEG: libjpeg-turbo, API %1\n").arg(JPEG_LIB_VERSION) +
           QStringLiteral("PNG: libpng %1\n").arg(QLatin1StringView(png_get_libpng_ver(nullptr))) +
           QStringLiteral("TIFF: libtiff %1\n").arg(tiffVersion()) +
           QStringLiteral("WebP: libwebp %1\n").arg(dotted(WebPGetDecoderVersion())) +
           heifLine(heif_compression_HEVC, "HEIF") + heifLine(heif_compression_AV1, "AVIF") +
           QStringLiteral("PDF: Poppler %1\n").arg(QLatin1StringView(POPPLER_VERSION)) +
           QStringLiteral("Metadata: Exiv2 %1\n").arg(QLatin1StringView(Exiv2::version())) +
           QStringLiteral("Others: Qt %1: %2\n")
               .arg(QLatin1StringView(qVersion()), others.join(QStringLiteral(", ")));
}

} // namespace halvern
