// SPDX-License-Identifier: MIT
#include "platform/printing/server_certificate.h"

#include "platform/foundation/log.h"
#include "platform/printing/access.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/server_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <mutex>

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

QString filePath(const QString& host)
{
    return serversFolder() + QLatin1Char('/') + QString::fromLatin1(serverFileName(host)) +
           QStringLiteral(".crt");
}

/// What this process has seen, where it could not be written down.
struct Seen {
    std::mutex mutex;
    QHash<QString, std::shared_ptr<const Certificates>> certificates; ///< by host

    static Seen& shared()
    {
        // Workers that nobody joins may still use it when the program ends.
        static auto* seen = new Seen;
        return *seen;
    }
};

struct Known {
    std::shared_ptr<const Certificates> certificates; ///< null: never seen, or cannot be read
    bool isThere = false;

    QString inWords() const
    {
        if (certificates)
            return certificates->inWords();
        return isThere ? QCoreApplication::translate("ServerCertificate",
                                                     "a certificate whose file cannot be read any more")
                       : QString();
    }
};

Known knownOf(const QString& host)
{
    {
        Seen& seen = Seen::shared();
        const std::scoped_lock lock(seen.mutex);
        if (const auto found = seen.certificates.value(host))
            return {found, true};
    }
    auto read = std::make_shared<Certificates>();
    httpLoadCredentials(QFile::encodeName(serversFolder()).constData(), read->out(),
                        serverFileName(host).constData());
    if (!read->isEmpty())
        return {read, true};
    return {nullptr, QFile::exists(filePath(host))};
}

void keep(const QString& host, const std::shared_ptr<const Certificates>& certificates)
{
    const QByteArray path = QFile::encodeName(serversFolder());
    const bool isKept =
        QDir().mkpath(serversFolder()) &&
        httpSaveCredentials(path.constData(), certificates->list(), serverFileName(host).constData()) == 0;
    Seen& seen = Seen::shared();
    const std::scoped_lock lock(seen.mutex);
    if (isKept) {
        seen.certificates.remove(host);
        return;
    }
    seen.certificates.insert(host, certificates);
    logLine(QStringLiteral("the certificate of %1 cannot be kept in %2: another program, or the next run, "
                           "will not know it again")
                .arg(host, serversFolder()));
}

} // namespace

bool isTrustedServer(_http_s* http, const QString& host, const CancelFlag& cancelled)
{
    auto now = std::make_shared<Certificates>();
    if (httpCopyCredentials(http, now->out()) != 0 || now->isEmpty())
        return Access::shared().trusts({host, {}, {}}, cancelled);
    const Known known = knownOf(host);
    if (known.certificates && known.certificates->hasSameServer(*now))
        return true;
    const QByteArray name = host.toUtf8().split(':').front();
    const bool isTrusted =
        !known.isThere && httpCredentialsGetTrust(now->list(), name.constData()) == HTTP_TRUST_OK;
    if (!isTrusted && !Access::shared().trusts({host, known.inWords(), now->inWords()}, cancelled))
        return false;
    keep(host, now);
    return true;
}

bool hasCertificate(const QString& host)
{
    {
        Seen& seen = Seen::shared();
        const std::scoped_lock lock(seen.mutex);
        if (seen.certificates.contains(host))
            return true;
    }
    return QFile::exists(filePath(host));
}

bool isTrustedOpenly(const QString& host, const CancelFlag& cancelled)
{
    if (!Access::shared().trusts({host, knownOf(host).inWords(), {}, true}, cancelled))
        return false;
    QFile::remove(filePath(host));
    Seen& seen = Seen::shared();
    const std::scoped_lock lock(seen.mutex);
    seen.certificates.remove(host);
    return true;
}

} // namespace halvern::cups
