// SPDX-License-Identifier: MIT
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
    if (side.choice == QLatin1StringView("Custom") && marked.startsWith(QLatin1StringView("Custom.")))
        return true;
    return marked.compare(side.choice, Qt::CaseInsensitive) == 0;
}

// The page's region follows its size, and is marked nowhere.
QString markedName(const QString& option)
{
    return option == QLatin1StringView("PageRegion") ? QStringLiteral("PageSize") : option;
}

// "*PaperFeed Roll *TwoSided" -> (PaperFeed, Roll), (TwoSided, "")
std::vector<ConstraintSide> parseSides(const QString& text)
{
    std::vector<ConstraintSide> sides;
    for (const QString& word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('*')))
            sides.push_back({markedName(word.mid(1)), {}});
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

Constraints::Constraints(ppd_file_t* file)
{
    for (Constraint& constraint : readNamed(file))
        add(std::move(constraint));
    if (!all_.empty())
        return;
    for (int i = 0; i < file->num_consts; ++i) {
        const ppd_const_t& old = file->consts[i];
        add({{{markedName(QString::fromUtf8(old.option1)), QString::fromUtf8(old.choice1)},
              {markedName(QString::fromUtf8(old.option2)), QString::fromUtf8(old.choice2)}},
             {}});
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

std::vector<const Constraint*> Constraints::violatedBy(const OptionMarks& marks, const QString& option) const
{
    std::vector<const Constraint*> violated;
    const auto found = ofOption_.constFind(option);
    if (found == ofOption_.cend())
        return violated;
    for (const size_t index : *found) {
        const Constraint& constraint = all_[index];
        if (std::ranges::all_of(constraint.sides,
                                [&](const ConstraintSide& side) { return applies(side, marks); }))
            violated.push_back(&constraint);
    }
    return violated;
}

} // namespace halvern
