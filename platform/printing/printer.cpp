// SPDX-License-Identifier: MIT
#include "platform/printing/printer.h"

#include "platform/printing/jobs.h"
#include "platform/printing/print_settings.h"

#include <utility>

namespace halvern {

Printer::Printer(QString id, QString deviceUri) : id_(std::move(id)), deviceUri_(std::move(deviceUri)) {}

std::optional<QString> Printer::id() const
{
    if (id_.isEmpty())
        return std::nullopt;
    return id_;
}

std::optional<QString> Printer::copyDeviceURI() const
{
    if (deviceUri_.isEmpty())
        return std::nullopt;
    return deviceUri_;
}

int Printer::sendCommand(const QString& commands, const QString& title) const
{
    if (id_.isEmpty())
        return kPrintingGeneralError;
    jobs::Server server;
    const int id = server.createJob(id_, title);
    if (id <= 0 || !server.sendDocument(id_, id, title, jobs::kCommandFormat, commands.toUtf8()))
        return kPrintingGeneralError;
    return kPrintingOk;
}

} // namespace halvern
