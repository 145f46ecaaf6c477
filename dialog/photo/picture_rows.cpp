// SPDX-License-Identifier: MIT
#include "dialog/photo/picture_rows.h"

namespace halvern {

QByteArray readAllRows(PictureRows& rows)
{
    const StoredPicture& picture = rows.picture();
    QByteArray bytes(picture.rowBytes() * picture.size.height(), Qt::Uninitialized);
    const int count = rows.read(reinterpret_cast<uchar*>(bytes.data()), picture.size.height());
    bytes.truncate(picture.rowBytes() * count);
    return bytes;
}

} // namespace halvern
