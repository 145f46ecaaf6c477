// SPDX-License-Identifier: MIT
#include "platform/foundation/info_property_list.h"

#include <QDateTime>
#include <QFile>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace halvern {

namespace {

struct PlistFree {
    void operator()(void* node) const { plist_free(node); }
};

struct CFree {
    void operator()(char* text) const { std::free(text); }
};

// A bundle's property list is a page of text; anything larger is not one.
constexpr qint64 kLargestInfoFile = 1 << 20;

QVariant toVariant(plist_t node);

QVariantMap toMap(plist_t node)
{
    QVariantMap map;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const std::unique_ptr<char, CFree> guard(static_cast<char*>(iterator));
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iterator, &key, &value);
        const std::unique_ptr<char, CFree> keyGuard(key);
        if (!key || !value)
            return map;
        map.insert(QString::fromUtf8(key), toVariant(value));
    }
}

QVariantList toList(plist_t node)
{
    QVariantList list;
    for (uint32_t i = 0; i < plist_array_get_size(node); ++i)
        list.append(toVariant(plist_array_get_item(node, i)));
    return list;
}

QVariant toVariant(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return qulonglong(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        char* text = nullptr;
        plist_get_string_val(node, &text);
        const std::unique_ptr<char, CFree> guard(text);
        return QString::fromUtf8(text);
    }
    case PLIST_ARRAY:
        return toList(node);
    case PLIST_DICT:
        return toMap(node);
    default:
        return {};
    }
}

std::optional<QVariantMap> failed(QString* why, const QString& reason)
{
    if (why)
        *why = reason;
    return std::nullopt;
}

} // namespace

std::optional<QVariantMap> readInfoPropertyList(const QString& path, QString* why)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(why, QStringLiteral("%1 cannot be read: %2.").arg(path, file.errorString()));
    if (file.size() > kLargestInfoFile)
        return failed(why, QStringLiteral("%1 is too large for a bundle's property list.").arg(path));
    const QByteArray bytes = file.readAll();
    plist_t parsed = nullptr;
    plist_from_memory(bytes.constData(), uint32_t(bytes.size()), &parsed);
    const std::unique_ptr<void, PlistFree> root(parsed);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return failed(why, QStringLiteral("%1 is not a property list with a dictionary.").arg(path));
    return toMap(root.get());
}

} // namespace halvern
