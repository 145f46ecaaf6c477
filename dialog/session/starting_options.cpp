// SPDX-License-Identifier: MIT
#include "dialog/session/starting_options.h"

#include "dialog/options/back_lines.h"
#include "dialog/options/page_fit.h"
#include "dialog/session/preset_use.h"
#include "platform/printing/print_settings.h"

#include <QCoreApplication>

#include <algorithm>

namespace halvern {

namespace {

struct StartingOptionsWords {
    Q_DECLARE_TR_FUNCTIONS(StartingOptions)
};

} // namespace

StartingOptions applyGiven(PpdModel& model, const GivenOptions& given, const Preset* preset,
                           const GivenOptions& typed)
{
    const UnderstoodOptions below = understand(model.file(), given);
    const UnderstoodOptions above = understand(model.file(), typed);
    PresetOptions remembered;
    if (preset) {
        QMap<QString, QString> otherwise = model.values();
        for (const GivenOption& option : below.options)
            otherwise.insert(option.key, option.value);
        remembered = optionsOf(model, *preset, otherwise);
    }
    const ApplyResult result = model.apply(below.options + remembered.given + above.options);
    PageWishes page = above.page;
    const PageWishes otherwise = preset ? withoutDecided(below.page, *preset) : below.page;
    const bool isScalingSaved = page.scaling.isEmpty();
    if (isScalingSaved)
        page.scaling = otherwise.scaling;
    if (!page.isCollated)
        page.isCollated = otherwise.isCollated;
    return {page, below.leftOut + remembered.leftOut + above.leftOut + result.leftOut, result.settled,
            isScalingSaved};
}

QMap<QString, QString> printerDefaults(PpdModel& model, const OptionValues& queues)
{
    const QMap<QString, QString> before = model.values();
    model.apply(understand(model.file(), givenBy(OptionOrigin::queue, queues)).options);
    const QMap<QString, QString> defaults = model.values();
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (defaults.value(it.key()) != it.value())
            model.restore({{it.key(), it.value()}});
    }
    return defaults;
}

AppliedLines applyBackLines(PpdModel& model, const QStringList& lines, const QString& printer)
{
    for (int number = 1; number <= lines.size(); ++number) {
        if (model.value(backLineSwitch(number)).isEmpty())
            return {
                {StartingOptionsWords::tr("The printer \"%1\" prints no text on the back of a picture. Leave "
                                          "--backprint out, or choose another printer.")
                     .arg(printer)},
                {}};
    }
    AppliedLines applied;
    for (const OptionValue& option : backLineOptions(lines)) {
        const QString before = model.value(option.key);
        const ChangeResult result = model.change(option.key, option.value);
        if (!result.accepted)
            applied.refusals.append(result.refusal);
        applied.settled.append({option.key, before, result.sideChanges});
    }
    return applied;
}

QString nameLoadedSheet(PpdModel& model, const PrinterOffer& offer)
{
    const QString key = QStringLiteral("PaperName");
    const QString choice = model.value(key);
    const QString name = model.choiceText(key, choice);
    const auto isLoaded = [&](const QString& sheet) {
        return !sheet.isEmpty() && std::ranges::any_of(offer.papers, [&](const LoadedPaper& paper) {
            return paper.sheetName == sheet;
        });
    };
    if (isLoaded(choice))
        return {};
    if (isLoaded(name)) {
        model.restore({{key, name}});
        return {};
    }
    if (choice != ppd::defaultChoice(model.file(), key).value_or(QString()))
        return {};
    const QString sheet = fittingSheet(model, offer);
    if (!sheet.isEmpty())
        model.restore({{key, sheet}});
    return sheet;
}

void storeStart(const PpdModel& model, const QMap<QString, QString>& byDefault, const QString& queueJobSheets,
                PrintSettings& settings)
{
    // What the queue would add by itself is the panels' to see and to change.
    if (!queueJobSheets.isEmpty())
        settings.setValue(QStringLiteral("job-sheets"), queueJobSheets, false);
    // A panel that looks at the settings only, and not at the marks, must find what was chosen before it
    // came: it would save the PPD's default over it.
    const QMap<QString, QString> values = model.values();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (model.isKept(it.key()) || byDefault.value(it.key()) != it.value())
            settings.setValue(it.key(), it.value(), false);
    }
}

} // namespace halvern
