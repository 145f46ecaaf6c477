#include "printer/papers/ppd_archive.h"

#include "printer/papers/ppd_catalogue.h"

#include <QFile>

#include <memory>

// PPD files are deprecated in CUPS, and what the printer has.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <cups/ppd.h>

namespace halvern {

QByteArray archiveInPpd(const QString& path, QString& failure)
{
    const std::unique_ptr<ppd_file_t, decltype(&ppdClose)> file(
        ppdOpenFile(QFile::encodeName(path).constData()), &ppdClose);
    if (!file) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        failure = QStringLiteral("%1 (line %2)").arg(QString::fromUtf8(ppdErrorString(status))).arg(line);
        return {};
    }
    QByteArray text;
    for (qsizetype serial = 0;; ++serial) {
        const ppd_attr_t* piece = ppdFindAttr(file.get(), pieceKeyword(serial).constData(), nullptr);
        if (!piece || !piece->value || !*piece->value)
            break;
        text += piece->value;
    }
    return QByteArray::fromBase64(text);
}

} // namespace halvern
