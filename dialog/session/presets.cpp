// SPDX-License-Identifier: MIT
#include "dialog/session/presets.h"

#include "dialog/session/preset_use.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/near_names.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace halvern {

namespace {

// What lpoptions calls "queue/instance" is offered by the instance's name.
QList<PresetEntry> instancesOf(const QString& queue, ppd_file_t* file, const SavedOptions& saved)
{
    QList<PresetEntry> entries;
    for (auto it = saved.byPrinter.cbegin(); it != saved.byPrinter.cend(); ++it) {
        if (it.key() == queue || queueOf(it.key()) != queue)
            continue;
        PresetEntry entry{PresetKind::savedOptions, {}, it.key()};
        entry.preset.name = it.key().mid(queue.size() + 1);
        for (const OptionValue& option : saved.optionsOf(it.key()))
            entry.preset.options.insert(option.key, option.value);
        entry.preset = understoodPreset(file, entry.preset);
        entries.append(entry);
    }
    return entries;
}

} // namespace

QString PresetEntry::title() const
{
    switch (kind) {
    case PresetKind::printerDefaults:
        return printerDefaultsName();
    case PresetKind::lastUsed:
        return lastUsedName();
    case PresetKind::otherQueue:
        return Presets::tr("%1 (from %2)").arg(preset.name, origin);
    case PresetKind::savedOptions:
    case PresetKind::named:
        break;
    }
    return preset.name;
}

void Presets::take(const QString& queue, ppd_file_t* file, const KeptPresets& kept, const SavedOptions& saved)
{
    queue_ = queue;
    makeAndModel_ = makeAndModelOf(file);
    instances_ = instancesOf(queue, file, saved);
    others_.clear();
    chosen_ = {};
    fill(kept);
}

void Presets::leave()
{
    queue_.clear();
    makeAndModel_.clear();
    kept_ = {};
    printerDefaults_.clear();
    instances_.clear();
    others_.clear();
    entries_.clear();
    chosen_ = {};
    Q_EMIT changed();
}

void Presets::fill(const KeptPresets& kept)
{
    kept_ = kept;
    PresetEntry defaults;
    defaults.preset.options = printerDefaults_;
    entries_ = {
        defaults,
        PresetEntry{PresetKind::lastUsed, kept.lastUsed.value_or(Preset()), {}, kept.lastUsed.has_value()}};
    for (const Preset& preset : kept.presets)
        entries_.append({PresetKind::named, preset});
    entries_ += instances_ + others_;
    const auto same =
        std::ranges::find_if(entries_, [this](const PresetEntry& entry) { return entry.isSame(chosen_); });
    chosen_ = same == entries_.end() ? defaults : *same;
    Q_EMIT changed();
}

void Presets::setPrinterDefaults(const QMap<QString, QString>& values)
{
    printerDefaults_ = values;
    fill(KeptPresets(kept_));
}

// Later: it looks into every queue's file.
void Presets::lookForOthers()
{
    QPointer<Presets> self(this);
    disk_.async([self, queue = queue_, model = makeAndModel_] {
        const QList<QueuesPreset> found = presetsForModel(model, queue);
        mainQueue().async([self, queue, found] {
            if (self && self->queue_ == queue)
                self->takeOthers(found);
        });
    });
}

void Presets::readOthers()
{
    takeOthers(presetsForModel(makeAndModel_, queue_));
}

// In the place of what an earlier look has found: somebody may have been at another printer in between.
void Presets::takeOthers(const QList<QueuesPreset>& found)
{
    if (found.isEmpty() && others_.isEmpty())
        return;
    others_.clear();
    for (const QueuesPreset& other : found)
        others_.append({PresetKind::otherQueue, other.preset, other.queue});
    fill(KeptPresets(kept_));
}

const PresetEntry* Presets::findInstance(const QString& fullName) const
{
    const auto found = std::ranges::find_if(entries_, [&](const PresetEntry& entry) {
        return entry.kind == PresetKind::savedOptions && entry.origin == fullName;
    });
    return found == entries_.end() ? nullptr : &*found;
}

