// SPDX-License-Identifier: MIT
// The questions that the printer list's workers ask the server.
#include "dialog/server/printer_list.h"

#include "platform/foundation/string_additions.h"
#include "platform/printing/cups_ppd.h"

#include <algorithm>

namespace halvern {

namespace {

constexpr int kMostMembers = 100;

void readAttribute(ipp_attribute_t* attribute, PrinterInfo& printer)
{
    const QLatin1StringView name(ippGetName(attribute));
    if (name == QLatin1StringView("printer-name")) {
        printer.name = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    } else if (name == QLatin1StringView("printer-info")) {
        printer.info = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    } else if (name == QLatin1StringView("printer-state")) {
        const int state = ippGetInteger(attribute, 0);
        printer.state = state == IPP_PSTATE_STOPPED      ? PrinterState::stopped
                        : state == IPP_PSTATE_PROCESSING ? PrinterState::processing
                                                         : PrinterState::idle;
    } else if (name == QLatin1StringView("printer-is-accepting-jobs")) {
        printer.isAccepting = ippGetBoolean(attribute, 0) != 0;
    } else if (name == QLatin1StringView("device-uri")) {
        printer.deviceUri = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    } else if (name == QLatin1StringView("printer-location")) {
        printer.location = QString::fromUtf8(ippGetString(attribute, 0, nullptr)).simplified();
    } else if (name == QLatin1StringView("printer-make-and-model")) {
        printer.makeAndModel = QString::fromUtf8(ippGetString(attribute, 0, nullptr)).simplified();
    } else if (name == QLatin1StringView("printer-state-message")) {
        printer.message = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
    } else if (name == QLatin1StringView("printer-uuid")) {
        printer.uuid = uuidIn(QString::fromUtf8(ippGetString(attribute, 0, nullptr)));
    } else if (name == QLatin1StringView("printer-is-temporary")) {
        printer.isTemporary = ippGetBoolean(attribute, 0) != 0;
    } else if (name == QLatin1StringView("member-names")) {
        for (int i = 0; i < std::min(ippGetCount(attribute), kMostMembers); ++i)
            printer.members.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
    } else if (name == QLatin1StringView("printer-state-reasons")) {
        for (int i = 0; i < ippGetCount(attribute); ++i) {
            const QString reason = QString::fromUtf8(ippGetString(attribute, i, nullptr));
            if (reason != QLatin1StringView("none"))
                printer.reasons.append(reason);
        }
    }
}

void finish(PrinterInfo& printer, std::vector<PrinterInfo>& printers)
{
    if (!printer.name.isEmpty()) {
        if (printer.info.isEmpty())
            printer.info = printer.name;
        // Filters leave theirs behind when all went well.
        if (stateSeverity(printer) != Severity::error)
            printer.message.clear();
        printers.push_back(printer);
    }
    printer = PrinterInfo();
}

std::vector<PrinterInfo> readPrinters(ipp_t* answer)
{
    std::vector<PrinterInfo> printers;
    PrinterInfo printer;
    for (ipp_attribute_t* a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        if (ippGetGroupTag(a) == IPP_TAG_PRINTER && ippGetName(a))
            readAttribute(a, printer);
        else
            finish(printer, printers);
    }
    finish(printer, printers);
    std::ranges::sort(printers, [](const PrinterInfo& a, const PrinterInfo& b) {
        return KSTRVL_NSStringAdditions::numericalCaseInsensitiveCompare(a.name, b.name) < 0;
    });
    return printers;
}

int addDiscovered(void* found, unsigned flags, cups_dest_t* dest)
{
    if (!(flags & CUPS_DEST_FLAGS_REMOVED)) {
        PrinterInfo printer;
        printer.name = QString::fromUtf8(dest->name);
        const char* info = cupsGetOption("printer-info", dest->num_options, dest->options);
        printer.info = info ? QString::fromUtf8(info) : printer.name;
        const char* uri = cupsGetOption("device-uri", dest->num_options, dest->options);
        printer.deviceUri = QString::fromUtf8(uri);
        const char* uuid = cupsGetOption("printer-uuid", dest->num_options, dest->options);
        printer.uuid = uuidIn(QString::fromUtf8(uuid));
        printer.location =
            QString::fromUtf8(cupsGetOption("printer-location", dest->num_options, dest->options));
        printer.makeAndModel =
            QString::fromUtf8(cupsGetOption("printer-make-and-model", dest->num_options, dest->options));
        printer.isDiscovered = true;
        static_cast<std::vector<PrinterInfo>*>(found)->push_back(printer);
    }
    return 1;
}

} // namespace

PrinterAnswer askPrinters(const cups::CancelFlag& cancelled)
{
    cups::Connection server(cancelled);
    return askPrinters(server);
}

PrinterAnswer askPrinters(cups::Connection& server)
{
    static const char* const kAttributes[] = {"printer-name",
                                              "printer-info",
                                              "printer-state",
                                              "printer-state-message",
                                              "printer-state-reasons",
                                              "printer-is-accepting-jobs",
                                              "device-uri",
                                              "printer-location",
                                              "printer-make-and-model",
                                              "printer-uuid",
                                              "printer-is-temporary",
                                              "member-names"};
    PrinterAnswer result;
    if (!server.isConnected()) {
        result.problem = server.error();
        return result;
    }
    cups::Ipp request = cups::newRequest(IPP_OP_CUPS_GET_PRINTERS, {});
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(std::size(kAttributes)), nullptr, kAttributes);
    const cups::Ipp answer = server.request(std::move(request), "/");
    // A server without any queue answers "not found".
    const bool isEmpty = answer && ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND;
    if (!isEmpty && server.failed(answer)) {
        result.problem = server.error();
        return result;
    }
    result.printers = readPrinters(answer.get());
    cups::Ipp question = cups::newRequest(IPP_OP_CUPS_GET_DEFAULT, {});
    ippAddString(question.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    const cups::Ipp standard = server.request(std::move(question), "/");
    if (!standard && server.failed(standard)) {
        result.problem = server.error();
        return result;
    }
    ipp_attribute_t* name =
        standard ? ippFindAttribute(standard.get(), "printer-name", IPP_TAG_NAME) : nullptr;
    if (name)
        result.defaultName = QString::fromUtf8(ippGetString(name, 0, nullptr));
    return result;
}

std::vector<PrinterInfo> discoverPrinters(int milliseconds, const cups::CancelFlag& cancelled)
{
    std::vector<PrinterInfo> found;
    // libcups would first ask the server for what it knows already, on a connection without any limit. The
    // setting is this thread's own.
    cupsSetServer("/dev/null");
    cups::ExchangeWatch watch(cups::ExchangeWatch::Clock::time_point::max(), cancelled);
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, milliseconds, watch.giveUp(), CUPS_PRINTER_DISCOVERED,
                  CUPS_PRINTER_DISCOVERED, addDiscovered, &found);
    cupsSetServer(nullptr);
    return found;
}

} // namespace halvern
