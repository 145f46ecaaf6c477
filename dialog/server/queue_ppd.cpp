// SPDX-License-Identifier: MIT
#include "dialog/server/queue_ppd.h"

#include "dialog/server/local_queue.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/fresh_ppd.h"

#include <QCoreApplication>

#include <algorithm>

namespace halvern {

namespace {

constexpr char kDefaultEnding[] = "-default";

struct QueuePpdWords {
    Q_DECLARE_TR_FUNCTIONS(QueuePpd)
};

QStringList allOf(ipp_attribute_t* names)
{
    QStringList all;
    for (int i = 0; i < ippGetCount(names); ++i)
        all.append(QString::fromUtf8(ippGetString(names, i, nullptr)));
    return all;
}

void readJobSheets(ipp_attribute_t* names, QueuePpd& result)
{
    const QString sheets = allOf(names).join(QLatin1Char(','));
    if (sheets != QLatin1StringView("none,none") && sheets != QLatin1StringView("none"))
        result.jobSheets = sheets;
}

// What the queue says about itself beside its PPD. The server has defaults of its own, too: those are in
// small letters, the options of a printer's maker are not.
void readQueue(ipp_t* answer, QueuePpd& result)
{
    for (ipp_attribute_t* a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        const QString name = QString::fromUtf8(ippGetName(a));
        if (name == QLatin1StringView("job-priority-default"))
            result.jobs.priority = std::clamp(ippGetInteger(a, 0), 1, 100);
        const bool isTruth = ippGetValueTag(a) == IPP_TAG_BOOLEAN;
        const char* value = isTruth ? (ippGetBoolean(a, 0) ? "true" : "false") : ippGetString(a, 0, nullptr);
        if (!value || name.isEmpty())
            continue;
        if (name == QLatin1StringView("job-sheets-default")) {
            result.jobs.byDefault = allOf(a);
            readJobSheets(a, result);
            continue;
        }
        if (name == QLatin1StringView("job-sheets-supported"))
            result.jobs.sheets = allOf(a);
        else if (name == QLatin1StringView("job-hold-until-supported"))
            result.jobs.holds = allOf(a);
        else if (name == QLatin1StringView("auth-info-required"))
            result.jobs.asked = allOf(a);
        else if (name == QLatin1StringView("job-hold-until-default"))
            result.jobs.hold = QString::fromUtf8(value);
        else if (name == QLatin1StringView("device-uri"))
            result.deviceUri = QString::fromUtf8(value);
        else if (name == QLatin1StringView("printer-make-and-model"))
            result.makeAndModel = QString::fromUtf8(value).simplified();
        else if (name.front().isUpper() && name.endsWith(QLatin1StringView(kDefaultEnding)))
            result.defaults.append(
                {name.chopped(qsizetype(sizeof(kDefaultEnding)) - 1), QString::fromUtf8(value)});
    }
}

QString whyNoPpd(const QString& queue, cups::Connection& server)
{
    if (server.wasNotFound())
        return QueuePpdWords::tr(
                   "The printer \"%1\" has no description on the print "
                   "server, and does not tell by itself what it can do. Install it with a driver, or choose "
                   "another printer.")
            .arg(queue);
    server.failed(nullptr);
    return server.error();
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
    std::optional<QByteArray> text = server.get(ppd::resourceOf(queue).constData());
    result.isWithoutPpd = !text && server.wasNotFound();
    if (!text)
        result.problem = whyNoPpd(queue, server);
    if (result.isWithoutPpd)
        text = describeByIpp(server, queue, cancelled, &result.problem);
    if (!text)
        return result;
    result.problem.clear();
    // Without an answer the queue has none of it: nothing to keep anybody from printing.
    if (const cups::Ipp answer = server.request(cups::newRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, queue), "/"))
        readQueue(answer.get(), result);
    QString why;
    ppd::File file = ppd::parse(*text, &why);
    if (file) {
        if (!result.isWithoutPpd)
            ppd::rememberText(queue, *text);
        result.file = std::make_shared<ppd::File>(std::move(file));
    } else
        result.problem = QueuePpdWords::tr("The description of the printer \"%1\" is damaged: %2. "
                                           "Install its driver again, or choose another printer.")
                             .arg(queue, why);
    return result;
}

} // namespace halvern
