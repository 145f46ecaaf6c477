// SPDX-License-Identifier: MIT
// The half of PpdModel that applies saved and typed options, which have to go together in the end only.
#include "dialog/options/ppd_model.h"

#include "platform/printing/cups_ppd.h"

#include <algorithm>

namespace halvern {

struct PpdModel::GivenSet {
    struct Entry {
        Proposal proposal;
        OptionOrigin origin;
        qsizetype order;

        /// Whether it gives way before the other.
        bool isWeaker(const Entry& other) const
        {
            return origin != other.origin ? origin < other.origin : order > other.order;
        }
    };

    QMap<QString, Entry> entries;
    OptionMarks sides; ///< what settles them

    OptionMarks values() const
    {
        OptionMarks all;
        for (auto it = entries.cbegin(); it != entries.cend(); ++it)
            all.insert(it.key(), it->proposal.value);
        return all;
    }
};

ApplyResult PpdModel::apply(const GivenOptions& given)
{
    ApplyResult result;
    GivenSet set = checkGiven(given, result);
    while (!settleGiven(set, result)) {
    }
    for (auto it = set.sides.cbegin(); it != set.sides.cend(); ++it)
        setMark(it.key(), it.value());
    for (const GivenSet::Entry& entry : set.entries) {
        if (entry.proposal.isListed)
            setMark(entry.proposal.key, entry.proposal.value);
        else
            keep(entry.proposal.key, entry.proposal.value);
    }
    return result;
}

PpdModel::GivenSet PpdModel::checkGiven(const GivenOptions& given, ApplyResult& result) const
{
    GivenSet set;
    QMap<QString, qsizetype> last;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const ppd_option_t* option = ppd_lookup::option(file_.get(), given[i].key);
        last.insert(option ? QString::fromUtf8(option->keyword) : given[i].key, i);
    }
    for (const qsizetype i : last) {
        const Proposal proposal = proposeGiven(given[i]);
        if (proposal.refusal.isEmpty())
            set.entries.insert(proposal.key, {proposal, given[i].origin, i});
        else
            result.leftOut.append({given[i].origin, proposal.refusal});
    }
    return set;
}

// Stricter than what a panel may propose: a slip of the finger must not go into a job unseen.
PpdModel::Proposal PpdModel::proposeGiven(const GivenOption& given) const
{
    if (given.key.isEmpty())
        return {{}, {}, false, tr("An option without a name or a value cannot be set.")};
    Proposal proposal = propose(given.key, given.value, ppd_lookup::NumberReading::whole);
    const QByteArray key = proposal.key.toUtf8();
    if (const ppd_option_t* known = ppd_lookup::option(file_.get(), proposal.key)) {
        const bool isPageSize = proposal.key == QLatin1StringView("PageSize");
        const bool isTaken = proposal.isListed || ppdFindCustomOption(file_.get(), known->keyword) ||
                             areListed(proposal.key, given.value);
        QStringList names;
        for (const ChoiceItem& choice : option(proposal.key).choices)
            names.append(choice.keyword);
        if (isPageSize && !proposal.refusal.isEmpty())
            proposal.refusal += meantSentence(given.value, names);
        else if (!isPageSize && !isTaken && proposal.refusal.isEmpty())
            proposal.refusal = tr("\"%1\" has no choice \"%2\".").arg(proposal.key, given.value) +
                               listSentence(given.value, names);
        return proposal;
    }
    // What a queue has by itself, the server would send all the same. A printer may take free texts for which
    // its PPD has nothing but a default.
    const bool isCarried = given.origin == OptionOrigin::queue || isJobAttribute(given.key) ||
                           ppdFindAttr(file_.get(), (key + "Default").constData(), nullptr);
    if (!isCarried)
        proposal.refusal =
            tr("The printer has no option \"%1\".").arg(given.key) + meantSentence(given.key, keys_);
    return proposal;
}

// Takes one step: true if everything goes together.
bool PpdModel::settleGiven(GivenSet& set, ApplyResult& result) const
{
    const OptionMarks fixed = set.values();
    OptionMarks changed = set.sides;
    changed.insert(fixed);
    const MarkView proposed = marksWith(changed);
    for (auto it = changed.cbegin(); it != changed.cend(); ++it) {
        const auto clashes = value(it.key()) == it.value() ? std::vector<const Constraint*>()
                                                           : constraints_.violatedBy(proposed, it.key());
        if (clashes.empty())
            continue;
        QStringList given;
        for (const ConstraintSide& side : clashes.front()->sides) {
            if (set.entries.contains(side.option))
                given.append(side.option);
        }
        const bool mayResolve = given.size() == 1 && !clashes.front()->resolver.isEmpty() &&
                                result.settled.size() <= set.entries.size();
        if (const std::optional<OptionMarks> others =
                mayResolve ? resolve(given.front(), fixed) : std::nullopt) {
            SettledOption settled{given.front(), value(given.front()), {}};
            for (auto side = others->cbegin(); side != others->cend(); ++side) {
                set.sides.insert(side.key(), side.value());
                settled.sideChanges.append(sideChange(side.key(), side.value()));
            }
            result.settled.append(settled);
            return false;
        }
        if (given.isEmpty())
            given = set.entries.keys();
        const QString weakest = *std::ranges::min_element(given, [&](const QString& a, const QString& b) {
            return set.entries[a].isWeaker(set.entries[b]);
        });
        result.leftOut.append(
            {set.entries[weakest].origin, conflictSentence(weakest, proposed, *clashes.front())});
        // What was settled for its sake is settled anew.
        set.entries.remove(weakest);
        set.sides.clear();
        result.settled.clear();
        return false;
    }
    return true;
}

} // namespace halvern
