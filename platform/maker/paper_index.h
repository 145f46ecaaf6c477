// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/export.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

namespace HALVERN_EXPORT halvern {

/// What the printer knows of its papers: paper key -> record. A record's fields are "paperName" (a sheet's
/// name; rolls have none), "paperWidth" (tenths of a millimetre), "paperSurface" (a code), "paperResolution"
/// (tenths of a dot per inch) and "paperTone" (a bit mask).
using PaperCatalogue = QVariantMap;

/// Width code (decimal tenths of a millimetre) or surface code -> resolution titles ("300 dpi"), in the order
/// of the catalogue's keys.
using ResolutionTitles = QMap<QString, QStringList>;

/// A record's fields, read as leniently as its writers are careless.
struct PaperRecord {
    std::optional<QString> sheetName; ///< nothing for a roll
    std::optional<QString> widthCode;
    std::optional<QString> surfaceCode;
    int dotsPerInch = 0;
    quint32 tones = 0;
};

/// Reads a catalogue's value. Nothing in it is told from a value that is no record. Any thread.
PaperRecord readPaperRecord(const QVariant& recordOrNot);

/// The catalogue's keys in the numerical, case-insensitive order in which it is walked. Any thread.
QStringList sortedPaperKeys(const PaperCatalogue& catalogue);

/// The catalogue sorted for the paper menus.
struct PaperIndex {
    ResolutionTitles names;
    QMap<QString, ResolutionTitles> widths;

    bool operator==(const PaperIndex& other) const = default;

    /// The index as the dictionary of two entries that log lines show.
    QVariantMap asDictionary() const;
};

/// An index and what else one walk over the catalogue finds.
struct IndexedCatalogue {
    PaperIndex index;

    /// Names and width codes in the order in which the walk met them, each once.
    QStringList namesMet;
    QStringList widthsMet;

    /// All records' tones together, those of bad records too.
    quint32 tones = 0;

    /// The records that are neither a sheet nor a roll.
    QList<QVariant> badPapers;
};

/// Walks the catalogue in the numerical, case-insensitive order of its keys. Takes time in step with the
/// number of records, whatever is in them. Any thread.
IndexedCatalogue indexCatalogue(const PaperCatalogue& catalogue);

/// "152.4 mm" of "1524". Works on characters: "5" gives ".5 mm", and "0" gives " mm". Nothing for the empty
/// code. Any thread.
std::optional<QString> paperWidthTitle(const QString& widthCode);

/// The catalogue's keys for a sheet's and a roll's record. `dotsPerInch` is whole.
QString sheetPaperKey(const QString& name, int dotsPerInch);
QString rollPaperKey(const QString& widthCode, const QString& surfaceCode, int dotsPerInch);

/// A record's tone mask; 0 if it has none.
quint32 paperToneOf(const QVariantMap& record);

} // namespace halvern
