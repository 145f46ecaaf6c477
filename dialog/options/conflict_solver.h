// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/constraints.h"

#include <QSet>

#include <functional>
#include <optional>

namespace halvern {

/// What may settle a conflict: only what the PPD says about it, or any other choice too.
enum class Means { resolvers, anything };

/// What is marked, and what somebody wants instead.
struct ConflictQuestion {
    const OptionMarks& equipment; ///< what is built into the printer; never changed
    const OptionMarks& now;
    OptionMarks wanted;        ///< chosen just now; never changed
    QSet<QString> chosen = {}; ///< what the user has chosen before; changed only if nothing else helps
    Means means = Means::anything;
};

/// Works out what else has to change so that a choice can be had: the fewest options, none that the user has
/// chosen if there is another way, and the paper's size last of all. What the PPD says about settling a
/// conflict is tried before anything else that costs as much. Clashes that were there before, and that none
/// of the changes touches, stay.
///
/// It knows no widgets and no PPD: only constraints, and what it is told of choices. Each option changes at
/// most once on a way, and the ways that are tried are bounded, so it always ends. Immutable; any thread that
/// may call `choices`.
class ConflictSolver {
public:
    /// An option's possible choices, those that are to be tried first before the others; none for an option
    /// that nobody may change.
    using ChoicesOf = std::function<QStringList(const QString& option)>;

    /// `constraints` outlive it.
    ConflictSolver(const Constraints& constraints, ChoicesOf choices);

    /// What to change beside `wanted`, by option; empty if nothing has to, nothing if no way was found.
    std::optional<OptionMarks> solve(const ConflictQuestion& question) const;

private:
    struct Way;
    class Search;

    const Constraints& constraints_;
    ChoicesOf choices_;
};

} // namespace halvern
