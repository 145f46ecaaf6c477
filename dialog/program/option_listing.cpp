// SPDX-License-Identifier: MIT
#include "dialog/program/option_listing.h"

#include "dialog/options/ipp_twins.h"
#include "platform/printing/cups_ppd.h"
#include "platform/printing/ppd.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace halvern {

namespace {

struct OptionListingWords {
    Q_DECLARE_TR_FUNCTIONS(Listings)
};

/// How a custom value's parameter is called and limited.
struct CustomKind {
    const char* word;
    bool isNumber;
};

CustomKind kindOf(const ppd_cparam_t& parameter)
{
    switch (parameter.type) {
    case PPD_CUSTOM_INT:
        return {"integer", true};
    case PPD_CUSTOM_CURVE:
        return {"curve", true};
    case PPD_CUSTOM_INVCURVE:
        return {"inverted-curve", true};
    case PPD_CUSTOM_REAL:
        return {"real", true};
    case PPD_CUSTOM_POINTS:
        return {"points", true};
    case PPD_CUSTOM_PASSCODE:
        return {"passcode", false};
    case PPD_CUSTOM_PASSWORD:
        return {"password", false};
    case PPD_CUSTOM_STRING:
    default:
        return {"string", false};
    }
}

QList<const ppd_cparam_t*> customParameters(const PpdModel& model, const QString& key)
{
    QList<const ppd_cparam_t*> parameters;
    ppd_coption_t* custom = ppdFindCustomOption(model.file(), key.toUtf8().constData());
    for (ppd_cparam_t* each = custom ? ppdFirstCustomParam(custom) : nullptr; each;
         each = ppdNextCustomParam(custom))
        parameters.append(each);
    return parameters;
}

// As somebody would type it.
QString customForm(const PpdModel& model, const QString& key)
{
    if (key == QLatin1StringView("PageSize"))
        return model.file()->variable_sizes ? QStringLiteral("Custom.WIDTHxHEIGHTmm") : QString();
    const QList<const ppd_cparam_t*> parameters = customParameters(model, key);
    if (parameters.isEmpty())
        return {};
    if (parameters.size() == 1)
        return QStringLiteral("Custom.") + QString::fromLatin1(kindOf(*parameters.front()).word).toUpper();
    QStringList names;
    for (const ppd_cparam_t* parameter : parameters)
        names.append(QString::fromUtf8(parameter->name) + QStringLiteral("=") +
                     QString::fromLatin1(kindOf(*parameter).word).toUpper());
    return QLatin1Char('{') + names.join(QLatin1Char(' ')) + QLatin1Char('}');
}

QJsonArray customAsJson(const PpdModel& model, const QString& key)
{
    QJsonArray array;
    for (const ppd_cparam_t* parameter : customParameters(model, key)) {
        const CustomKind kind = kindOf(*parameter);
        const ppd::Range limits = ppd::parameterLimits(*parameter);
        array.append(QJsonObject{
            {QStringLiteral("parameter"), QString::fromUtf8(parameter->name)},
            {QStringLiteral("type"), QLatin1StringView(kind.word)},
            {kind.isNumber ? QStringLiteral("minimum") : QStringLiteral("minimumLength"), limits.minimum},
            {kind.isNumber ? QStringLiteral("maximum") : QStringLiteral("maximumLength"), limits.maximum}});
    }
    return array;
}

// What a name of the printer's is known by tells nobody what it is.
QString choiceForm(const ChoiceItem& choice)
{
    return choice.keyword.startsWith(QLatin1StringView(kOwnName))
               ? QStringLiteral("%1 (\"%2\")").arg(choice.keyword, choice.text)
               : choice.keyword;
}

// A printer without a PPD may not tell what it does by itself.
QString optionLine(const QString& value, const QString& byDefault, const OptionItem& option,
                   const QString& all)
{
    if (option.isInstallable)
        return OptionListingWords::tr("%1 (installed in the printer) \"%2\": %3")
            .arg(value, option.text, all);
    if (byDefault.isEmpty())
        return OptionListingWords::tr("%1 (default not known) \"%2\": %3").arg(value, option.text, all);
    return OptionListingWords::tr("%1 (default %2) \"%3\": %4").arg(value, byDefault, option.text, all);
}

} // namespace

QStringList optionLines(const PpdModel& model, const QMap<QString, QString>& byDefault)
{
    QStringList lines;
    for (const QString& key : model.keys()) {
        const OptionItem option = model.option(key);
        QStringList choices;
        for (const ChoiceItem& choice : option.choices)
            choices.append(choiceForm(choice));
        if (const QString custom = customForm(model, key); !custom.isEmpty())
            choices.append(custom);
        const QString value = key + QLatin1Char('=') + model.value(key);
        lines.append(optionLine(value, byDefault.value(key), option, choices.join(QLatin1Char(' '))));
    }
    return lines;
}

QJsonArray optionsAsJson(const PpdModel& model, const QMap<QString, QString>& byDefault)
{
    QJsonArray array;
    for (const QString& key : model.keys()) {
        const OptionItem option = model.option(key);
        QJsonArray choices;
        for (const ChoiceItem& choice : option.choices)
            choices.append(QJsonObject{{QStringLiteral("choice"), choice.keyword},
                                       {QStringLiteral("text"), choice.text}});
        QJsonObject object{
            {QStringLiteral("option"), key},
            {QStringLiteral("text"), option.text},
            {QStringLiteral("group"), option.group},
            {QStringLiteral("current"), model.value(key)},
            {QStringLiteral("default"), option.isInstallable ? model.value(key) : byDefault.value(key)},
            {QStringLiteral("installed"), option.isInstallable},
            {QStringLiteral("choices"), choices}};
        if (const QJsonArray custom = customAsJson(model, key); !custom.isEmpty())
            object.insert(QStringLiteral("custom"), custom);
        array.append(object);
    }
    return array;
}

} // namespace halvern
