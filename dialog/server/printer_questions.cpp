// SPDX-License-Identifier: MIT
#include "dialog/server/printer_questions.h"

#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <vector>

namespace halvern {

namespace {

struct PrinterQuestionsWords {
    Q_DECLARE_TR_FUNCTIONS(PrinterReport)
};

void addWanted(ipp_t* request)
{
    std::vector<const char*> names;
    for (const QByteArray& name : reportAttributes())
        names.push_back(name.constData());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", int(names.size()),
                  nullptr, names.data());
}

} // namespace

PrinterReport askQueue(cups::Connection& server, const QString& queue)
{
    cups::Ipp request = cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    addWanted(request.get());
    const cups::Ipp answer = server.request(std::move(request), "/");
    if (!server.failed(answer))
        return readReport(answer.get(), false);
    PrinterReport report;
    report.problem = server.error();
    return report;
}

cups::Ipp newQuestion(const PrinterPlace& place)
{
    cups::Ipp request(ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES));
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 place.uri.constData());
    return request;
}

QString whyNoAnswer(const cups::Connection& printer)
{
    if (printer.wasTooMuch())
        return PrinterQuestionsWords::tr(
            "The printer's answer about itself is too long to be true, and was not read.");
    if (printer.wasForbidden())
        return PrinterQuestionsWords::tr("The printer does not tell strangers what is in it.");
    if (!printer.isConnected() || printer.wasSilent())
        return PrinterQuestionsWords::tr(
            "The printer does not answer. Is it switched on, and in this network?");
    return PrinterQuestionsWords::tr("The printer does not say what is in it.");
}

PrinterReport askPrinter(cups::Connection& printer, const PrinterPlace& place)
{
    PrinterReport report;
    if (printer.isConnected()) {
        cups::Ipp request = newQuestion(place);
        addWanted(request.get());
        const cups::Ipp answer = printer.request(std::move(request), place.resource.constData());
        if (answer && ippGetStatusCode(answer.get()) < IPP_STATUS_REDIRECTION_OTHER_SITE)
            return readReport(answer.get(), true);
    }
    report.problem = whyNoAnswer(printer);
    report.isSilent = !printer.isConnected() || printer.wasSilent();
    return report;
}

} // namespace halvern
