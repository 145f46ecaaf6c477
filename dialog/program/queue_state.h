// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/session/page_setup.h"
#include "dialog/session/presets.h"
#include "dialog/session/session_request.h"
#include "platform/printing/cups_connection.h"

namespace halvern {

/// The queue that a command without a window is about, or the sentence why there is none.
struct FoundQueue {
    QString name;
    QString instance; ///< "queue/instance" if one was named; else empty
    bool isAccepting = true;
    QString problem;
    QString madeFrom = {}; ///< the URI of one that was found on the network and has no queue yet
};

/// Looks for the queue that was named, else the user's, else the server's default, else the only one. Asks
/// the print server and waits for it, and looks round in the network for a name that the server does not
/// know; any thread.
FoundQueue findQueue(const QString& wanted, const cups::CancelFlag& cancelled);

/// A queue's options as printing without a window would start with them.
struct QueueState {
    QString queue;
    std::unique_ptr<PpdModel> model; ///< null if there is a problem
    QMap<QString, QString> printerDefaults;
    PageSettings page;
    QString problem; ///< sentences, one a line
    QStringList remarks;
};

/// Fetches the queue's PPD and applies what was saved, the preset, and what was typed; a typed option, line
/// or preset that cannot be followed is a problem. `presets` takes what the queue has. Main thread; waits for
/// the server and the disk.
QueueState readQueueState(const SessionRequest& request, Presets& presets, const cups::CancelFlag& cancelled);

} // namespace halvern
