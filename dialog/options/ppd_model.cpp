// SPDX-License-Identifier: MIT
#include "dialog/options/ppd_model.h"

#include "dialog/options/custom_paper.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_lookup.h"
#include "platform/printing/cups_ppd.h"

#include <QLocale>

#include <new>

namespace halvern {

namespace {

constexpr char kCustomPrefix[] = "Custom.";

bool isPageSize(const QString& key)
{
    return key == kPageSize;
}

} // namespace

QString valueText(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Double:
    case QMetaType::Float:
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    default:
        return value.toString();
    }
}

PpdModel::PpdModel(ppd::File file) : file_(std::move(file)), constraints_(file_.get())
{
    readOwnTexts();
    ppdLocalize(file_.get());
    keepOwnTexts();
    ppd::markDefaults(file_.get());
    readOptions();
}

std::shared_ptr<PpdModel> PpdModel::make(ppd::File file)
{
    try {
        return std::make_shared<PpdModel>(std::move(file));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

ChangeResult PpdModel::refuse(const QString& sentence) const
{
    return {false, sentence, {}};
}

ChangeResult PpdModel::change(const QString& key, const QVariant& value, ppd_lookup::NumberReading reading)
{
    if (key.isEmpty() || !value.isValid())
        return refuse(tr("An option without a name or a value cannot be set."));
    const Proposal proposal = propose(key, valueText(value), reading);
    if (!proposal.refusal.isEmpty())
        return refuse(proposal.refusal);
    if (proposal.isListed)
        return changeListed(proposal.key, proposal.value);
    keep(proposal.key, proposal.value);
    return {true, {}, {}};
}

PpdModel::Proposal PpdModel::propose(const QString& key, const QString& value,
                                     ppd_lookup::NumberReading reading) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option)
        return {key, value};
    Proposal proposal{QString::fromUtf8(option->keyword), value};
    if (isInstallable(proposal.key)) {
        proposal.refusal =
            tr("\"%1\" is part of the printer's equipment, and is set by whoever installed the "
               "printer.")
                .arg(optionText(proposal.key));
        return proposal;
    }
    if (const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), proposal.key, value)) {
        proposal.value = QString::fromUtf8(listed->choice);
        proposal.isListed = true;
        return proposal;
    }
    if (areListed(proposal.key, value)) {
        // Filters mark one choice of an option that a job names, and none at all of a row of them.
        proposal.refusal = tr("A job carries one choice of \"%1\", and not \"%2\" together. Take one away "
                              "before you choose another.")
                               .arg(optionText(proposal.key), unlistedText(proposal.key, value));
        return proposal;
    }
    return isPageSize(proposal.key) ? proposePageSize(proposal) : proposeCustom(proposal, reading);
}

PpdModel::Proposal PpdModel::proposeCustom(Proposal proposal, ppd_lookup::NumberReading reading) const
{
    const ppd_cparam_t* parameter = ppd_lookup::customParameter(file_.get(), proposal.key);
    if (!parameter)
        return proposal;
    // The command line and saved options may name a custom value so; what a panel proposes is the value.
    if (reading == ppd_lookup::NumberReading::whole &&
        proposal.value.startsWith(QLatin1StringView(kCustomPrefix)))
        proposal.value = proposal.value.mid(int(sizeof(kCustomPrefix)) - 1);
    proposal.refusal = ppd_lookup::customValueProblem(file_.get(), *parameter, proposal.key,
                                                      optionText(proposal.key), proposal.value, reading);
    return proposal;
}

PpdModel::Proposal PpdModel::proposePageSize(Proposal proposal) const
{
    // libcups answers null for a size that the printer does not take.
    const bool isCustom = proposal.value.startsWith(QLatin1StringView(kCustomPrefix));
    const ppd_size_t* size =
        isCustom ? ppdPageSize(file_.get(), proposal.value.toUtf8().constData()) : nullptr;
    if (!size) {
        proposal.refusal =
            tr("The printer has no page size \"%1\". Choose one from the list.").arg(proposal.value);
    } else if (const std::optional<PaperLimits> limits = paperLimits(file_.get());
               limits && !limits->holds(QSizeF(double(size->width), double(size->length)))) {
        proposal.refusal =
            tr("The printer cannot take the page size \"%1\". Choose one from the list.").arg(proposal.value);
    }
    return proposal;
}

bool PpdModel::goesWithTheRest(const QString& key, const QString& choice) const
{
    return ppd_lookup::listedChoice(file_.get(), key, choice) &&
           constraints_.violatedBy(marksWith({{key, choice}}), key).empty();
}

