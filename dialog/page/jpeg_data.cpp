// SPDX-License-Identifier: MIT
#include "dialog/page/jpeg_data.h"

#include "dialog/page/jpeg_decoder.h"
#include "dialog/page/jpeg_scan.h"

#include <QFile>

namespace halvern {

std::optional<JpegInfo> readJpegInfo(const QString& path, bool through)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? readJpegHead(file) : QByteArray();
    const std::optional<JpegHeader> header = head.isEmpty() ? std::nullopt : JpegDecoder(head).header();
    if (!header)
        return std::nullopt;
    JpegInfo info;
    info.size = header->size;
    info.components = header->components;
    info.profile = header->profile;
    info.orientation = jpegOrientation(head);
    info.dotsPerInch = header->dotsPerInch;
    info.suitsPdf = header->suitsPdf;
    info.isWhole = through && isJpegInOrder(file);
    return info;
}

std::optional<JpegInfo> untouchableJpeg(const Photo& photo)
{
    // Made-up pixels differ from decoder to decoder: a damaged photo prints as it was shown.
    if (photo.isPdf || photo.isDamaged)
        return std::nullopt;
    std::optional<JpegInfo> info = readJpegInfo(photo.path, false);
    const bool isAsOpened = info && info->suitsPdf && info->orientation.upright(info->size) == photo.pixels;
    return isAsOpened ? info : std::nullopt;
}

} // namespace halvern
