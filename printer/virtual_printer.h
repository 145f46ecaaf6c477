// SPDX-License-Identifier: MIT
#pragma once

#include "printer/fault_plan.h"
#include "printer/job_folder.h"
#include "printer/page_stream.h"

#include <string>
#include <vector>

namespace halvern {

/// Ends a job that is not printed: lets the filters write the rest of their data to `fd`, so that CUPS does
/// not replace the message by one of theirs, says `why` and answers `status`.
int giveUp(int fd, const std::string& why, int status);

/// One run of the back end: receives a job's page stream and leaves it in the job's folder, telling CUPS what
/// happens in the lines that back ends write to standard error. Main thread only; cancellation must be
/// installed.
class VirtualPrinter {
public:
    struct Job {
        std::string id;
        std::string user;
        std::string title;
        std::string copies;
        bool commands = false;
        /// The file that lists the loaded papers; empty if the printer cannot tell.
        std::string papersFile;
    };

    /// `fd` has the page stream and stays the caller's.
    VirtualPrinter(Job job, FaultPlan plan, const std::string& jobsDir, int fd);

    /// Receives the job's streams; answers the exit status for CUPS (a cups_backend_t).
    int run();

private:
    bool waitForPrinter();
    int receive();
    bool startNextDocument();
    int printPage(PageHeader page);
    int keepCommand(const std::string& file);
    void reportPapers();
    int finish();
    int interrupted();
    int breakDown(bool stop);
    int cancelled();
    int unusable(const std::string& why);
    bool takeTime(int part, int parts);

    Job job_;
    FaultPlan plan_;
    JobFolder folder_;
    int fd_;
    PageStreamReader in_;
    JobOptions options_;
    int sheetsBefore_ = 0; // of the job's earlier documents
    int lastSheet_ = 0;
    int pages_ = 0;
    int pictures_ = 0;
};

} // namespace halvern
