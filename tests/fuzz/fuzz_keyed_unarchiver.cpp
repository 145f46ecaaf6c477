// SPDX-License-Identifier: MIT
// Run it on a copy of the seeds, with the words of the format. The small quarantine keeps the sanitizer's own
// memory out of the limit:
//   mkdir -p build/fuzz/corpus && cp tests/{platform/fixtures,fuzz/seeds}/*.plist build/fuzz/corpus
//   export ASAN_OPTIONS=quarantine_size_mb=16
//   build/fuzz/bin/fuzz-keyed-unarchiver -dict=tests/fuzz/keyed_archive.dict -max_total_time=600
//       -rss_limit_mb=300 -max_len=65536 build/fuzz/corpus

#include "platform/foundation/archive/keyed_unarchiver.h"

#include <cstdlib>

using halvern::KeyedUnarchiver;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

struct Whole {
    quint64 values = 0;
    quint64 characters = 0;
};

/// Walks the decoded tree as a consumer would, and holds it to what the reader promises.
void walk(const QVariant& value, int depth, Whole& whole)
{
    require(value.isValid());
    whole.values += 1;
    if (value.typeId() == QMetaType::QVariantMap) {
        require(depth < KeyedUnarchiver::kMaxDepth);
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            whole.characters += quint64(entry.key().size());
            walk(entry.value(), depth + 1, whole);
        }
    } else if (value.typeId() == QMetaType::QVariantList) {
        require(depth < KeyedUnarchiver::kMaxDepth);
        const QVariantList list = value.toList();
        for (const QVariant& entry : list)
            walk(entry, depth + 1, whole);
    } else if (value.typeId() == QMetaType::QString) {
        whole.characters += quint64(value.toString().size());
    } else if (value.typeId() == QMetaType::QByteArray) {
        whole.characters += quint64(value.toByteArray().size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray archive(reinterpret_cast<const char*>(data), qsizetype(size));
    const KeyedUnarchiver::Result result = KeyedUnarchiver::unarchiveDictionary(archive);
    require(result.root.has_value() == result.failure.isEmpty());
    if (result.root) {
        Whole whole;
        walk(*result.root, 0, whole);
        require(whole.values <= KeyedUnarchiver::kMaxValues + 1);
        require(whole.characters <= KeyedUnarchiver::kMaxCharacters);
    }
    return 0;
}
