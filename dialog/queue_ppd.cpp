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

QString joined(ipp_attribute_t* names)
{
    QStringList all;
    for (int i = 0; names && i < ippGetCount(names); ++i)
        all.append(QString::fromUtf8(ippGetString(names, i, nullptr)));
    return all.join(QLatin1Char(','));
}

void askQueue(cups::Connection& server, const QString& queue, QueuePpd& result)
{
    static const char* const kWanted[] = {"device-uri", "job-sheets-default"};
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", 2, nullptr,
                  kWanted);
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (!answer)
        return;
    result.deviceUri = joined(ippFindAttribute(answer.get(), kWanted[0], IPP_TAG_ZERO));
    const QString sheets = joined(ippFindAttribute(answer.get(), kWanted[1], IPP_TAG_ZERO));
    if (sheets != QLatin1StringView("none,none") && sheets != QLatin1StringView("none"))
        result.jobSheets = sheets;
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
    askQueue(server, queue, result);
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
