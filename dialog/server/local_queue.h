// SPDX-License-Identifier: MIT
#pragma once

#include "platform/printing/cups_connection.h"

namespace halvern {

/// Printers that have no PPD on the server, or no queue yet. On the calling worker.

/// Makes a queue for a printer that was found on the network, and waits until the server has its description.
/// The server takes such a queue away again when nobody has used it for a minute. The sentence about a
/// failure, empty on success.
QString createLocalQueue(const QString& name, const QString& deviceUri, const cups::CancelFlag& cancelled);

/// What a queue without a PPD is, as the text of one: as the server knows its options, or as the printer
/// itself tells. Nothing if neither says what can be printed; `problem` then is the sentence why, if the
/// printer was asked and gave no answer.
std::optional<QByteArray> describeByIpp(cups::Connection& server, const QString& queue,
                                        const cups::CancelFlag& cancelled, QString* problem);

} // namespace halvern
