// SPDX-License-Identifier: MIT
#include "dialog/options/conflict_solver.h"

#include <algorithm>
#include <queue>

namespace halvern {

namespace {

// One change of what nobody chose, of what the user chose, and of the paper's size: fewer of a dearer kind
// always cost less than any number of a cheaper one that the bounds below allow.
constexpr int kPlain = 1;
constexpr int kChosen = 1'000;
constexpr int kPaper = 1'000'000;

// Constraints looked at in one search: a few milliseconds.
constexpr size_t kMostLooks = 30'000;
constexpr int kMostWays = 400;
constexpr int kMostChanges = 12;
// Choices of one option that are tried although each clashes with something else.
constexpr size_t kMostClashing = 3;
// Of an option with thousands of choices the others are as good as these.
constexpr qsizetype kMostWeighed = 500;

} // namespace

// Changes that were decided on, and what is marked with them.
struct ConflictSolver::Way {
    OptionMarks changes;
    QSet<QString> resolvers;
    int cost = 0;
    int number = 0;

    // The cheapest first; of equals the one that was thought of first.
    bool operator<(const Way& other) const
    {
        return cost != other.cost ? cost > other.cost : number > other.number;
    }
};

class ConflictSolver::Search {
public:
    Search(const ConflictSolver& solver, const ConflictQuestion& question)
        : constraints_(solver.constraints_), choices_(solver.choices_), question_(question)
    {
    }

    std::optional<OptionMarks> run();

private:
    struct Weighed {
        QString choice;
        size_t clashes;
    };

    OptionMarks marksOf(const Way& way) const;
    const Constraint* firstClash(const OptionMarks& marks, const QString& option);
    const Constraint* firstClash(const OptionMarks& marks);
    std::vector<Weighed> weigh(const OptionMarks& marks, const ConstraintSide& side);
    bool isFree(const Way& way, const QString& option) const;
    int costOf(const QString& option) const;
    void followResolver(const Way& way, const Constraint& clash);
    void tryChoices(const Way& way, const OptionMarks& marks, const Constraint& clash);
    void add(Way way);
    OptionMarks withoutNeedless(const Way& way);

    const Constraints& constraints_;
    const ChoicesOf& choices_;
    const ConflictQuestion& question_;
    std::priority_queue<Way> ways_;
    std::vector<OptionMarks> known_;
    size_t looks_ = 0;
    int number_ = 0;
};

OptionMarks ConflictSolver::Search::marksOf(const Way& way) const
{
    OptionMarks marks = way.changes;
    marks.insert(question_.wanted);
    return marks;
}

const Constraint* ConflictSolver::Search::firstClash(const OptionMarks& marks, const QString& option)
{
    looks_ += constraints_.count(option);
    const auto clashes = constraints_.violatedBy({question_.equipment, question_.now, marks}, option);
    return clashes.empty() ? nullptr : clashes.front();
}

const Constraint* ConflictSolver::Search::firstClash(const OptionMarks& marks)
{
    for (auto it = marks.cbegin(); it != marks.cend(); ++it) {
        if (const Constraint* clash = firstClash(marks, it.key()))
            return clash;
    }
    return nullptr;
}

bool ConflictSolver::Search::isFree(const Way& way, const QString& option) const
{
    return !question_.wanted.contains(option) && !question_.equipment.contains(option) &&
           !way.changes.contains(option);
}

int ConflictSolver::Search::costOf(const QString& option) const
{
    if (option == QLatin1StringView("PageSize"))
        return kPaper;
    return question_.chosen.contains(option) ? kChosen : kPlain;
}

void ConflictSolver::Search::add(Way way)
{
    if (way.changes.size() > kMostChanges || std::ranges::find(known_, way.changes) != known_.end())
        return;
    known_.push_back(way.changes);
    way.number = ++number_;
    ways_.push(std::move(way));
}

void ConflictSolver::Search::followResolver(const Way& way, const Constraint& clash)
{
    if (clash.resolver.isEmpty() || way.resolvers.contains(clash.resolver))
        return;
    Way next = way;
    next.resolvers.insert(clash.resolver);
    for (const ConstraintSide& side : constraints_.resolver(clash.resolver)) {
        if (side.choice.isEmpty() || !isFree(next, side.option))
            continue;
        const QStringList choices = choices_(side.option);
        const auto found = std::ranges::find_if(choices, [&](const QString& choice) {
            return choice.compare(side.choice, Qt::CaseInsensitive) == 0;
        });
        if (found == choices.cend() || *found == question_.now.value(side.option))
            continue;
        next.changes.insert(side.option, *found);
        if (const int cost = costOf(side.option); cost > kPlain)
            next.cost += cost;
    }
    // What the maker puts together counts as one change.
    next.cost += kPlain;
    if (next.changes.size() > way.changes.size())
        add(std::move(next));
}

std::vector<ConflictSolver::Search::Weighed> ConflictSolver::Search::weigh(const OptionMarks& marks,
                                                                           const ConstraintSide& side)
{
    looks_ += constraints_.count(side.option);
    const auto standing =
        constraints_.standingAgainst({question_.equipment, question_.now, marks}, side.option);
    std::vector<Weighed> weighed;
    for (const QString& choice : choices_(side.option).mid(0, kMostWeighed)) {
        if (choice == question_.now.value(side.option) || applies(side, choice))
            continue;
        looks_ += standing.size();
        const auto clashes = std::ranges::count_if(standing, [&](const Constraint* constraint) {
            return isRuledOutBy(*constraint, side.option, choice);
        });
        weighed.push_back({choice, size_t(clashes)});
        if (clashes == 0 || looks_ > kMostLooks)
            break;
    }
    std::ranges::stable_sort(weighed, {}, &Weighed::clashes);
    const size_t wanted = !weighed.empty() && weighed.front().clashes == 0 ? 1 : kMostClashing;
    weighed.resize(std::min(weighed.size(), wanted));
    return weighed;
}

void ConflictSolver::Search::tryChoices(const Way& way, const OptionMarks& marks, const Constraint& clash)
{
    for (const ConstraintSide& side : clash.sides) {
        if (!isFree(way, side.option))
            continue;
        for (const Weighed& weighed : weigh(marks, side)) {
            Way next = way;
            next.changes.insert(side.option, weighed.choice);
            next.cost += costOf(side.option);
            add(std::move(next));
        }
    }
}

// A resolver may say more than is needed here.
OptionMarks ConflictSolver::Search::withoutNeedless(const Way& way)
{
    Way kept = way;
    for (const QString& option : way.changes.keys()) {
        Way fewer = kept;
        fewer.changes.remove(option);
        const OptionMarks marks = marksOf(fewer);
        if (!firstClash(marks) && !firstClash(marks, option))
            kept = fewer;
    }
    return kept.changes;
}

std::optional<OptionMarks> ConflictSolver::Search::run()
{
    add({});
    for (int ways = 0; !ways_.empty() && ways < kMostWays && looks_ <= kMostLooks; ++ways) {
        const Way way = ways_.top();
        ways_.pop();
        const OptionMarks marks = marksOf(way);
        const Constraint* clash = firstClash(marks);
        if (!clash)
            return withoutNeedless(way);
        followResolver(way, *clash);
        if (question_.means == Means::anything)
            tryChoices(way, marks, *clash);
    }
    return std::nullopt;
}

ConflictSolver::ConflictSolver(const Constraints& constraints, ChoicesOf choices)
    : constraints_(constraints), choices_(std::move(choices))
{
}

std::optional<OptionMarks> ConflictSolver::solve(const ConflictQuestion& question) const
{
    return Search(*this, question).run();
}

} // namespace halvern
