// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/session_request.h"

#include <QJsonDocument>
#include <QString>
#include <QTextStream>

namespace halvern {

/// What to write, or to keep, instead of printing.
enum class Listing { none, papers, printers, jobs, options, presets, savePreset };

struct ListingRequest {
    Listing what = Listing::none;
    bool asJson = false;
    QString name = {}; ///< of the preset to save
};

/// Writes JSON in ASCII, as it may be written: exact, and nothing in it for a terminal to act on.
void writeJson(QTextStream& out, const QJsonDocument& document);

/// Writes the print server's queues, the options of one with their choices, default and current value, or its
/// presets on `out`; or keeps what was typed as a preset. What went wrong goes to `err`. The program's exit
/// status. Main thread, no event loop and no display needed; waits for the server and the disk.
int writeListing(const ListingRequest& listing, const SessionRequest& request, QTextStream& out,
                 QTextStream& err);

} // namespace halvern
