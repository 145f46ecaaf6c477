// SPDX-License-Identifier: MIT
#include "platform/printing/server_files.h"

#include "platform/foundation/log.h"
#include "platform/foundation/whole_file.h"
#include "platform/printing/cups_ppd.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace halvern::cups {

namespace {

constexpr qint64 kLongestName = 255;

QString ownerPath(const QString& host)
{
    return serversFolder() + QLatin1Char('/') + QString::fromLatin1(serverFileName(host)) +
           QStringLiteral(".user");
}

} // namespace

// Not libcups's own folder: for root that is where the certificates of a server on this computer are.
QString serversFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/halvern/servers");
}

// libcups's own way to make a file's name of a host's, so that it is known which one it takes.
QByteArray serverFileName(const QString& host)
{
    QByteArray name = host.toUtf8();
    for (char& c : name) {
        const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                             c == '-' || c == '.';
        if (!isPlain)
            c = '_';
    }
    return name;
}

QString keptJobOwner(const QString& host)
{
    QFile file(ownerPath(host));
    if (qEnvironmentVariableIsSet("CUPS_USER") || !file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(kLongestName));
}

void keepJobOwner(const QString& host, const QString& user)
{
    const QString path = ownerPath(host);
    if (user == QString::fromUtf8(cupsUser())) {
        QFile::remove(path);
        return;
    }
    QDir().mkpath(serversFolder());
    const QString problem = writeWholeFile(path, user.toUtf8(), NewFile::forMyself);
    if (!problem.isEmpty())
        logLine(QStringLiteral("the name that %1 has the jobs under cannot be kept in %2: %3")
                    .arg(host, path, problem));
}

} // namespace halvern::cups
