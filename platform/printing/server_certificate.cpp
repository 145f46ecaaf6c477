// SPDX-License-Identifier: MIT
#include "platform/printing/server_certificate.h"

#include "platform/printing/access.h"
#include "platform/printing/cups_ppd.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

namespace halvern::cups {

namespace {

/// The chain of certificates that a server shows, or that it showed before.
class Certificates {
public:
    Certificates() = default;

    ~Certificates() { httpFreeCredentials(list_); }

    Certificates(const Certificates&) = delete;
    Certificates& operator=(const Certificates&) = delete;

    cups_array_t** out() { return &list_; }

    cups_array_t* list() const { return list_; }

    bool isEmpty() const { return cupsArrayCount(list_) == 0; }

    // The first is the server's own; who has vouched for it may change.
    bool hasSameServer(const Certificates& other) const
    {
        const auto* mine = static_cast<const http_credential_t*>(cupsArrayFirst(list_));
        const auto* theirs = static_cast<const http_credential_t*>(cupsArrayFirst(other.list_));
        return mine && theirs && mine->datalen == theirs->datalen &&
               std::equal(static_cast<const char*>(mine->data),
                          static_cast<const char*>(mine->data) + mine->datalen,
                          static_cast<const char*>(theirs->data));
    }

    QString inWords() const
    {
        char text[1024] = "";
        httpCredentialsString(list_, text, sizeof(text));
        return QString::fromUtf8(text);
    }

private:
    cups_array_t* list_ = nullptr;
};

// Not libcups's own folder: for root that is where the certificates of a server on this computer are.
QByteArray folder()
{
    const QString path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/halvern/servers");
    QDir().mkpath(path);
    return QFile::encodeName(path);
}

} // namespace

bool isTrustedServer(_http_s* http, const QString& host, const CancelFlag& cancelled)
{
    const QByteArray name = host.toUtf8();
    const QByteArray path = folder();
    Certificates now;
    Certificates known;
    if (httpCopyCredentials(http, now.out()) != 0 || now.isEmpty())
        return Access::shared().trusts({host, {}, {}}, cancelled);
    httpLoadCredentials(path.constData(), known.out(), name.constData());
    if (known.hasSameServer(now))
        return true;
    const bool isTrusted =
        known.isEmpty() &&
        httpCredentialsGetTrust(now.list(), name.split(':').front().constData()) == HTTP_TRUST_OK;
    if (!isTrusted && !Access::shared().trusts(
                          {host, known.isEmpty() ? QString() : known.inWords(), now.inWords()}, cancelled))
        return false;
    httpSaveCredentials(path.constData(), now.list(), name.constData());
    return true;
}

} // namespace halvern::cups
