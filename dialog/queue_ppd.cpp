#include "dialog/queue_ppd.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>
#include <QFile>

namespace halvern {

namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("Server", text);
}

QString askDeviceUri(cups::Connection& server, const QString& queue)
{
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "device-uri");
    const cups::Ipp answer = server.request(std::move(request), "/");
    ipp_attribute_t* uri = answer ? ippFindAttribute(answer.get(), "device-uri", IPP_TAG_ZERO) : nullptr;
    return uri ? QString::fromUtf8(ippGetString(uri, 0, nullptr)) : QString();
}

} // namespace

QueuePpd fetchQueuePpd(const QString& queue, const cups::CancelFlag& cancelled)
{
    QueuePpd result;
    cups::Connection server(cancelled);
    if (!server.isConnected()) {
        result.problem = server.error();
        return result;
    }
    result.deviceUri = askDeviceUri(server, queue);
    char path[1024] = "";
    time_t modified = 0;
    if (cupsGetPPD3(server.http(), queue.toUtf8().constData(), &modified, path, sizeof(path)) !=
        HTTP_STATUS_OK) {
        result.problem =
            cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND
                ? words(QT_TRANSLATE_NOOP("Server", "The printer \"%1\" has no description on the print "
                                                    "server. Install it with a driver, or choose another "
                                                    "printer."))
                : words(QT_TRANSLATE_NOOP("Server", "The description of the printer \"%1\" cannot be "
                                                    "fetched. Try again, or choose another printer."));
        result.problem = result.problem.arg(queue);
        return result;
    }
    QString why;
    ppd::File file = ppd::open(QFile::decodeName(path), &why);
    QFile::remove(QFile::decodeName(path));
    if (file)
        result.file = std::make_shared<ppd::File>(std::move(file));
    else
        result.problem =
            words(QT_TRANSLATE_NOOP("Server", "The description of the printer \"%1\" is damaged: %2. "
                                              "Install its driver again, or choose another printer."))
                .arg(queue, why);
    return result;
}

QString createLocalQueue(const QString& name, const QString& deviceUri, const cups::CancelFlag& cancelled)
{
    // The server waits for the printer's own answers.
    cups::Connection server(cancelled, 30);
    cups::Ipp request = cups::newRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER, {});
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr,
                 name.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr,
                 deviceUri.toUtf8().constData());
    const cups::Ipp answer = server.request(std::move(request), "/");
    return server.failed(answer) ? server.error() : QString();
}

} // namespace halvern
