#pragma once

#include "dialog/server/saved_options.h"

#include <QMap>
#include <QVariantMap>

#include <optional>

struct _ipp_s;

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

/// Adds an option to a request's job attributes. Known IPP attributes get their own type; everything else
/// goes as text, byte for byte, whatever it looks like. Answers the sentence about a value that is too long.
QString addJobOption(_ipp_s* request, const OptionValue& option);

/// "KEY=VALUE" -> an option; nothing without a key or a "=".
std::optional<OptionValue> parseOption(const QString& text);

} // namespace halvern
