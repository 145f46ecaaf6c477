#include "dialog/options/ppd_model.h"

#include "dialog/options/ppd_lookup.h"
#include "platform/printing/cups_ppd.h"

#include <QLocale>

namespace halvern {

namespace {

constexpr char kCustomPrefix[] = "Custom.";
constexpr char kPageSize[] = "PageSize";

bool isPageSize(const QString& key)
{
    return key == QLatin1StringView(kPageSize);
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

PpdModel::PpdModel(ppd::File file) : file_(std::move(file)), constraints_(readConstraints(file_.get()))
{
    ppdLocalize(file_.get());
    ppdMarkDefaults(file_.get());
}

QStringList PpdModel::apply(const OptionValues& options)
{
    QStringList refusals;
    for (const OptionValue& option : options) {
        const ChangeResult result = change(option.key, option.value);
        if (!result.accepted)
            refusals.append(result.refusal);
    }
    return refusals;
}

ChangeResult PpdModel::refuse(const QString& sentence) const
{
    return {false, sentence, {}};
}

ChangeResult PpdModel::change(const QString& key, const QVariant& value, ppd_lookup::NumberReading reading)
{
    if (key.isEmpty() || !value.isValid())
        return refuse(tr("An option without a name or a value cannot be set."));
    QString text = valueText(value);
    if (!ppd_lookup::option(file_.get(), key)) {
        keep(key, text);
        return {true, {}, {}};
    }
    if (const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), key, text))
        return changeListed(key, QString::fromUtf8(listed->choice));
    if (isPageSize(key))
        return keepPageSize(text);
    return keepCustom(key, text, reading);
}

ChangeResult PpdModel::keepCustom(const QString& key, const QString& value, ppd_lookup::NumberReading reading)
{
    QString plain = value;
    if (const ppd_cparam_t* parameter = ppd_lookup::customParameter(file_.get(), key)) {
        // The command line and saved options may name a custom value so; what a panel proposes is the value.
        if (reading == ppd_lookup::NumberReading::whole && plain.startsWith(QLatin1StringView(kCustomPrefix)))
            plain = plain.mid(int(sizeof(kCustomPrefix)) - 1);
        const QString problem =
            ppd_lookup::customValueProblem(file_.get(), *parameter, key, optionText(key), plain, reading);
        if (!problem.isEmpty())
            return refuse(problem);
    }
    keep(key, plain);
    return {true, {}, {}};
}

ChangeResult PpdModel::keepPageSize(const QString& value)
{
    // libcups answers null for a size that the printer does not take.
    ppd_size_t least{};
    ppd_size_t most{};
    const bool isCustom = value.startsWith(QLatin1StringView(kCustomPrefix));
    const ppd_size_t* size = isCustom ? ppdPageSize(file_.get(), value.toUtf8().constData()) : nullptr;
    if (!size)
        return refuse(tr("The printer has no page size \"%1\". Choose one from the list.").arg(value));
    if (ppdPageSizeLimits(file_.get(), &least, &most) &&
        (size->width < least.width || size->width > most.width || size->length < least.length ||
         size->length > most.length)) {
        return refuse(
            tr("The printer cannot take the page size \"%1\". Choose one from the list.").arg(value));
    }
    keep(QLatin1StringView(kPageSize), value);
    ppd_lookup::unmark(file_.get(), QStringLiteral("PageRegion"));
    return {true, {}, {}};
}

ChangeResult PpdModel::changeListed(const QString& key, const QString& choice)
{
    const OptionMarks current = values();
    if (current.value(key) == choice && !isKept(key))
        return {true, {}, {}};
    OptionMarks proposed = current;
    proposed[key] = choice;
    for (const Constraint* constraint : violatedBy(constraints_, proposed, key)) {
        // Without a resolver, libcups would try choices until something fits, which nobody could follow.
        if (constraint->resolver.isEmpty())
            return refuse(conflictSentence(key, choice, proposed, *constraint));
    }
    if (const auto clashes = violatedBy(constraints_, proposed, key); !clashes.empty()) {
        OptionMarks resolved = proposed;
        if (!resolve(key, choice, resolved))
            return refuse(conflictSentence(key, choice, proposed, *clashes.front()));
        proposed = resolved;
    }
    ChangeResult result{true, {}, {}};
    setMark(key, choice);
    for (auto it = proposed.cbegin(); it != proposed.cend(); ++it) {
        if (it.key() == key || current.value(it.key()) == it.value())
            continue;
        setMark(it.key(), it.value());
        result.sideChanges.append({it.key(), current.value(it.key()), it.value(), optionText(it.key()),
                                   choiceText(it.key(), it.value())});
    }
    return result;
}

bool PpdModel::resolve(const QString& key, const QString& choice, OptionMarks& proposed) const
{
    cups_option_t* options = nullptr;
    int count = cupsAddOption(key.toUtf8().constData(), choice.toUtf8().constData(), 0, &options);
    // It answers a list of changes and marks nothing.
    const bool settled = cupsResolveConflicts(file_.get(), key.toUtf8().constData(),
                                              choice.toUtf8().constData(), &count, &options) != 0;
    for (int i = 0; settled && i < count; ++i) {
        const QString changed = QString::fromUtf8(options[i].name);
        if (changed != QLatin1StringView("PageRegion"))
            proposed[changed] = QString::fromUtf8(options[i].value);
    }
    cupsFreeOptions(count, options);
    if (!settled || proposed.value(key) != choice)
        return false;
    for (auto it = proposed.cbegin(); it != proposed.cend(); ++it) {
        const bool changes = it.key() == key || value(it.key()) != it.value();
        if (changes && !violatedBy(constraints_, proposed, it.key()).empty())
            return false;
    }
    return true;
}

QString PpdModel::conflictSentence(const QString& key, const QString& choice, const OptionMarks& proposed,
                                   const Constraint& constraint) const
{
    QStringList others;
    for (const ConstraintSide& side : constraint.sides) {
        if (side.option != key)
            others.append(tr("%1: %2").arg(optionText(side.option),
                                           choiceText(side.option, proposed.value(side.option))));
    }
    return tr("\"%1: %2\" does not go together with \"%3\". Change that first.")
        .arg(optionText(key), choiceText(key, choice), others.join(QStringLiteral("\", \"")));
}

void PpdModel::setMark(const QString& key, const QString& choice)
{
    if (!ppd_lookup::listedChoice(file_.get(), key, choice)) {
        keep(key, choice);
        return;
    }
    kept_.remove(key);
    ppdMarkOption(file_.get(), key.toUtf8().constData(), choice.toUtf8().constData());
}

void PpdModel::keep(const QString& key, const QString& value)
{
    ppd_lookup::unmark(file_.get(), key);
    kept_.insert(key, value);
}

void PpdModel::restore(const QMap<QString, QString>& values)
{
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        setMark(it.key(), it.value());
}

} // namespace halvern
