// SPDX-License-Identifier: MIT
#pragma once

#include "printer/papers/paper_list.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace halvern {

/// A PPD attribute that a printer reports.
struct PpdAttribute {
    QByteArray keyword;
    QByteArray value;
};

/// The keyword of a catalogue's piece.
QByteArray pieceKeyword(qsizetype serial);

/// The run of pieces that carries an archive, ended by an empty one.
QList<PpdAttribute> runOf(const QByteArray& archive);

/// The attributes that carry a paper list: the archived catalogue in pieces of base64, ended by an empty
/// piece, and the abilities that the list names.
QList<PpdAttribute> attributesOf(const PaperList& list);

/// The attributes as lines of a PPD file.
QByteArray ppdLines(const QList<PpdAttribute>& attributes, const QByteArray& lineEnd = "\n");

/// The attributes as a filter reports them on its standard error, for CUPS to write into the queue's PPD.
QByteArray filterLines(const QList<PpdAttribute>& attributes);

/// The PPD with these attributes in place of those that it has: the whole old run of catalogue pieces goes,
/// however long it was. Everything else stays byte for byte.
QByteArray ppdWithAttributes(const QByteArray& ppd, const QList<PpdAttribute>& attributes);

} // namespace halvern
