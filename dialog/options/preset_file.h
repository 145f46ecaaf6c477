// SPDX-License-Identifier: MIT
#pragma once

#include "dialog/options/preset.h"

#include <functional>

namespace halvern {

/// What is kept for a queue, with the sentence about what of it cannot be had.
struct KeptPresets {
    std::optional<Preset> lastUsed;
    QList<Preset> presets; ///< sorted by name
    QString problem;
};

/// The file in which one queue's presets are kept, in the user's data folder. Each change reads the file,
/// changes the one preset and writes the file whole, all under a lock: of two dialogs that save at once
/// neither loses what the other one saved. A file that cannot be understood is set aside under another name.
///
/// All of it reads and writes the disk, and may wait a second for the lock: workers only. What changes
/// something answers the sentence about a failure, empty on success; the file is then as it was.
class PresetFile {
public:
    explicit PresetFile(const QString& queue);

    const QString& path() const { return path_; }

    KeptPresets read() const;

    /// Keeps a preset in the place of the one with the same name.
    QString save(const Preset& preset) const;

    /// Refuses a name that another preset has.
    QString rename(const QString& from, const QString& to) const;

    QString remove(const QString& name) const;

    /// Keeps what was printed with last.
    QString remember(const Preset& preset) const;

    /// Keeps all of them; one whose name is taken gets a number behind it. `names`: how they are called now.
    QString add(const QList<Preset>& presets, QStringList* names) const;

private:
    using Edit = std::function<QString(QJsonObject& root)>;

    KeptPresets readKept() const;
    QString change(const Edit& edit) const;
    PresetDocument load() const;
    QString setAside(const QString& why) const;

    QString queue_;
    QString path_;
};

/// A preset and the queue that it is kept for.
struct QueuesPreset {
    QString queue;
    Preset preset;
};

/// The presets that other queues have for a printer of this make and model. Workers only.
QList<QueuesPreset> presetsForModel(const QString& makeAndModel, const QString& exceptQueue);

/// Presets in a file of the user's choice. Workers only.
struct ImportedPresets {
    QList<Preset> presets;
    QString problem;
};

ImportedPresets importPresets(const QString& path);
QString exportPresets(const QString& path, const QList<Preset>& presets);

} // namespace halvern
