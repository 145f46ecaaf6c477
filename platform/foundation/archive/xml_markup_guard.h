// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

namespace halvern {

/// The parser takes seven times as much memory for a text.
inline constexpr qsizetype kMaxXmlText = 16 * 1024 * 1024;

/// Looks over the markup of an XML text before a parser sees it, in one pass and without memory.
///
/// QXmlStreamReader compares each attribute with all others before it reports the element (80,000 of them,
/// 800 KB, take seven seconds), and keeps a DTD subset's entities in many times their size. Throws
/// CorruptArchive for what would make it do so: long tags, more than four million of them, a DTD
/// subset, text or comments beyond kMaxXmlText. Anything else that is wrong is left for the parser to find.
/// Any thread.
void checkXmlMarkup(QByteArrayView xml);

} // namespace halvern
