#include "printer/papers/ppd_archive.h"

#include "platform/printing/ppd.h"
#include "printer/papers/ppd_catalogue.h"

namespace halvern {

PpdArchive archiveInPpd(const QString& path)
{
    PpdArchive archive;
    const ppd::File file = ppd::open(path, &archive.unreadable);
    if (!file)
        return archive;
    QByteArray text;
    for (qsizetype serial = 0;; ++serial) {
        const std::optional<QString> piece =
            ppd::attribute(file.get(), QString::fromLatin1(pieceKeyword(serial)));
        if (!piece || piece->isEmpty())
            break;
        text += piece->toUtf8();
    }
    archive.present = !text.isEmpty();
    if (archive.present)
        archive.bytes = ppd::decodeBase64(text);
    return archive;
}

} // namespace halvern
