// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QMap>
#include <QVariantMap>

namespace halvern {

/// What a job's options are made of. A value; all of this on any thread.
struct JobInputs {
    QMap<QString, QString> values; ///< the PPD's marks and the values kept beside them
    QVariantMap settings;          ///< what the panels saved
    int copies = 1;
    int pages = 0; ///< of the document; 0 if that is not known
    bool isCollated = true;
};

/// Merges them, sorted by key; a text that begins with a brace comes after all others. Every value is there,
/// not only those that differ from the PPD's defaults: the queue's own defaults would win over a silent job.
/// A panel's saved value wins over a mark. IPP attributes that say the same as a PPD keyword are left out;
/// those with which a server could change the laid out page are there with the value that changes nothing.
OptionValues mergeJobOptions(const JobInputs& inputs);

} // namespace halvern
