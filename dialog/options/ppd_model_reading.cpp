// SPDX-License-Identifier: MIT
// The reading half of PpdModel: values, texts and page geometry.
#include "dialog/options/custom_paper.h"
#include "dialog/options/ppd_lookup.h"
#include "dialog/options/ppd_model.h"

#include "platform/foundation/list_text.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QLocale>

#include <algorithm>

namespace halvern {

namespace {

QString textOr(const char* text, const QString& other)
{
    const QString found = QString::fromUtf8(text);
    return found.isEmpty() ? other : found;
}

QString choiceName(const QString& key, const QString& choice)
{
    return key + QLatin1Char(' ') + choice;
}

QString choiceName(const QString& key, const char* choice)
{
    return choiceName(key, QString::fromUtf8(choice));
}

} // namespace

void PpdModel::readOptions()
{
    for (int g = 0; g < file_->num_groups; ++g) {
        const ppd_group_t& group = file_->groups[g];
        const bool isEquipment = qstrcmp(group.name, "InstallableOptions") == 0;
        for (int i = 0; i < group.num_options; ++i) {
            const char* keyword = group.options[i].keyword;
            if (qstrcmp(keyword, "PageRegion") == 0)
                continue;
            const QString key = QString::fromUtf8(keyword);
            // A damaged PPD may have it in two groups; libcups knows one.
            if (groups_.contains(key))
                continue;
            keys_.append(key);
            groups_.insert(key, g);
            const ppd_choice_t* marked = ppdFindMarkedChoice(file_.get(), keyword);
            const QString choice = marked ? QString::fromUtf8(marked->choice) : QString();
            if (isEquipment)
                equipment_.insert(key, choice);
            else if (marked)
                values_.insert(key, choice);
        }
    }
    defaults_ = marks_ = values_;
}

// A text that the PPD has in the user's language too is replaced in the file. Only then is the old one worth
// keeping, and that is known afterwards.
void PpdModel::readOwnTexts()
{
    if (!ppdFindAttr(file_.get(), "cupsLanguages", nullptr))
        return;
    for (int g = 0; g < file_->num_groups; ++g) {
        for (int i = 0; i < file_->groups[g].num_options; ++i) {
            const ppd_option_t& option = file_->groups[g].options[i];
            const QString key = QString::fromUtf8(option.keyword);
            ownTexts_.insert(key, QByteArray(option.text));
            for (int c = 0; c < option.num_choices; ++c)
                ownTexts_.insert(choiceName(key, option.choices[c].choice),
                                 QByteArray(option.choices[c].text));
        }
    }
}

void PpdModel::keepOwnTexts()
{
    for (int g = 0; g < file_->num_groups; ++g) {
        for (int i = 0; i < file_->groups[g].num_options && !ownTexts_.isEmpty(); ++i) {
            const ppd_option_t& option = file_->groups[g].options[i];
            const auto drop = [&](const QString& name, const char* shown) {
                if (ownTexts_.value(name) == shown)
                    ownTexts_.remove(name);
            };
            const QString key = QString::fromUtf8(option.keyword);
            drop(key, option.text);
            for (int c = 0; c < option.num_choices; ++c)
                drop(choiceName(key, option.choices[c].choice), option.choices[c].text);
        }
    }
}

QString PpdModel::ownText(const QString& key, const QString& choice) const
{
    const auto found = ownTexts_.constFind(choice.isEmpty() ? key : choiceName(key, choice));
    if (found != ownTexts_.cend())
        return QString::fromUtf8(*found);
    if (!choice.isEmpty()) {
        const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), key, choice);
        return listed ? textOr(listed->text, choice) : choice;
    }
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    return option ? textOr(option->text, key) : key;
}

QString PpdModel::value(const QString& key) const
{
    const auto built = equipment_.constFind(key);
    return built != equipment_.cend() ? *built : values_.value(key);
}

// A keyword may have words of its own, which say more than the PPD's short text does.
QString PpdModel::optionText(const QString& key) const
{
    if (key == QLatin1StringView("PageSize"))
        return tr("Paper size");
    const QString own = inWords(key);
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    return own == key && option ? inWords(textOr(option->text, key)) : own;
}

QString PpdModel::choiceText(const QString& key, const QString& choice) const
{
    const ppd_choice_t* listed = ppd_lookup::listedChoice(file_.get(), key, choice);
    if (!listed && key == QLatin1StringView("PageSize"))
        return customText(choice);
    return listed ? inWords(textOr(listed->text, choice)) : unlistedText(key, choice);
}

// What the PPD does not list as a user reads it.
QString PpdModel::unlistedText(const QString& key, const QString& value) const
{
    if (areListed(key, value)) {
        QStringList texts;
        for (const QString& choice : value.split(QLatin1Char(',')))
            texts.append(choiceText(key, choice));
        return listText(texts);
    }
    if (ppd_lookup::hasSecret(file_.get(), key))
        return value.isEmpty() ? QString() : concealed();
    const CustomValue custom = customValue(key);
    bool isNumber = false;
    const double points = value.toDouble(&isNumber);
    if (custom.kind != CustomValue::Kind::length || !isNumber)
        return value;
    const QLocale locale;
    return locale.measurementSystem() == QLocale::MetricSystem
               ? tr("%1 mm").arg(locale.toString(points * kMillimetresPerInch / kPointsPerInch, 'f', 1))
               : tr("%1 in").arg(locale.toString(points / kPointsPerInch, 'f', 2));
}

