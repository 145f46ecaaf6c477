// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDataStream>

#include <tuple>
#include <vector>

namespace halvern {

/// Gray RGB pictures of 40 x 30, each lighter than the one before by 60; a kind is the NewSubfileType.
inline QByteArray tiffOf(const std::vector<quint32>& kinds)
{
    constexpr quint32 kDirectory = 2 + 10 * 12 + 4;
    constexpr quint32 kDepths = 3 * 2;
    constexpr quint32 kPixels = 40 * 30 * 3;
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(0x002A4949) << quint32(8);
    for (size_t i = 0; i < kinds.size(); ++i) {
        const quint32 depths = quint32(file.size()) + kDirectory;
        const quint32 data = depths + kDepths;
        out << quint16(10);
        const std::tuple<quint16, quint32, quint32> entries[] = {
            {254, 1, kinds[i]}, {256, 1, 40},   {257, 1, 30}, {258, 3, depths}, {259, 1, 1},
            {262, 1, 2},        {273, 1, data}, {277, 1, 3},  {278, 1, 30},     {279, 1, kPixels}};
        for (const auto& [tag, count, value] : entries)
            out << tag << quint16(count == 1 ? 4 : 3) << count << value;
        out << (i + 1 < kinds.size() ? data + kPixels : 0) << quint16(8) << quint16(8) << quint16(8);
        out.writeRawData(QByteArray(kPixels, char(60 * i)).constData(), kPixels);
    }
    return file;
}

} // namespace halvern
