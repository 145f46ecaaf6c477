// SPDX-License-Identifier: MIT
#include "dialog/server/local_queue.h"

#include "dialog/server/ipp_description.h"
#include "dialog/server/printer_questions.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/fresh_ppd.h"

#include <QCoreApplication>
#include <QThread>

namespace halvern {

namespace {

// The server waits for the printer's own answers.
constexpr std::chrono::seconds kPatience(30);
constexpr std::chrono::seconds kLongestMaking(15);
constexpr unsigned long kPauseMilliseconds = 200;
constexpr cups::Limits kDescriptionLimits{std::chrono::seconds(5), std::chrono::seconds(10),
                                          kReportLimits.bytes};

struct LocalQueueWords {
    Q_DECLARE_TR_FUNCTIONS(LocalQueue)
};

cups::Ipp askAttributes(cups::Connection& server, cups::Ipp request, const char* resource)
{
    static const char* const kAttributes[] = {"all", "media-col-database"};
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    cups::Ipp answer = server.request(std::move(request), resource);
    return answer && !server.failed(answer) ? std::move(answer) : nullptr;
}

QByteArray textIn(const cups::Ipp& answer, const char* name)
{
    ipp_attribute_t* found = answer ? ippFindAttribute(answer.get(), name, IPP_TAG_ZERO) : nullptr;
    return QByteArray(found ? ippGetString(found, 0, nullptr) : nullptr);
}

cups::Ipp askPrinterItself(const PrinterPlace& place, const cups::CancelFlag& cancelled, QString* problem)
{
    // Whether it is there is known soon; all that it can do, many a printer has to think about.
    cups::Connection first(place.host, cancelled, kReportLimits);
    if (!first.isConnected()) {
        *problem = whyNoAnswer(first);
        return nullptr;
    }
    cups::Connection printer(place.host, cancelled, kDescriptionLimits);
    cups::Ipp answer = askAttributes(printer, newQuestion(place), place.resource.constData());
    if (!answer && (!printer.isConnected() || printer.wasSilent() || printer.wasTooMuch()))
        *problem = whyNoAnswer(printer);
    return answer;
}

// What went wrong while the server looked at the printer; empty while it still looks.
QString whyStopped(cups::Connection& server, const QString& name)
{
    const cups::Ipp answer = server.request(cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, name), "/");
    ipp_attribute_t* state = answer ? ippFindAttribute(answer.get(), "printer-state", IPP_TAG_ENUM) : nullptr;
    const QByteArray message = textIn(answer, "printer-state-message");
    if (!state || ippGetInteger(state, 0) != IPP_PSTATE_STOPPED || message.isEmpty())
        return {};
    return LocalQueueWords::tr(
               "The printer \"%1\" was found on the network, but the print server cannot use it: %2")
        .arg(name, QString::fromUtf8(message));
}

} // namespace

QString createLocalQueue(const QString& name, const QString& deviceUri, const cups::CancelFlag& cancelled)
{
    cups::Connection server(cancelled, {kPatience, kPatience});
    cups::Ipp request = cups::newRequest(IPP_OP_CUPS_CREATE_LOCAL_PRINTER, {});
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, "ipp://localhost/");
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr,
                 name.toUtf8().constData());
    ippAddString(request.get(), IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr,
                 deviceUri.toUtf8().constData());
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (server.failed(answer))
        return server.error();
    // It answers before it has asked the printer what it is.
    const auto end = std::chrono::steady_clock::now() + kLongestMaking;
    while (!server.isCancelled() && std::chrono::steady_clock::now() < end) {
        if (server.get(ppd::resourceOf(name).constData()) || !server.wasNotFound())
            break;
        if (const QString problem = whyStopped(server, name); !problem.isEmpty())
            return problem;
        QThread::msleep(kPauseMilliseconds);
    }
    return {};
}

std::optional<QByteArray> describeByIpp(cups::Connection& server, const QString& queue,
                                        const cups::CancelFlag& cancelled, QString* problem)
{
    const cups::Ipp ofQueue =
        askAttributes(server, cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), "/");
    if (!ofQueue)
        return std::nullopt;
    if (isDescribed(ofQueue.get()))
        return describedAsPpd(ofQueue.get(), false);
    // A queue without a driver hands everything on: what can be printed, only the printer knows.
    const std::optional<PrinterPlace> place = printerPlace(QString::fromUtf8(textIn(ofQueue, "device-uri")));
    const std::optional<PrinterPlace> found = place ? lookedUp(*place, cancelled) : std::nullopt;
    const cups::Ipp ofPrinter = found ? askPrinterItself(*found, cancelled, problem) : nullptr;
    return ofPrinter && isDescribed(ofPrinter.get()) ? describedAsPpd(ofPrinter.get(), true) : std::nullopt;
}

} // namespace halvern
