// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/program/exit_status.h"
#include "dialog/program/list_jobs.h"
#include "dialog/program/list_papers.h"
#include "dialog/program/listings.h"
#include "dialog/session/session_request.h"
#include "dialog/window/parent_window.h"

#include <chrono>
#include <optional>

namespace halvern {

/// What the user asked for on the command line. Values; all of this on the main thread, before anything else.
struct CommandLine {
    SessionRequest request;
    bool showDialog = true;
    bool dryRun = false;                              ///< say what would be sent, and send nothing
    QString output = {};                              ///< a PDF file to write instead of printing
    std::optional<ForeignWindow> parent = {};         ///< the dialog belongs to that window
    bool resultJson = false;                          ///< write what became of the dialog as JSON
    bool verify = false;                              ///< compare what the server holds with what was sent
    ListingRequest listing = {};                      ///< write that and do nothing else
    std::optional<ListPapersRequest> listPapers = {}; ///< of Listing::papers
    std::optional<ListJobsRequest> listJobs = {};     ///< of Listing::jobs
    std::chrono::seconds wait{
        60}; ///< how long a server that goes silent after the job was sent is borne with
};

/// A command line, or what to say and the status to end with.
struct ParsedCommandLine {
    std::optional<CommandLine> commandLine;
    QString text;
    int status = kExitPrinted;
    QStringList remarks = {}; ///< what to say about a command line that is carried out all the same
};

/// Reads the arguments; the first is the program's name. Looks at the files too, but decodes none.
ParsedCommandLine parseCommandLine(const QStringList& arguments);

/// Whether these arguments ask for the dialog's window. Needs no application object.
bool asksForWindow(const QStringList& arguments);

} // namespace halvern
