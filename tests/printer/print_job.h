// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/test.h"

#include <string>
#include <utility>
#include <vector>

namespace halvern {

using TextOptions = std::vector<std::pair<std::string, std::string>>;

/// Sends a document to a queue of the private server in use, the options as text values. Answers the job's
/// number, 0 if it was not accepted.
int printFile(const char* queue, const QString& file, const char* format, const TextOptions& options = {});

/// The job's state (an ipp_jstate_t), 0 if it cannot be had.
int jobState(int job);

/// Whether the job reaches the state.
bool reaches(int job, int state);

struct QueueState {
    int state = 0;
    QStringList reasons;
    QString message;
};

QueueState queueState(const char* queue);

/// A document with a blue area that fills its pages.
QString makePdf(const QString& file, int pages);

} // namespace halvern
