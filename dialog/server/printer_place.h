// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

#include <QString>

namespace halvern {

/// Where a printer itself can be asked. A value.
struct PrinterPlace {
    cups::Host host;
    QByteArray resource;
    QByteArray uri;
    bool isService = false; ///< only the name of a service on the network is known: see lookedUp()
};

/// Reads a queue's device URI; nothing if it names no printer that speaks IPP. A password in it is left out.
/// Any thread.
std::optional<PrinterPlace> printerPlace(const QString& deviceUri);

/// Where the service is, on the calling worker, which may take 8 seconds; a place that is none's as it is.
/// Nothing if the service does not show itself: that is not to say that the printer is off.
std::optional<PrinterPlace> lookedUp(const PrinterPlace& place, const cups::CancelFlag& cancelled);

} // namespace halvern
