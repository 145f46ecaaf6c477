// SPDX-License-Identifier: MIT
// What a session starts with and what it keeps: presets, and what was printed with last.
#include "dialog/session/dialog_session.h"

#include "dialog/session/starting_options.h"
#include "platform/printing/print_settings.h"

#include <algorithm>

namespace halvern {

// Whoever names an instance of the saved options wants these, and not what was printed with last.
std::optional<PresetEntry> DialogSession::startingPreset()
{
    if (!request_.preset.isEmpty() && !std::exchange(hasTakenPreset_, true)) {
        if (const PresetEntry* named = presets_.find(request_.preset))
            return *named;
        Q_EMIT refused(presets_.unknownText(request_.preset));
    }
    const bool asksForInstance = !printer_.instance().isEmpty() && request_.printer == printer_.instance();
    const PresetEntry* last = presets_.find(lastUsedName());
    std::optional<PresetEntry> entry;
    if (request_.remembers && !asksForInstance && last) {
        entry = *last;
        entry->preset = withoutSaved(last->preset, understoodSaved());
    }
    if (request_.handed)
        return withHanded(model_->file(), printerName(), *request_.handed, entry ? &*entry : nullptr);
    return entry;
}

GivenOptions DialogSession::understoodSaved() const
{
    return understand(model_->file(), givenBy(OptionOrigin::saved, printer_.savedOptions())).options;
}

void DialogSession::takeStartingPage(const PageWishes& wishes, const std::optional<PresetEntry>& preset)
{
    if (preset && !pageIsUsers_)
        page_.set(startingPage(page_.settings(), preset->preset, request_, wishes));
    page_.takeWishes(wishes);
    pageIsUsers_ = pageIsUsers_ || !wishes.scaling.isEmpty() || wishes.isCollated;
}

void DialogSession::tellLeftOut(const QList<LeftOut>& leftOut, const QString& presetTitle)
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
    if (request_.panelsChangeOptions)
        Q_EMIT notice(sentence);
    else
        Q_EMIT refused(sentence);
}

void DialogSession::chooseStartingPreset(const std::optional<PresetEntry>& used)
{
    const PresetEntry* chosen = used ? &*used : presets_.findInstance(printer_.instance());
    if (used && used->kind == PresetKind::lastUsed && !used->preset.basedOn.isEmpty()) {
        const PresetEntry* base = presets_.find(used->preset.basedOn);
        if (base && isAsPreset(*model_, page(), base->preset, {}))
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
PresetOptions DialogSession::resetTo(const PresetEntry& entry)
{
    const QMap<QString, QString>& options = entry.preset.options;
    for (auto it = printerDefaults_.cbegin(); it != printerDefaults_.cend(); ++it) {
        const bool stays = isAboutBack(it.key()) && !options.contains(it.key());
        if (!stays && model_->value(it.key()) != it.value())
            model_->restore({{it.key(), it.value()}});
    }
    for (const QString& key : QSet<QString>(model_->changedKeys())) {
        if (model_->choiceCount(key) > 0 && !printerDefaults_.contains(key))
            model_->restore({{key, {}}});
    }
    PresetOptions wanted = optionsOf(*model_, entry.preset, model_->values());
    wanted.leftOut += model_->apply(wanted.given).leftOut;
    takeLoadedSheet(keeper_->offer());
    return wanted;
}

void DialogSession::applyPreset(const PresetEntry& entry)
{
    if (!model_ || !keeper_)
        return;
    keeper_->showSheetName();
    const QMap<QString, QString> before = model_->values();
    PresetStep step{page(), withPreset(page(), entry.preset), presets_.chosen(), entry};
    const QList<LeftOut> leftOut = resetTo(entry).leftOut;
    QMap<QString, QString> replaced;
    const QMap<QString, QString> after = model_->values();
    QMap<QString, QString> all = before;
    all.insert(after);
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        const QString& key = it.key();
        if (before.contains(key) && after.contains(key) && before.value(key) == after.value(key))
            continue;
        replaced.insert(key, before.value(key));
        storeInSettings(key);
        keeper_->forget(key);
        panels_.tell(key, after.value(key));
    }
    presetStep_ = step;
    history_.noteStep(replaced);
    // With what the panels' rules make of it.
    panels_.later([this] { tellChanges(); });
    setPage(step.after);
    presets_.choose(PresetEntry(entry));
    Q_EMIT presetApplied(entry.title());
    tellLeftOut(leftOut, entry.title());
}

Preset DialogSession::capture(const PresetContents& contents)
{
    if (!model_)
        return {};
    panels_.save();
    keeper_->settleSaved();
    return capturePreset(*model_, settings_->values(), page(), printerDefaults_, contents);
}

void DialogSession::savePreset(const QString& name, const PresetContents& contents)
{
    if (!model_ || name.isEmpty())
        return;
    Preset preset = capture(contents);
    preset.name = name;
    presets_.save(preset);
}

bool DialogSession::isAsChosen() const
{
    const Preset& chosen = presets_.chosen().preset;
    // How another program's pages are laid out is no setting of the printer's.
    const PageSettings compared = document() ? withPreset(page(), chosen) : page();
    return !model_ || isAsPreset(*model_, compared, chosen, filledIn_);
}

Preset DialogSession::usedNow() const
{
    QMap<QString, QString> unchosen = printerDefaults_;
    for (const GivenOption& option : understoodSaved())
        unchosen.insert(option.key, option.value);
    Preset last = captureLastUsed(*model_, settings_->values(), page(), unchosen);
    // The next time it is filled in again, by what is loaded then.
    for (auto it = filledIn_.cbegin(); it != filledIn_.cend(); ++it) {
        if (!history_.chosen().contains(it.key()) && last.options.value(it.key()) == *it) {
            last.options.remove(it.key());
            last.changed.remove(it.key());
        }
    }
    // An application's page is not what the user's next photo is to have.
    if (document() || request_.scaling) {
        const PresetEntry* before = presets_.find(lastUsedName());
        last.page = before ? before->preset.page : QMap<QString, QString>();
    }
    if (presets_.chosen().kind == PresetKind::named && isAsChosen())
        last.basedOn = presets_.chosen().preset.name;
    return last;
}

void DialogSession::rememberWhenSent(PrintRun* run)
{
    connect(run, &PrintRun::submitted, this,
            [this, queue = printerName(), last = usedNow()] { presets_.remember(queue, last); });
}

} // namespace halvern
