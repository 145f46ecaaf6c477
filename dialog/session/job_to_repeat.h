// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/job/job_options.h"
#include "dialog/session/page_setup.h"

namespace halvern {

/// What the command line that prints the same again is made of. Holds references: for the call only.
struct SessionToRepeat {
    QString printer;
    const std::vector<Photo>& photos;
    const std::vector<size_t>& chosen; ///< places in photos, in their order
    const PpdModel& model;
    const QMap<QString, QString>& printerDefaults;
    OptionValues saved; ///< by the user for this printer
    JobInputs inputs;
    const PageSettings& page;
    const LayoutLibrary& layouts;
    QString server = {};  ///< that was named for this session; empty: none
    int photosPerJob = 0; ///< 0: all in one
};

/// The command line, quoted for a shell. On the model's thread.
QString commandToRepeat(const SessionToRepeat& session);

} // namespace halvern