SideChange PpdModel::sideChange(const QString& key, const QString& choice) const
{
    return {key, value(key), choice, optionText(key), choiceText(key, choice)};
}

ChangeResult PpdModel::changeListed(const QString& key, const QString& choice)
{
    if (value(key) == choice && !isKept(key))
        return {true, {}, {}};
    const OptionMarks wanted{{key, choice}};
    const std::vector<const Constraint*> clashes = constraints_.violatedBy(marksWith(wanted), key);
    for (const Constraint* constraint : clashes) {
        // Another choice that happens to fit could be followed by nobody who only hears the answer.
        if (constraint->resolver.isEmpty())
            return refuse(conflictSentence(key, marksWith(wanted), *constraint));
    }
    const std::optional<OptionMarks> others = resolve(key, wanted);
    if (!others)
        return refuse(conflictSentence(key, marksWith(wanted), *clashes.front()));
    ChangeResult result{true, {}, {}};
    for (auto it = others->cbegin(); it != others->cend(); ++it)
        result.sideChanges.append(sideChange(it.key(), it.value()));
    setMark(key, choice);
    for (const SideChange& side : result.sideChanges)
        setMark(side.key, side.choice);
    return result;
}

QString PpdModel::conflictSentence(const QString& key, const MarkView& proposed,
                                   const Constraint& constraint) const
{
    QStringList others;
    QStringList built;
    for (const ConstraintSide& side : constraint.sides) {
        const QString text =
            tr("%1: %2").arg(optionText(side.option), choiceText(side.option, proposed.value(side.option)));
        if (isInstallable(side.option))
            built.append(text);
        else if (side.option != key)
            others.append(text);
    }
    const QString chosen = tr("%1: %2").arg(optionText(key), choiceText(key, proposed.value(key)));
    const QString between = QStringLiteral("\", \"");
    if (others.isEmpty() && !built.isEmpty())
        return tr("The printer's equipment does not allow \"%1\": whoever installed the printer has set "
                  "\"%2\".")
            .arg(chosen, built.join(between));
    return tr("\"%1\" does not go together with \"%2\". Change that first.")
        .arg(chosen, (others + built).join(between));
}

void PpdModel::setMark(const QString& key, const QString& choice)
{
    if (!ppd_lookup::listedChoice(file_.get(), key, choice)) {
        // Kept, it would be in the job as "KEY=".
        if (choice.isEmpty() && defaultValue(key).isEmpty())
            drop(key);
        else
            keep(key, choice);
        return;
    }
    kept_.remove(key);
    note(key, choice);
    ppdMarkOption(file_.get(), key.toUtf8().constData(), choice.toUtf8().constData());
}

void PpdModel::unmark(const QString& key)
{
    ppd_lookup::unmark(file_.get(), key);
    if (isPageSize(key))
        ppd_lookup::unmark(file_.get(), QStringLiteral("PageRegion"));
}

void PpdModel::drop(const QString& key)
{
    unmark(key);
    kept_.remove(key);
    values_.remove(key);
    marks_.remove(key);
    changed_.remove(key);
}

void PpdModel::keep(const QString& key, const QString& value)
{
    unmark(key);
    kept_.insert(key, value);
    note(key, value);
}

void PpdModel::note(const QString& key, const QString& value)
{
    values_.insert(key, value);
    marks_.insert(key, asMark(key, value));
    if (value == defaults_.value(key))
        changed_.remove(key);
    else
        changed_.insert(key);
}

// Constraints speak of all of an option's custom values at once.
QString PpdModel::asMark(const QString& key, const QString& value) const
{
    const bool isCustom = !value.isEmpty() && !isPageSize(key) &&
                          ppdFindCustomOption(file_.get(), key.toUtf8().constData()) &&
                          !ppd_lookup::listedChoice(file_.get(), key, value);
    return isCustom ? QLatin1StringView(kCustomPrefix) + value : value;
}

void PpdModel::hide(const QString& key)
{
    ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option || isHidden(key))
        return;
    if (const QString now = value(key); !now.isEmpty())
        keep(key, now);
    hidden_.insert(key, QByteArray(option->defchoice));
    option->defchoice[0] = '\0';
}

void PpdModel::show(const QString& key)
{
    ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option || !isHidden(key))
        return;
    qstrncpy(option->defchoice, hidden_.take(key).constData(), sizeof(option->defchoice));
    if (const QString now = kept_.value(key); !now.isEmpty())
        setMark(key, now);
}

void PpdModel::restore(const QMap<QString, QString>& values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        setMark(it.key(), it.value());
}

} // namespace halvern
