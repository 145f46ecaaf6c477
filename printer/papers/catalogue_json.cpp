// SPDX-License-Identifier: MIT
#include "printer/papers/catalogue_json.h"

#include <QDateTime>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>

namespace halvern {

namespace {

/// Catalogues have two levels. Deeper ones are not to be mostly white.
constexpr int kMaxIndent = 8;

QByteArray quoted(const QString& text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.sliced(1, list.size() - 2);
}

QByteArray scalarJson(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::LongLong:
        return QByteArray::number(value.toLongLong());
    case QMetaType::ULongLong:
        return QByteArray::number(value.toULongLong());
    case QMetaType::Double:
        return std::isfinite(value.toDouble())
                   ? QByteArray::number(value.toDouble(), 'g', QLocale::FloatingPointShortest)
                   : QByteArray("null");
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::QByteArray:
        return '"' + value.toByteArray().toBase64() + '"';
    case QMetaType::QDateTime:
        return quoted(value.toDateTime().toString(Qt::ISODateWithMs));
    default:
        return quoted(value.toString());
    }
}

void writeValue(const QVariant& value, QIODevice& device, int depth)
{
    const QByteArray indent(std::min(depth, kMaxIndent) * 4, ' ');
    const char* separator = "\n";
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        device.write("{");
        for (auto entry = map.begin(); entry != map.end(); ++entry, separator = ",\n") {
            device.write(separator + indent + "    " + quoted(entry.key()) + ": ");
            writeValue(entry.value(), device, depth + 1);
        }
        device.write(map.isEmpty() ? QByteArray("}") : '\n' + indent + '}');
    } else if (value.typeId() == QMetaType::QVariantList) {
        const QVariantList list = value.toList();
        device.write("[");
        for (const QVariant& element : list) {
            device.write(separator + indent + "    ");
            writeValue(element, device, depth + 1);
            separator = ",\n";
        }
        device.write(list.isEmpty() ? QByteArray("]") : '\n' + indent + ']');
    } else {
        device.write(scalarJson(value));
    }
}

} // namespace

void writeCatalogueJson(const QVariantMap& catalogue, QIODevice& device)
{
    writeValue(catalogue, device, 0);
    device.write("\n");
}

} // namespace halvern