int PpdModel::choiceCount(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    const bool hasCustom = option && ppdFindCustomOption(file_.get(), option->keyword);
    return option ? option->num_choices - (hasCustom ? 1 : 0) : 0;
}

OptionKind PpdModel::kind(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (option && option->ui == PPD_UI_PICKMANY)
        return OptionKind::several;
    return option && option->ui == PPD_UI_BOOLEAN && choiceCount(key) == 2 &&
                   ppd_lookup::listedChoice(file_.get(), key, QStringLiteral("True")) &&
                   ppd_lookup::listedChoice(file_.get(), key, QStringLiteral("False"))
               ? OptionKind::yesOrNo
               : OptionKind::one;
}

bool PpdModel::isSecret(const QString& key) const
{
    return isKept(key) && ppd_lookup::hasSecret(file_.get(), key);
}

QSet<QString> PpdModel::secrets() const
{
    QSet<QString> keys;
    for (auto it = kept_.cbegin(); it != kept_.cend(); ++it) {
        if (isSecret(it.key()))
            keys.insert(it.key());
    }
    return keys;
}

CustomValue PpdModel::customValue(const QString& key) const
{
    using Kind = CustomValue::Kind;
    const ppd_cparam_t* parameter = ppd_lookup::customParameter(file_.get(), key);
    if (!parameter)
        return {};
    switch (parameter->type) {
    case PPD_CUSTOM_INT:
        return {Kind::whole, ppd::customRange(file_.get(), key)};
    case PPD_CUSTOM_POINTS:
        return {Kind::length, ppd::customRange(file_.get(), key)};
    case PPD_CUSTOM_REAL:
    case PPD_CUSTOM_CURVE:
    case PPD_CUSTOM_INVCURVE:
        return {Kind::number, ppd::customRange(file_.get(), key)};
    case PPD_CUSTOM_STRING:
        return {Kind::text, ppd::parameterLimits(*parameter)};
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
        return {parameter->type == PPD_CUSTOM_PASSCODE ? Kind::digits : Kind::secret,
                ppd::parameterLimits(*parameter)};
    default:
        return {};
    }
}

bool PpdModel::areListed(const QString& key, const QString& values) const
{
    if (kind(key) != OptionKind::several || !values.contains(QLatin1Char(',')))
        return false;
    const QStringList choices = values.split(QLatin1Char(','));
    return std::ranges::all_of(choices, [&](const QString& choice) {
        return ppd_lookup::listedChoice(file_.get(), key, choice) != nullptr;
    });
}

QString PpdModel::groupText(const QString& key) const
{
    const auto group = groups_.constFind(key);
    return group != groups_.cend() ? inWords(QString::fromUtf8(file_->groups[*group].text)) : QString();
}

OptionItem PpdModel::option(const QString& key) const
{
    OptionItem item{key, optionText(key), groupText(key), {}, isInstallable(key)};
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    if (!option)
        return item;
    const bool hasCustom = ppdFindCustomOption(file_.get(), option->keyword) != nullptr;
    const OptionMarks nothing;
    const MarkView built{equipment_, nothing, nothing};
    const auto standing =
        item.isInstallable ? std::vector<const Constraint*>() : constraints_.standingAgainst(built, key);
    item.choices.reserve(option->num_choices);
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t& choice = option->choices[i];
        if (hasCustom && qstrcmp(choice.choice, "Custom") == 0)
            continue;
        const QString keyword = QString::fromUtf8(choice.choice);
        const auto clash = std::ranges::find_if(
            standing, [&](const Constraint* constraint) { return isRuledOutBy(*constraint, key, keyword); });
        const OptionMarks chosen{{key, keyword}};
        const QString obstacle = clash == standing.end()
                                     ? QString()
                                     : conflictSentence(key, {equipment_, nothing, chosen}, **clash);
        item.choices.append({keyword, inWords(textOr(choice.text, keyword)), obstacle});
    }
    return item;
}

QString PpdModel::unlistedDefault(const QString& key) const
{
    const ppd_option_t* option = ppd_lookup::option(file_.get(), key);
    const QString name = option ? QString::fromUtf8(option->defchoice) : QString();
    return name.isEmpty() || ppd_lookup::listedChoice(file_.get(), key, name) ? QString() : name;
}

SheetGeometry PpdModel::sheet() const
{
    const QByteArray name = value(QStringLiteral("PageSize")).toUtf8();
    const ppd_size_t* size = ppdPageSize(file_.get(), name.isEmpty() ? nullptr : name.constData());
    if (!size && file_->num_sizes > 0)
        size = &file_->sizes[0];
    if (!size || size->width <= 0.0F || size->length <= 0.0F)
        return {QSizeF(595.28, 841.89), QRectF(36.0, 36.0, 523.28, 769.89)};
    // The PPD counts from the bottom left corner.
    const QRectF paper(0.0, 0.0, double(size->width), double(size->length));
    const QRectF imageable(QPointF(double(size->left), double(size->length - size->top)),
                           QPointF(double(size->right), double(size->length - size->bottom)));
    const QRectF usable = imageable.intersected(paper);
    return {paper.size(), usable.isEmpty() ? paper : usable};
}

int PpdModel::resolution() const
{
    QString digits;
    int best = 0;
    for (const QChar c : value(QStringLiteral("Resolution")) + QLatin1Char(' ')) {
        if (c.isDigit()) {
            digits += c;
        } else if (!digits.isEmpty()) {
            best = std::max(best, digits.toInt());
            digits.clear();
        }
    }
    return best > 0 ? std::min(best, kMostResolution) : kUsualResolution;
}

} // namespace halvern
