// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMap>
#include <QString>

#include <vector>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

/// One option of a constraint. An empty choice means any choice that is not "off".
struct ConstraintSide {
    QString option;
    QString choice;
};

/// Choices that cannot go together.
struct Constraint {
    std::vector<ConstraintSide> sides;
    QString resolver; ///< the name under which the PPD says how to settle it; empty if it does not say
};

using OptionMarks = QMap<QString, QString>;

/// The constraints of a PPD as plain data. The PPD's newer form counts where it has one, the older otherwise.
/// Immutable once made: any thread then; the constructor on the thread that owns the file.
class Constraints {
public:
    /// Reads them; keeps nothing of the file.
    explicit Constraints(ppd_file_t* file);

    /// Those that `marks` violate and that involve `option`. They live as long as this object.
    std::vector<const Constraint*> violatedBy(const OptionMarks& marks, const QString& option) const;

private:
    void add(Constraint constraint);

    std::vector<Constraint> all_;
    QHash<QString, std::vector<size_t>> ofOption_;
};

} // namespace halvern
