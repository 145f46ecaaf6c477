// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMap>
#include <QStringList>

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

/// What is marked, without a copy of it: `changed` lies over `now`, which lies over `equipment`. What it
/// refers to outlives it.
struct MarkView {
    const OptionMarks& equipment;
    const OptionMarks& now;
    const OptionMarks& changed;

    QString value(const QString& option) const;
};

/// Whether the side's choice is the marked one.
bool applies(const ConstraintSide& side, const QString& marked);

/// Whether a choice switches its option off.
bool isOffChoice(const QString& choice);

/// The constraints of a PPD as plain data. Both of their forms count, as they do for the server's filters.
/// Immutable once made: any thread then; the constructor on the thread that owns the file.
class Constraints {
public:
    /// Reads them; keeps nothing of the file.
    explicit Constraints(ppd_file_t* file);

    /// Those that `marks` violate and that involve `option`. They live as long as this object.
    std::vector<const Constraint*> violatedBy(const MarkView& marks, const QString& option) const;

    /// Those of which every side but the option's own applies: a choice of the option that makes its side
    /// apply violates them. One pass answers for a whole list of choices.
    std::vector<const Constraint*> standingAgainst(const MarkView& marks, const QString& option) const;

    /// How many constraints the option is in: what the two above look at.
    size_t count(const QString& option) const { return indexesOf(option).size(); }

    /// What a resolver changes, as pairs of option and choice; empty if the PPD does not say.
    const std::vector<ConstraintSide>& resolver(const QString& name) const;

private:
    void add(Constraint constraint);
    const std::vector<size_t>& indexesOf(const QString& option) const;

    std::vector<Constraint> all_;
    QHash<QString, std::vector<size_t>> ofOption_;
    QHash<QString, std::vector<ConstraintSide>> resolvers_;
};

/// Whether the option's own side of the constraint applies for a choice of it.
bool isRuledOutBy(const Constraint& constraint, const QString& option, const QString& choice);

} // namespace halvern
