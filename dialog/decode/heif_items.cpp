// SPDX-License-Identifier: MIT
// Where the packed pictures of an HEIF file lie: its library does not tell.
#include "dialog/decode/packed_data.h"

#include <algorithm>
#include <set>

namespace halvern {

namespace {

/// Reads a box's numbers, and zeros behind its end.
class BoxReader {
public:
    explicit BoxReader(FileBytes bytes) : rest_(bytes) {}

    quint64 number(int bytes)
    {
        quint64 value = 0;
        for (; bytes > 0; --bytes, skip(1))
            value = value << 8 | (rest_.empty() ? 0 : rest_.front());
        return value;
    }

    void skip(size_t bytes) { rest_ = rest_.subspan(std::min(bytes, rest_.size())); }

    bool isAtEnd() const { return rest_.empty(); }

    FileBytes rest() const { return rest_; }

private:
    FileBytes rest_;
};

constexpr quint32 type(const char (&name)[5])
{
    return quint32(name[0]) << 24 | quint32(name[1]) << 16 | quint32(name[2]) << 8 | quint32(name[3]);
}

// Calls back with each box's type and what is in it.
template <typename Take> void forEachBox(FileBytes bytes, Take take)
{
    while (bytes.size() >= 8) {
        BoxReader reader(bytes);
        quint64 size = reader.number(4);
        const auto name = quint32(reader.number(4));
        if (size == 1)
            size = reader.number(8);
        const size_t head = bytes.size() - reader.rest().size();
        if (size == 0 || size > bytes.size())
            size = bytes.size();
        if (size < head)
            return;
        take(name, bytes.subspan(head, size - head));
        bytes = bytes.subspan(size);
    }
}

FileBytes findBox(FileBytes bytes, quint32 wanted)
{
    FileBytes found;
    forEachBox(bytes, [&](quint32 name, FileBytes body) {
        if (name == wanted && found.empty())
            found = body;
    });
    return found;
}

// The items that hold packed pictures, but for those that are not printed.
std::set<quint64> picturesIn(FileBytes meta)
{
    std::set<quint64> pictures;
    BoxReader items(findBox(meta, type("iinf")));
    const bool isShort = items.number(1) == 0;
    items.skip(3 + (isShort ? 2 : 4));
    forEachBox(items.rest(), [&](quint32, FileBytes body) {
        BoxReader item(body);
        const quint64 version = item.number(1);
        item.skip(3);
        const quint64 id = item.number(version == 2 ? 2 : 4);
        item.skip(2);
        const auto kind = quint32(item.number(4));
        if (version >= 2 && (kind == type("hvc1") || kind == type("av01")))
            pictures.insert(id);
    });
    BoxReader references(findBox(meta, type("iref")));
    const int idBytes = references.number(1) == 0 ? 2 : 4;
    references.skip(3);
    forEachBox(references.rest(), [&](quint32 name, FileBytes body) {
        if (name == type("thmb") || name == type("auxl"))
            pictures.erase(BoxReader(body).number(idBytes));
    });
    return pictures;
}

} // namespace

bool hasHeifHole(FileBytes file)
{
    const FileBytes box = findBox(file, type("meta"));
    const FileBytes meta = box.subspan(std::min<size_t>(4, box.size()));
    const std::set<quint64> pictures = picturesIn(meta);
    BoxReader places(findBox(meta, type("iloc")));
    const quint64 version = places.number(1);
    places.skip(3);
    const auto sizes = int(places.number(2));
    const int offsetBytes = sizes >> 12;
    const int lengthBytes = sizes >> 8 & 15;
    const int baseBytes = sizes >> 4 & 15;
    const int indexBytes = version == 0 ? 0 : sizes & 15;
    places.skip(version < 2 ? 2 : 4);
    while (!places.isAtEnd()) {
        const bool isPicture = pictures.contains(places.number(version < 2 ? 2 : 4));
        const quint64 how = version == 0 ? 0 : places.number(2) & 15;
        const bool isInFile = places.number(2) == 0 && how == 0;
        const quint64 base = places.number(baseBytes);
        for (quint64 parts = places.number(2); parts > 0 && !places.isAtEnd(); --parts) {
            places.skip(size_t(indexBytes));
            const size_t from = std::min<quint64>(base + places.number(offsetBytes), file.size());
            const size_t length = std::min<quint64>(places.number(lengthBytes), file.size() - from);
            if (isPicture && isInFile && hasHole(file.subspan(from, length)))
                return true;
        }
    }
    return false;
}

} // namespace halvern
