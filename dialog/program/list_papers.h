// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextStream>

namespace halvern {

class PluginLoader;

/// What to list and whether to ask the printer before.
struct ListPapersRequest {
    QString printer; ///< empty: the user's or the server's default
    bool refresh = false;
};

/// Lists on `out` what a printer has loaded and how old that knowledge is; sentences about failures and
/// progress go to `err`. The program's exit status: 0 if the list is what was asked for. Blocks on the CUPS
/// server; main thread, no event loop needed.
int listPapers(const ListPapersRequest& request, const PluginLoader& bundles, QTextStream& out,
               QTextStream& err);

} // namespace halvern
