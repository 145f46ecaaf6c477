#pragma once

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
std::vector<Constraint> readConstraints(ppd_file_t* file);

/// The constraints that `marks` violate and that involve `option`.
std::vector<const Constraint*> violatedBy(const std::vector<Constraint>& constraints,
                                          const OptionMarks& marks, const QString& option);

} // namespace halvern
