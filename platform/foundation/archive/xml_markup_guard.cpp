// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/xml_markup_guard.h"

#include "platform/foundation/archive/property_list_object_table.h"

#include <algorithm>

namespace halvern {

namespace {

/// Longer than any tag or document type of a property list.
constexpr qsizetype kMaxTag = 256;

/// What the parser gets through in less than a second. A catalogue of 32 MiB without any space has 3.9
/// million.
constexpr quint32 kMaxTags = 4'000'000;

/// The position after the first `end` at or behind `from`; the end of the text if there is none.
qsizetype after(QByteArrayView xml, QByteArrayView end, qsizetype from)
{
    const qsizetype found = xml.indexOf(end, from);
    return found < 0 ? xml.size() : found + end.size();
}

/// The position after the tag that begins at `start`. Quoted values may hold any character.
qsizetype afterTag(QByteArrayView xml, qsizetype start)
{
    const qsizetype limit = std::min(xml.size(), start + kMaxTag);
    char quote = 0;
    for (qsizetype i = start + 1; i < limit; ++i) {
        const char c = xml[i];
        if (quote) {
            quote = c == quote ? 0 : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return i + 1;
        } else if (c == '[' || c == '<') {
            throw CorruptArchive{"its XML has a DTD subset or a broken tag"};
        }
    }
    if (limit == xml.size())
        throw CorruptArchive{"its XML ends inside a tag"};
    throw CorruptArchive{"its XML has a tag that is too long"};
}

} // namespace

void checkXmlMarkup(QByteArrayView xml)
{
    qsizetype position = 0;
    quint32 tags = 0;
    while (position < xml.size()) {
        const qsizetype start = position;
        if (xml[start] == '<' && ++tags > kMaxTags)
            throw CorruptArchive{"its XML has more than four million tags"};
        if (xml[start] != '<') {
            const qsizetype next = xml.indexOf('<', start);
            position = next < 0 ? xml.size() : next;
        } else if (const QByteArrayView rest = xml.sliced(start); rest.startsWith("<!--")) {
            position = after(xml, "-->", start + 4);
        } else if (rest.startsWith("<![CDATA[")) {
            position = after(xml, "]]>", start + 9);
        } else if (rest.startsWith("<?")) {
            position = after(xml, "?>", start + 2);
        } else {
            position = afterTag(xml, start);
        }
        if (position - start > kMaxXmlText)
            throw CorruptArchive{"its XML has a text of more than 16 MiB"};
    }
}

} // namespace halvern
