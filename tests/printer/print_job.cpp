// SPDX-License-Identifier: MIT
#include "tests/printer/print_job.h"
#include "platform/printing/cups_connection.h"

#include <QPainter>
#include <QPdfWriter>

#include <cups/cups.h>

namespace halvern {
namespace {

ipp_t* newRequest(ipp_op_t operation, const char* target, const std::string& uri)
{
    ipp_t* request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, target, nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
    return request;
}

std::string queueUri(const char* queue)
{
    return std::string("ipp://localhost/printers/") + queue;
}

} // namespace

int printFile(const char* queue, const QString& file, const char* format, const TextOptions& options)
{
    ipp_t* request = newRequest(IPP_OP_PRINT_JOB, "printer-uri", queueUri(queue));
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, "test");
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr, format);
    for (const auto& [key, value] : options) {
        if (key == "copies")
            ippAddInteger(request, IPP_TAG_JOB, IPP_TAG_INTEGER, key.c_str(), std::stoi(value));
        else
            ippAddString(request, IPP_TAG_JOB, IPP_TAG_TEXT, key.c_str(), nullptr, value.c_str());
    }
    const std::string resource = std::string("/printers/") + queue;
    const cups::Ipp response(
        cupsDoFileRequest(CUPS_HTTP_DEFAULT, request, resource.c_str(), QFile::encodeName(file).constData()));
    ipp_attribute_t* id = ippFindAttribute(response.get(), "job-id", IPP_TAG_INTEGER);
    return id == nullptr ? 0 : ippGetInteger(id, 0);
}

int jobState(int job)
{
    ipp_t* request =
        newRequest(IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", "ipp://localhost/jobs/" + std::to_string(job));
    const cups::Ipp response(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs"));
    ipp_attribute_t* state = ippFindAttribute(response.get(), "job-state", IPP_TAG_ENUM);
    return state == nullptr ? 0 : ippGetInteger(state, 0);
}

bool reaches(int job, int state)
{
    return waitUntil([job, state] { return jobState(job) == state; });
}

QueueState queueState(const char* queue)
{
    const cups::Ipp response(cupsDoRequest(
        CUPS_HTTP_DEFAULT, newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", queueUri(queue)), "/"));
    QueueState found;
    if (ipp_attribute_t* state = ippFindAttribute(response.get(), "printer-state", IPP_TAG_ENUM))
        found.state = ippGetInteger(state, 0);
    ipp_attribute_t* reasons = ippFindAttribute(response.get(), "printer-state-reasons", IPP_TAG_KEYWORD);
    for (int i = 0; reasons != nullptr && i < ippGetCount(reasons); ++i)
        found.reasons << QString::fromUtf8(ippGetString(reasons, i, nullptr));
    if (ipp_attribute_t* message = ippFindAttribute(response.get(), "printer-state-message", IPP_TAG_TEXT))
        found.message = QString::fromUtf8(ippGetString(message, 0, nullptr));
    return found;
}

QString makePdf(const QString& file, int pages)
{
    QPdfWriter pdf(file);
    pdf.setPageSize(QPageSize(QSizeF(4, 6), QPageSize::Inch));
    pdf.setPageMargins(QMarginsF());
    QPainter painter(&pdf);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            pdf.newPage();
        painter.fillRect(QRect(0, 0, pdf.width(), pdf.height()), Qt::blue);
    }
    painter.end();
    return file;
}

} // namespace halvern
