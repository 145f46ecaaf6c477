// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace halvern {

/// What a document is, by what is in it: whoever hands one over says nothing of it.
enum class DocumentKind { unknown, pdf, postScript, picture };

/// How much of a document's start and end is looked at.
inline constexpr qint64 kKindBytes = 1024;

/// Takes its first bytes. Any thread.
DocumentKind kindOf(const QByteArray& start);

/// The ending of its file's name with the dot; empty if unknown.
QString endingOf(const QByteArray& start);

/// As what it is sent to the print server, a MIME type. A picture is made into pages before.
QString mimeTypeOf(DocumentKind kind);

/// The sentence for one that cannot be printed; empty if it can. `end` are its last bytes.
QString documentProblem(DocumentKind kind, qint64 size, const QByteArray& end);

} // namespace halvern
