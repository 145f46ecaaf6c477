#pragma once

#include "dialog/options/option_value.h"

#include <QMap>
#include <QVariantMap>

namespace halvern {

/// What a job's options are made of.
struct JobInputs {
    QMap<QString, QString> values; ///< the PPD's marks and the values kept beside them
    QVariantMap settings;          ///< what the panels saved
    int copies = 1;
    bool hasPpd = true; ///< a queue without PPD takes IPP attributes instead of PPD keywords
};

/// Merges them, sorted by key; a text that begins with a brace comes after all others. Every value is there,
/// not only those that differ from the PPD's defaults: the queue's own defaults would win over a silent job.
/// A panel's saved value wins over a mark. IPP attributes that say the same as a PPD keyword, or that would
/// scale our page again, are left out.
OptionValues mergeJobOptions(const JobInputs& inputs);

/// Saved and typed options in terms of the PPD: "media=A4" becomes "PageSize=A4", "sides" a "Duplex" choice,
/// and so on. Options that the dialog itself decides (copies, scaling) are dropped.
OptionValues inPpdTerms(const OptionValues& options);

} // namespace halvern
