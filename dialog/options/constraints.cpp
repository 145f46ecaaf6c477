#include "dialog/options/constraints.h"

#include "platform/printing/cups_ppd.h"

#include <QStringList>

#include <algorithm>

namespace halvern {

namespace {

bool isOff(const QString& choice)
{
    for (const char* off : {"None", "Off", "False"}) {
        if (choice.compare(QLatin1StringView(off), Qt::CaseInsensitive) == 0)
            return true;
    }
    return choice.isEmpty();
}

bool applies(const ConstraintSide& side, const OptionMarks& marks)
{
    const QString marked = marks.value(side.option);
    if (side.choice.isEmpty())
        return !isOff(marked);
    return marked.compare(side.choice, Qt::CaseInsensitive) == 0;
}

// "*PaperFeed Roll *TwoSided" -> (PaperFeed, Roll), (TwoSided, "")
std::vector<ConstraintSide> parseSides(const QString& text)
{
    std::vector<ConstraintSide> sides;
    for (const QString& word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('*')))
            sides.push_back({word.mid(1), {}});
        else if (!sides.empty() && sides.back().choice.isEmpty())
            sides.back().choice = word;
    }
    return sides;
}

std::vector<Constraint> readNamed(ppd_file_t* file)
{
    std::vector<Constraint> constraints;
    for (ppd_attr_t* found = ppdFindAttr(file, "cupsUIConstraints", nullptr); found;
         found = ppdFindNextAttr(file, "cupsUIConstraints", nullptr)) {
        Constraint constraint{parseSides(QString::fromUtf8(found->value)), QString::fromUtf8(found->spec)};
        if (constraint.sides.size() > 1)
            constraints.push_back(std::move(constraint));
    }
    // Not in the loop above: looking up another keyword moves the cursor of ppdFindNextAttr.
    for (Constraint& constraint : constraints) {
        if (!constraint.resolver.isEmpty() &&
            !ppdFindAttr(file, "cupsUIResolver", constraint.resolver.toUtf8().constData()))
            constraint.resolver.clear();
    }
    return constraints;
}

} // namespace

std::vector<Constraint> readConstraints(ppd_file_t* file)
{
    std::vector<Constraint> constraints = readNamed(file);
    if (!constraints.empty())
        return constraints;
    for (int i = 0; i < file->num_consts; ++i) {
        const ppd_const_t& old = file->consts[i];
        constraints.push_back({{{QString::fromUtf8(old.option1), QString::fromUtf8(old.choice1)},
                                {QString::fromUtf8(old.option2), QString::fromUtf8(old.choice2)}},
                               {}});
    }
    return constraints;
}

std::vector<const Constraint*> violatedBy(const std::vector<Constraint>& constraints,
                                          const OptionMarks& marks, const QString& option)
{
    std::vector<const Constraint*> violated;
    for (const Constraint& constraint : constraints) {
        const auto involves = [&](const ConstraintSide& side) { return side.option == option; };
        const auto active = [&](const ConstraintSide& side) { return applies(side, marks); };
        if (std::ranges::any_of(constraint.sides, involves) && std::ranges::all_of(constraint.sides, active))
            violated.push_back(&constraint);
    }
    return violated;
}

} // namespace halvern
