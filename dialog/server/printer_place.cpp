// SPDX-License-Identifier: MIT
#include "dialog/server/printer_place.h"

#include "platform/printing/cups_ppd.h"

#include <QRegularExpression>

#include <atomic>

namespace halvern {

namespace {

constexpr std::chrono::seconds kLookingUp(8); // the first time it takes four

struct LookUp {
    int* giveUp;
    bool isDone; ///< the service's host has an address, too
};

// The library would go on and connect, within limits of its own. By then it has put the answer in the name's
// place.
int stopAtTheName(void* lookUp, unsigned flags, cups_dest_t*)
{
    auto* look = static_cast<LookUp*>(lookUp);
    if (flags & CUPS_DEST_FLAGS_CONNECTING) {
        look->isDone = true;
        std::atomic_ref(*look->giveUp).store(1);
    }
    return 1;
}

} // namespace

std::optional<PrinterPlace> printerPlace(const QString& deviceUri)
{
    static const QRegularExpression kServiceName(QStringLiteral("\\._(ipps?)\\._tcp(\\.|$)"));
    char scheme[32];
    char user[256];
    char host[256];
    char resource[1024];
    int port = 0;
    const QByteArray uri = deviceUri.toUtf8();
    if (httpSeparateURI(HTTP_URI_CODING_ALL, uri.constData(), scheme, sizeof(scheme), user, sizeof(user),
                        host, sizeof(host), &port, resource, sizeof(resource)) < HTTP_URI_STATUS_OK)
        return std::nullopt;
    const bool isEncrypted = qstrcmp(scheme, "ipps") == 0;
    const bool isIpp = isEncrypted || qstrcmp(scheme, "ipp") == 0;
    const QString name = QString::fromUtf8(host);
    if (name.contains(QLatin1StringView("._tcp")) || qstrcmp(scheme, "dnssd") == 0) {
        const bool isKnown = isIpp || qstrcmp(scheme, "dnssd") == 0;
        return isKnown && name.contains(kServiceName) ? std::optional(PrinterPlace{{}, {}, uri, true})
                                                      : std::nullopt;
    }
    if (!isIpp || !*host || port < 1 || port > 65535)
        return std::nullopt;
    // What follows a question mark are the back end's options.
    if (char* options = strchr(resource, '?'))
        *options = '\0';
    char plain[HTTP_MAX_URI];
    httpAssembleURI(HTTP_URI_CODING_ALL, plain, sizeof(plain), scheme, nullptr, host, port, resource);
    return PrinterPlace{{host, port, isEncrypted}, resource, plain};
}

std::optional<PrinterPlace> lookedUp(const PrinterPlace& place, const cups::CancelFlag& cancelled)
{
    if (!place.isService)
        return place;
    cups::ExchangeWatch watch(cups::ExchangeWatch::Clock::now() + kLookingUp, cancelled);
    char name[] = "service";
    cups_dest_t service{};
    service.name = name;
    service.num_options = cupsAddOption("device-uri", place.uri.constData(), 0, &service.options);
    char resource[HTTP_MAX_URI];
    LookUp look{watch.giveUp(), false};
    const cups::Http unused(cupsConnectDest(&service, CUPS_DEST_FLAGS_DEVICE, watch.millisecondsLeft(),
                                            watch.giveUp(), resource, sizeof(resource), stopAtTheName,
                                            &look));
    const QString uri = QString::fromUtf8(cupsGetOption("device-uri", service.num_options, service.options));
    cupsFreeOptions(service.num_options, service.options);
    const std::optional<PrinterPlace> found = printerPlace(uri);
    return look.isDone && found && !found->isService ? found : std::nullopt;
}

} // namespace halvern