const PresetEntry* Presets::find(const QString& name) const
{
    const QString wanted = presetName(name);
    for (const PresetEntry& entry : entries_) {
        const bool isMeant = entry.kind == PresetKind::printerDefaults ? isPrinterDefaultsName(wanted)
                             : entry.kind == PresetKind::lastUsed      ? isLastUsedName(wanted)
                                                                       : entry.preset.name == wanted;
        if (isMeant && entry.isThere)
            return &entry;
    }
    return nullptr;
}

void Presets::choose(const PresetEntry& entry)
{
    chosen_ = entry;
    Q_EMIT changed();
}

// Does the work and reads the file again, which another dialog may have changed too.
void Presets::run(const Work& work, const std::function<void(bool isDone)>& then)
{
    QPointer<Presets> self(this);
    disk_.async([self, queue = queue_, work, then] {
        const PresetFile file(queue);
        const QString problem = work(file);
        const KeptPresets kept = file.read();
        mainQueue().async([self, queue, problem, kept, then] {
            if (!self)
                return;
            if (!problem.isEmpty())
                Q_EMIT self->failed(problem);
            if (self->queue_ != queue)
                return;
            self->fill(kept);
            if (then)
                then(problem.isEmpty());
        });
    });
}

void Presets::save(const Preset& preset)
{
    run([preset](const PresetFile& file) { return file.save(preset); },
        [this, preset](bool isDone) {
            if (isDone)
                choose({PresetKind::named, preset});
        });
}

void Presets::rename(const QString& from, const QString& to)
{
    const bool wasChosen = chosen_.kind == PresetKind::named && chosen_.preset.name == from;
    run([from, to](const PresetFile& file) { return file.rename(from, to); },
        [this, wasChosen, to](bool isDone) {
            if (const PresetEntry* renamed = find(to); renamed && wasChosen && isDone)
                choose(PresetEntry(*renamed));
        });
}

void Presets::remove(const QString& name)
{
    run([name](const PresetFile& file) { return file.remove(name); });
}

void Presets::remember(const QString& queue, const Preset& preset)
{
    if (queue == queue_) {
        run([preset](const PresetFile& file) { return file.remember(preset); });
        return;
    }
    QPointer<Presets> self(this);
    disk_.async([self, queue, preset] {
        const QString problem = PresetFile(queue).remember(preset);
        mainQueue().async([self, problem] {
            if (self && !problem.isEmpty())
                Q_EMIT self->failed(problem);
        });
    });
}

void Presets::importFrom(const QString& path)
{
    auto names = std::make_shared<QStringList>();
    run(
        [path, names](const PresetFile& file) {
            const ImportedPresets read = importPresets(path);
            const QString problem = read.presets.isEmpty() ? QString() : file.add(read.presets, names.get());
            if (!problem.isEmpty())
                names->clear();
            return problem.isEmpty() ? read.problem : problem;
        },
        [this, names](bool) {
            if (!names->isEmpty())
                Q_EMIT imported(*names);
        });
}

void Presets::exportTo(const QString& path, const QList<Preset>& presets)
{
    run([path, presets](const PresetFile&) { return exportPresets(path, presets); });
}

QList<Preset> Presets::named() const
{
    return kept_.presets;
}

QString Presets::unknownText(const QString& name) const
{
    QStringList names;
    for (const PresetEntry& entry : entries_) {
        if (entry.isThere && entry.kind != PresetKind::otherQueue)
            names.append(entry.title());
    }
    const QStringList near = nearNames(name, names);
    const QString sentence = tr("\"%1\" has no preset \"%2\".").arg(queue_, name) + QLatin1Char(' ');
    return near.isEmpty() ? sentence + tr("It has: %1.").arg(listText(names))
                          : sentence + tr("Did you mean %1?").arg(listText(near));
}

} // namespace halvern
