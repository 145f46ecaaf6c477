// SPDX-License-Identifier: MIT
#include "dialog/options/constraints.h"

#include "dialog/options/ppd_lookup.h"
#include "platform/printing/cups_ppd.h"

#include <QSet>

#include <algorithm>

namespace halvern {

namespace {

const QString kCustom = QStringLiteral("Custom");

// The name under which the option is marked: as the PPD spells it where it defines it. The page's region
// follows its size, and is marked nowhere.
QString markedName(ppd_file_t* file, const QString& name)
{
    const ppd_option_t* option = ppd_lookup::option(file, name);
    const QString keyword = option ? QString::fromUtf8(option->keyword) : name;
    return keyword == QLatin1StringView("PageRegion") ? QStringLiteral("PageSize") : keyword;
}

// "CustomPageSize True" is another way to say "PageSize Custom".
ConstraintSide sideOf(ppd_file_t* file, const QString& name, const QString& choice)
{
    const bool isCustom = name.startsWith(kCustom, Qt::CaseInsensitive) &&
                          choice.compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0;
    return isCustom ? ConstraintSide{markedName(file, name.mid(kCustom.size())), kCustom}
                    : ConstraintSide{markedName(file, name), choice};
}

// "*PaperFeed Roll *TwoSided" -> (PaperFeed, Roll), (TwoSided, "")
std::vector<ConstraintSide> parseSides(ppd_file_t* file, const QString& text)
{
    std::vector<ConstraintSide> sides;
    for (const QString& word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('*')))
            sides.push_back({word.mid(1), {}});
        else if (!sides.empty() && sides.back().choice.isEmpty())
            sides.back().choice = word;
    }
    for (ConstraintSide& side : sides)
        side = sideOf(file, side.option, side.choice);
    return sides;
}

// The same for the same sides in any order.
QString nameOf(const Constraint& constraint)
{
    QStringList sides;
    for (const ConstraintSide& side : constraint.sides)
        sides.append(QStringLiteral("%1 %2").arg(side.option, side.choice).toLower());
    sides.sort();
    return sides.join(QLatin1Char('*'));
}

// Whether one of the known ones of two sides says it, with these choices or with any.
bool isSaid(const Constraint& constraint, const QSet<QString>& known)
{
    for (const bool anyFirst : {false, true}) {
        for (const bool anyLast : {false, true}) {
            Constraint wider = constraint;
            ConstraintSide& first = wider.sides.front();
            ConstraintSide& last = wider.sides.back();
            if ((anyFirst && isOffChoice(first.choice)) || (anyLast && isOffChoice(last.choice)))
                continue;
            if (anyFirst)
                first.choice.clear();
            if (anyLast)
                last.choice.clear();
            if (known.contains(nameOf(wider)))
                return true;
        }
    }
    return false;
}

using Resolvers = QHash<QString, std::vector<ConstraintSide>>;

std::vector<Constraint> readNamed(ppd_file_t* file, Resolvers& resolvers)
{
    std::vector<Constraint> constraints;
    for (ppd_attr_t* found = ppdFindAttr(file, "cupsUIConstraints", nullptr); found;
         found = ppdFindNextAttr(file, "cupsUIConstraints", nullptr)) {
        Constraint constraint{parseSides(file, QString::fromUtf8(found->value)),
                              QString::fromUtf8(found->spec)};
        if (constraint.sides.size() > 1)
            constraints.push_back(std::move(constraint));
    }
    // Not in the loop above: looking up another keyword moves the cursor of ppdFindNextAttr.
    for (ppd_attr_t* found = ppdFindAttr(file, "cupsUIResolver", nullptr); found;
         found = ppdFindNextAttr(file, "cupsUIResolver", nullptr))
        resolvers.insert(QString::fromUtf8(found->spec), parseSides(file, QString::fromUtf8(found->value)));
    for (Constraint& constraint : constraints) {
        if (!resolvers.contains(constraint.resolver))
            constraint.resolver.clear();
    }
    return constraints;
}

bool othersApply(const Constraint& constraint, const MarkView& marks, const QString& option)
{
    return std::ranges::all_of(constraint.sides, [&](const ConstraintSide& side) {
        return side.option == option || applies(side, marks.value(side.option));
    });
}

} // namespace

QString MarkView::value(const QString& option) const
{
    for (const OptionMarks* marks : {&changed, &now, &equipment}) {
        if (const auto found = marks->constFind(option); found != marks->cend())
            return *found;
    }
    return {};
}

bool isOffChoice(const QString& choice)
{
    for (const char* off : {"None", "Off", "False"}) {
        if (choice.compare(QLatin1StringView(off), Qt::CaseInsensitive) == 0)
            return true;
    }
    return choice.isEmpty();
}

bool applies(const ConstraintSide& side, const QString& marked)
{
    if (side.choice.isEmpty())
        return !isOffChoice(marked);
    if (side.choice.compare(kCustom, Qt::CaseInsensitive) == 0 &&
        marked.startsWith(QLatin1StringView("Custom.")))
        return true;
    return marked.compare(side.choice, Qt::CaseInsensitive) == 0;
}

bool isRuledOutBy(const Constraint& constraint, const QString& option, const QString& choice)
{
    return std::ranges::all_of(constraint.sides, [&](const ConstraintSide& side) {
        return side.option != option || applies(side, choice);
    });
}

Constraints::Constraints(ppd_file_t* file)
{
    QSet<QString> known;
    for (Constraint& constraint : readNamed(file, resolvers_)) {
        known.insert(nameOf(constraint));
        add(std::move(constraint));
    }
    for (int i = 0; i < file->num_consts; ++i) {
        const ppd_const_t& old = file->consts[i];
        Constraint constraint{{sideOf(file, QString::fromUtf8(old.option1), QString::fromUtf8(old.choice1)),
                               sideOf(file, QString::fromUtf8(old.option2), QString::fromUtf8(old.choice2))},
                              {}};
        // Makers write each both ways round, and in the newer form too, which says how to settle it.
        if (isSaid(constraint, known))
            continue;
        known.insert(nameOf(constraint));
        add(std::move(constraint));
    }
}

void Constraints::add(Constraint constraint)
{
    for (const ConstraintSide& side : constraint.sides) {
        std::vector<size_t>& known = ofOption_[side.option];
        if (known.empty() || known.back() != all_.size())
            known.push_back(all_.size());
    }
    all_.push_back(std::move(constraint));
}

std::vector<const Constraint*> Constraints::violatedBy(const MarkView& marks, const QString& option) const
{
    std::vector<const Constraint*> violated;
    const QString marked = marks.value(option);
    for (const size_t index : indexesOf(option)) {
        const Constraint& constraint = all_[index];
        if (isRuledOutBy(constraint, option, marked) && othersApply(constraint, marks, option))
            violated.push_back(&constraint);
    }
    return violated;
}

std::vector<const Constraint*> Constraints::standingAgainst(const MarkView& marks,
                                                            const QString& option) const
{
    std::vector<const Constraint*> standing;
    for (const size_t index : indexesOf(option)) {
        if (othersApply(all_[index], marks, option))
            standing.push_back(&all_[index]);
    }
    return standing;
}

const std::vector<size_t>& Constraints::indexesOf(const QString& option) const
{
    static const std::vector<size_t> none;
    const auto found = ofOption_.constFind(option);
    return found == ofOption_.cend() ? none : *found;
}

const std::vector<ConstraintSide>& Constraints::resolver(const QString& name) const
{
    static const std::vector<ConstraintSide> none;
    const auto found = resolvers_.constFind(name);
    return found == resolvers_.cend() ? none : *found;
}

} // namespace halvern
