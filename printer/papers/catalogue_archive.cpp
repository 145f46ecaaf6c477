// SPDX-License-Identifier: MIT
#include "printer/papers/catalogue_archive.h"

#include <QHash>
#include <QString>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace halvern {

namespace {

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};

using Plist = std::unique_ptr<void, PlistDeleter>;

class CatalogueArchiver {
public:
    CatalogueArchiver() : objects_(plist_new_array())
    {
        plist_array_append_item(objects_.get(), plist_new_string("$null"));
    }

    QByteArray archive(const QVariantMap& catalogue);

private:
    quint64 place(plist_t object);
    quint64 archived(const QVariant& value);
    quint64 archivedMap(const QVariantMap& map);
    quint64 archivedList(const QVariantList& list);
    quint64 classEntry(const char* name);
    plist_t scalar(const QVariant& value) const;

    Plist objects_;
    quint64 count_ = 1;
    QHash<QString, quint64> texts_;
    QHash<quint64, quint64> numbers_;
    QHash<QByteArray, quint64> classes_;
};

QByteArray CatalogueArchiver::archive(const QVariantMap& catalogue)
{
    const Plist archive(plist_new_dict());
    plist_t top = plist_new_dict();
    plist_dict_set_item(top, "root", plist_new_uid(archivedMap(catalogue)));
    plist_dict_set_item(archive.get(), "$version", plist_new_uint(100000));
    plist_dict_set_item(archive.get(), "$archiver", plist_new_string("NSKeyedArchiver"));
    plist_dict_set_item(archive.get(), "$top", top);
    plist_dict_set_item(archive.get(), "$objects", objects_.release());
    char* bytes = nullptr;
    uint32_t size = 0;
    plist_to_bin(archive.get(), &bytes, &size);
    const std::unique_ptr<char, decltype(&std::free)> owner(bytes, &std::free);
    return QByteArray(bytes, qsizetype(size));
}

/// Gives `object` a number in the archive.
quint64 CatalogueArchiver::place(plist_t object)
{
    plist_array_append_item(objects_.get(), object);
    return count_++;
}

/// The number of the value in the archive, 0 if it cannot be archived.
quint64 CatalogueArchiver::archived(const QVariant& value)
{
    quint64* known = nullptr;
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return archivedMap(value.toMap());
    case QMetaType::QVariantList:
        return archivedList(value.toList());
    case QMetaType::QString:
        known = &texts_[value.toString()];
        break;
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        known = &numbers_[value.toULongLong()];
        break;
    default:
        break;
    }
    if (known && *known)
        return *known;
    plist_t object = scalar(value);
    const quint64 number = object ? place(object) : 0;
    if (known)
        *known = number;
    return number;
}

plist_t CatalogueArchiver::scalar(const QVariant& value) const
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return plist_new_uint(value.toULongLong());
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::QByteArray:
        return plist_new_data(value.toByteArray().constData(), quint64(value.toByteArray().size()));
    default:
        return nullptr;
    }
}

quint64 CatalogueArchiver::archivedMap(const QVariantMap& map)
{
    plist_t keys = plist_new_array();
    plist_t values = plist_new_array();
    plist_t object = plist_new_dict();
    plist_dict_set_item(object, "NS.keys", keys);
    plist_dict_set_item(object, "NS.objects", values);
    const quint64 number = place(object);
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        const quint64 value = archived(entry.value());
        if (value == 0)
            continue;
        plist_array_append_item(keys, plist_new_uid(archived(entry.key())));
        plist_array_append_item(values, plist_new_uid(value));
    }
    plist_dict_set_item(object, "$class", plist_new_uid(classEntry("NSDictionary")));
    return number;
}

quint64 CatalogueArchiver::archivedList(const QVariantList& list)
{
    plist_t values = plist_new_array();
    plist_t object = plist_new_dict();
    plist_dict_set_item(object, "NS.objects", values);
    const quint64 number = place(object);
    for (const QVariant& element : list) {
        if (const quint64 value = archived(element))
            plist_array_append_item(values, plist_new_uid(value));
    }
    plist_dict_set_item(object, "$class", plist_new_uid(classEntry("NSArray")));
    return number;
}

quint64 CatalogueArchiver::classEntry(const char* name)
{
    quint64& known = classes_[name];
    if (known)
        return known;
    plist_t names = plist_new_array();
    plist_array_append_item(names, plist_new_string(name));
    plist_array_append_item(names, plist_new_string("NSObject"));
    plist_t object = plist_new_dict();
    plist_dict_set_item(object, "$classname", plist_new_string(name));
    plist_dict_set_item(object, "$classes", names);
    known = place(object);
    return known;
}

} // namespace

QByteArray archiveOfCatalogue(const QVariantMap& catalogue)
{
    return CatalogueArchiver().archive(catalogue);
}

} // namespace halvern
