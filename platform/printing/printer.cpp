#include "platform/printing/printer.h"

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

} // namespace halvern
