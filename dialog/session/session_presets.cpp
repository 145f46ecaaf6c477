// SPDX-License-Identifier: MIT
#include "dialog/session/session_presets.h"

#include "dialog/session/option_changes.h"
#include "dialog/session/printer_choice.h"
#include "dialog/session/printer_panels.h"
#include "dialog/session/starting_options.h"
#include "platform/printing/print_settings.h"

#include <algorithm>

namespace halvern {

SessionPresets::SessionPresets(const Session& session) : session_(session)
{
    connect(&presets_, &Presets::failed, this, &SessionPresets::notice);
}

void SessionPresets::take(const FetchedPrinter& printer)
{
    PpdModel& model = *session_.options.model();
    if (!printer.presets.problem.isEmpty())
        Q_EMIT notice(printer.presets.problem);
    presets_.take(session_.printer.name(), model.file(), printer.presets, session_.printer.saved());
    presets_.lookForOthers();
    printerDefaults_ = halvern::printerDefaults(model, printer.ppd.defaults);
    presets_.setPrinterDefaults(printerDefaults_);
    model.setDefaults(printerDefaults_);
}

void SessionPresets::leave()
{
    printerDefaults_.clear();
    presets_.leave();
}

// Whoever names an instance of the saved options wants these, and not what was printed with last.
std::optional<PresetEntry> SessionPresets::starting()
{
    const SessionRequest& request = session_.request;
    if (!request.preset.isEmpty() && !std::exchange(hasTakenNamed_, true)) {
        if (const PresetEntry* named = presets_.find(request.preset))
            return *named;
        Q_EMIT refused(presets_.unknownText(request.preset));
    }
    const QString instance = session_.printer.instance();
    const bool asksForInstance = !instance.isEmpty() && request.printer == instance;
    const PresetEntry* last = presets_.find(lastUsedName());
    std::optional<PresetEntry> entry;
    if (request.remembers && !asksForInstance && last) {
        entry = *last;
        entry->preset = withoutSaved(last->preset, understoodSaved());
    }
    if (request.handed)
        return withHanded(session_.options.model()->file(), session_.printer.name(), *request.handed,
                          entry ? &*entry : nullptr);
    return entry;
}

GivenOptions SessionPresets::understoodSaved() const
{
    return understand(session_.options.model()->file(),
                      givenBy(OptionOrigin::saved, session_.printer.savedOptions()))
        .options;
}

void SessionPresets::tellLeftOut(const QList<LeftOut>& leftOut, const QString& presetTitle)
{
    QList<LeftOut> ofPreset;
    for (const LeftOut& left : leftOut) {
        if (left.origin == OptionOrigin::typed)
            Q_EMIT refused(left.sentence);
        else if (left.origin == OptionOrigin::remembered)
            ofPreset.append(left);
        else
            Q_EMIT notice(tr("A saved setting was left out. %1").arg(left.sentence));
    }
    if (ofPreset.isEmpty())
        return;
    // With nobody there to look, half of a preset is not what was asked for.
    const QString sentence = leftOutSentence(presetTitle, ofPreset);
    if (session_.request.panelsChangeOptions)
        Q_EMIT notice(sentence);
    else
        Q_EMIT refused(sentence);
}

void SessionPresets::chooseStarting(const std::optional<PresetEntry>& used)
{
    const PresetEntry* chosen = used ? &*used : presets_.findInstance(session_.printer.instance());
    if (used && used->kind == PresetKind::lastUsed && !used->preset.basedOn.isEmpty()) {
        const PresetEntry* base = presets_.find(used->preset.basedOn);
        if (base && isAsPreset(*session_.options.model(), session_.page.settings(), base->preset, {}))
            chosen = base;
    }
    if (!chosen)
        return;
    const auto same = std::ranges::find_if(presets_.entries(),
                                           [&](const PresetEntry& entry) { return entry.isSame(*chosen); });
    if (same != presets_.entries().end())
        presets_.choose(PresetEntry(*same));
}

// Everything by the printer's defaults, and over them the preset's options. A preset without texts for the
// back leaves those alone.
QList<LeftOut> SessionPresets::resetTo(const PresetEntry& entry)
{
    PpdModel& model = *session_.options.model();
    const QMap<QString, QString>& options = entry.preset.options;
    for (auto it = printerDefaults_.cbegin(); it != printerDefaults_.cend(); ++it) {
        const bool stays = isAboutBack(it.key()) && !options.contains(it.key());
        if (!stays && model.value(it.key()) != it.value())
            model.restore({{it.key(), it.value()}});
    }
    for (const QString& key : QSet<QString>(model.changedKeys())) {
        if (model.choiceCount(key) > 0 && !printerDefaults_.contains(key))
            model.restore({{key, {}}});
    }
    const PresetOptions wanted = optionsOf(model, entry.preset, model.values());
    const QList<LeftOut> leftOut = wanted.leftOut + model.apply(wanted.given).leftOut;
    session_.options.takeLoadedSheet(session_.options.keeper()->offer());
    return leftOut;
}

void SessionPresets::apply(const PresetEntry& entry)
{
    if (!session_.options.keeper())
        return;
    session_.options.keeper()->showSheetName();
    const QMap<QString, QString> before = session_.options.model()->values();
    const PageSettings pageBefore = session_.page.settings();
    const PageSettings pageAfter = withPreset(pageBefore, entry.preset);
    const QList<LeftOut> leftOut = resetTo(entry);
    session_.options.noteStep(before, [this, pageBefore, pageAfter, entry, chosenBefore = presets_.chosen()] {
        session_.page.set(withoutPreset(session_.page.settings(), pageAfter, pageBefore));
        if (presets_.chosen().isSame(entry))
            presets_.choose(chosenBefore);
    });
    Q_EMIT pageWanted(pageAfter);
    presets_.choose(PresetEntry(entry));
    Q_EMIT applied(entry.title());
    tellLeftOut(leftOut, entry.title());
}

Preset SessionPresets::capture(const PresetContents& contents) const
{
    const OptionChanges& options = session_.options;
    if (!options.model())
        return {};
    session_.panels.save();
    options.keeper()->settleSaved();
    return capturePreset(*options.model(), options.settings()->values(), session_.page.settings(),
                         printerDefaults_, contents);
}

void SessionPresets::save(const QString& name, const PresetContents& contents)
{
    if (!session_.options.model() || name.isEmpty())
        return;
    Preset preset = capture(contents);
    preset.name = name;
    presets_.save(preset);
}

bool SessionPresets::isAsChosen() const
{
    const PpdModel* model = session_.options.model();
    const Preset& chosen = presets_.chosen().preset;
    // How another program's pages are laid out is no setting of the printer's.
    const PageSettings& page = session_.page.settings();
    const PageSettings compared = session_.request.document ? withPreset(page, chosen) : page;
    return !model || isAsPreset(*model, compared, chosen, session_.options.filledIn());
}

Preset SessionPresets::usedNow(const PresetContents& contents) const
{
    const OptionChanges& options = session_.options;
    QMap<QString, QString> unchosen = printerDefaults_;
    for (const GivenOption& option : understoodSaved())
        unchosen.insert(option.key, option.value);
    const QVariantMap saved = options.settings()->values();
    const PageSettings& page = session_.page.settings();
    Preset last = contents.backText ? capturePreset(*options.model(), saved, page, unchosen, contents)
                                    : captureLastUsed(*options.model(), saved, page, unchosen);
    // The next time it is filled in again, by what is loaded then.
    const QMap<QString, QString>& filledIn = options.filledIn();
    for (auto it = filledIn.cbegin(); it != filledIn.cend(); ++it) {
        if (!options.chosen().contains(it.key()) && last.options.value(it.key()) == *it) {
            last.options.remove(it.key());
            last.changed.remove(it.key());
        }
    }
    // An application's page is not what the user's next photo is to have.
    if (session_.request.document || session_.request.scaling) {
        const PresetEntry* before = presets_.find(lastUsedName());
        last.page = before ? before->preset.page : QMap<QString, QString>();
    }
    if (presets_.chosen().kind == PresetKind::named && isAsChosen())
        last.basedOn = presets_.chosen().preset.name;
    return last;
}

} // namespace halvern
