#pragma once

#include "printer/fault_plan.h"
#include "printer/job_folder.h"
#include "printer/page_stream.h"

#include <string>
#include <vector>

namespace halvern {

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
    };

    VirtualPrinter(Job job, FaultPlan plan, std::string jobsDir);

    /// Receives the stream from `fd`; answers the exit status for CUPS (a cups_backend_t).
    int run(int fd);

private:
    int waitForPrinter();
    int receive(PageStreamReader& in);
    int printPage(PageStreamReader& in, const PageHeader& page);
    int keepCommand(const std::string& file);
    int finish();
    int interrupted(PageStreamReader& in);
    int breakDown(bool stop);
    int cancelled();
    int unusable(const std::string& why);
    bool takeTime(int part, int parts);

    Job job_;
    FaultPlan plan_;
    JobFolder folder_;
    JobOptions options_;
    int pages_ = 0;
    int pictures_ = 0;
};

} // namespace halvern
