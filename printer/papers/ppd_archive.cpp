// SPDX-License-Identifier: MIT
#include "printer/papers/ppd_archive.h"

#include "platform/printing/ppd.h"

namespace halvern {

PpdArchive archiveInPpd(const QString& path)
{
    PpdArchive archive;
    const ppd::File file = ppd::open(path, &archive.unreadable);
    if (!file)
        return archive;
    const QByteArray text = ppd::attributeRun(file.get(), QStringLiteral("VLXPapersKnown"));
    archive.present = !text.isEmpty();
    if (archive.present)
        archive.bytes = ppd::decodeBase64(text);
    return archive;
}

} // namespace halvern
