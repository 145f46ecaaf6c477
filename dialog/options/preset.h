// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include <optional>

namespace halvern {

/// The longest name of a preset, in characters.
inline constexpr qsizetype kLongestPresetName = 100;

/// Settings of one printer that were kept: under a name, or as what was printed with last. A value;
/// docs/preset-format.md describes how it is written.
struct Preset {
    QString name;         ///< empty for what was printed with last
    QString makeAndModel; ///< of the printer that it was made for
    QDateTime saved;
    QString basedOn; ///< of what was printed with last: the preset that it was
    /// Every option with its value, so that the preset stays what it was when the printer's defaults change.
    QMap<QString, QString> options;
    QSet<QString> changed;       ///< the options that did not have the printer's default
    QMap<QString, QString> page; ///< what the dialog itself decides, by names of our own

    bool operator==(const Preset&) const = default;
};

/// A name as it is kept: one line without control characters or blanks around it. Empty if nothing is left,
/// or if it is too long.
QString presetName(const QString& typed);

QJsonObject toJson(const Preset& preset);

/// Nothing if it is no preset: without options, with values that are no texts, or beyond all measure.
std::optional<Preset> presetFromJson(const QJsonObject& object);

/// What a file holds, or the sentence that says why it cannot be used.
struct PresetDocument {
    QJsonObject root;
    QString problem;
    bool isDamaged = false; ///< it is none of ours, or no longer whole
};

/// Takes a file's text apart. One by a newer version of the program is a problem but no damage.
PresetDocument readPresetDocument(const QByteArray& text);

/// The presets of a document; those that cannot be read are counted in `unreadable`.
QList<Preset> presetsOf(const QJsonObject& root, int* unreadable = nullptr);

/// A document without presets, and the text of a document.
QJsonObject emptyPresetDocument();
QByteArray presetText(const QJsonObject& root);

/// The names of the presets that are always there, in the user's language.
QString printerDefaultsName();
QString lastUsedName();

/// Whether a text names one of these, in the user's language or in English, whatever its case.
bool isPrinterDefaultsName(const QString& name);
bool isLastUsedName(const QString& name);

} // namespace halvern
