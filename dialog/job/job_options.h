// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/option_value.h"

#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace halvern {

/// What a job's options are made of. A value; all of this on any thread.
struct JobInputs {
    QMap<QString, QString> values; ///< the PPD's marks and the values kept beside them
    QVariantMap settings;          ///< what the panels saved
    int copies = 1;
    int pages = 0; ///< of the document; 0 if that is not known
    bool isCollated = true;
};

/// The merged options of a job. Every value is there, not only those that differ from the PPD's defaults: the
/// queue's own defaults would win over a silent job. A panel's saved value wins over a mark. IPP attributes
/// that say the same as a PPD keyword are left out; those with which a server could change the laid out page
/// are there with the value that changes nothing.
///
/// Cheap to make and to copy, however many options there are: the printer's are shared. Any thread.
class JobValues {
public:
    JobValues() = default;
    explicit JobValues(const JobInputs& inputs);

    /// Empty if the option is not sent.
    QString value(const QString& key) const;

    bool contains(const QString& key) const;

    /// The keys that are sent with another value than this, or are not in it, sorted.
    QStringList differingFrom(const QMap<QString, QString>& others) const;

    /// In the order in which they travel: sorted by key, but a text that begins with a brace comes after all
    /// others.
    OptionValues list() const;

private:
    void leaveToThePrinter();
    void layOut(const JobInputs& inputs);
    void collate(bool isCollated);

    /// Calls for each option that is sent, in the order of the keys.
    template <typename Use> void forEach(Use use) const;

    QMap<QString, QString> base_;                ///< the printer's, as they were handed in
    QMap<QString, std::optional<QString>> over_; ///< what is said over them; nothing: not sent
};

/// The same as a list.
OptionValues mergeJobOptions(const JobInputs& inputs);

} // namespace halvern
