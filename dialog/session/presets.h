// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/preset_file.h"
#include "dialog/server/saved_options.h"
#include "platform/foundation/threads/work_queue.h"

#include <QObject>

struct ppd_file_s;
using ppd_file_t = ppd_file_s;

namespace halvern {

enum class PresetKind {
    printerDefaults,
    lastUsed,
    named,
    savedOptions, ///< an instance of the user's saved options; not ours to change
    otherQueue,   ///< kept for another queue with a printer of the same make and model
};

/// A preset as it is offered.
struct PresetEntry {
    PresetKind kind = PresetKind::printerDefaults;
    Preset preset;
    QString origin = {}; ///< the other queue, or the instance's full name
    bool isThere = true; ///< false: nothing was printed yet

    QString title() const;

    bool isSame(const PresetEntry& other) const
    {
        return kind == other.kind && preset.name == other.preset.name && origin == other.origin;
    }
};

/// The presets for the selected printer: what is offered, which one was chosen, and what the user does with
/// them. Main thread only. Nothing but readOthers() waits: the disk is a worker's, and changed() tells when
/// it has answered.
class Presets : public QObject {
    Q_OBJECT

public:
    Presets() = default;

    /// Another printer was selected; `kept` is what its file holds.
    void take(const QString& queue, ppd_file_t* file, const KeptPresets& kept, const SavedOptions& saved);

    /// What "Printer Defaults" means.
    void setPrinterDefaults(const QMap<QString, QString>& values);

    /// Looks for what other queues with a printer of the same make and model have; changed() follows.
    void lookForOthers();

    /// The same at once, for whoever may wait for the disk.
    void readOthers();

    /// None is selected any more.
    void leave();

    /// "Printer Defaults" and "Last Used" first.
    const QList<PresetEntry>& entries() const { return entries_; }

    /// The instance ("queue/instance") of the saved options; null if there is none.
    const PresetEntry* findInstance(const QString& fullName) const;

    /// The first with this name, in the order of the entries; null if there is none.
    const PresetEntry* find(const QString& name) const;

    /// Which one the settings come from.
    const PresetEntry& chosen() const { return chosen_; }

    void choose(const PresetEntry& entry);

    /// Keeps a preset, in the place of the one with the same name, and chooses it.
    void save(const Preset& preset);
    void rename(const QString& from, const QString& to);
    void remove(const QString& name);

    /// Keeps what was printed with on a queue.
    void remember(const QString& queue, const Preset& preset);

    /// Reads a file into the presets; nothing is applied.
    void importFrom(const QString& path);
    void exportTo(const QString& path, const QList<Preset>& presets);

    QList<Preset> named() const;

    /// The sentence for a name that none has, with the near ones.
    QString unknownText(const QString& name) const;

Q_SIGNALS:
    /// The entries or the chosen one are others.
    void changed();
    /// Something could not be kept or read; a sentence.
    void failed(const QString& sentence);
    /// Presets were read from a file.
    void imported(const QStringList& names);

private:
    using Work = std::function<QString(const PresetFile& file)>;

    void run(const Work& work, const std::function<void(bool isDone)>& then = {});
    void fill(const KeptPresets& kept);
    void takeOthers(const QList<QueuesPreset>& found);

    QString queue_;
    QString makeAndModel_;
    KeptPresets kept_;
    QMap<QString, QString> printerDefaults_;
    QList<PresetEntry> instances_;
    QList<PresetEntry> others_;
    QList<PresetEntry> entries_;
    PresetEntry chosen_;
    WorkQueue disk_; // one after the other
};

} // namespace halvern
