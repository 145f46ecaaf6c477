// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace halvern {

/// Turns an XML property list (UTF-8) into the binary form, so that both are read by one reader.
///
/// Throws CorruptArchive at the first thing that a property list cannot hold: a DTD subset, attributes beyond
/// a few, entities other than XML's five, nesting beyond 64 levels, over four million objects. Time and
/// memory stay in proportion to the text. Any thread.
QByteArray binaryFromXmlPropertyList(const QByteArray& xml);

/// Whether the bytes begin as XML does, after a byte order mark and white space.
bool looksLikeXml(const QByteArray& bytes);

} // namespace halvern
