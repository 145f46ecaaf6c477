// SPDX-License-Identifier: MIT
#include "platform/foundation/description.h"

#include "platform/foundation/numbers.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>

namespace halvern {

namespace {

bool needsQuotes(const QString& text)
{
    const auto isPlain = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
               c == u'.' || c == u'_' || c == u'-';
    };
    return text.isEmpty() || !std::all_of(text.begin(), text.end(), isPlain);
}

void appendQuoted(QString& out, const QString& text)
{
    if (!needsQuotes(text)) {
        out += text;
        return;
    }
    out += u'"';
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            out += u'\\';
        if (c == u'\n')
            out += QLatin1StringView("\\n");
        else
            out += c;
    }
    out += u'"';
}

QString scalarDescription(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("(null)");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::Double:
        return shortestDouble(value.toDouble());
    case QMetaType::QByteArray:
        return u'<' + QString::fromLatin1(value.toByteArray().toHex()) + u'>';
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(Qt::ISODate);
    default:
        return value.toString();
    }
}

template <class Sequence, class Append> void appendSequence(QString& out, const Sequence& list, Append append)
{
    out += u'(';
    bool first = true;
    for (const auto& element : list) {
        if (!first)
            out += QLatin1StringView(", ");
        first = false;
        append(element);
    }
    out += u')';
}

void appendNested(QString& out, const QVariant& value)
{
    if (value.typeId() == QMetaType::QVariantMap) {
        out += u'{';
        const QVariantMap& map = *static_cast<const QVariantMap*>(value.constData());
        for (auto it = map.cbegin(); it != map.cend(); ++it) {
            appendQuoted(out, it.key());
            out += QLatin1StringView(" = ");
            appendNested(out, it.value());
            out += QLatin1StringView("; ");
        }
        if (out.endsWith(u' '))
            out.chop(1);
        out += u'}';
    } else if (value.typeId() == QMetaType::QVariantList) {
        appendSequence(out, value.toList(), [&](const QVariant& element) { appendNested(out, element); });
    } else if (value.typeId() == QMetaType::QStringList) {
        appendSequence(out, value.toStringList(), [&](const QString& text) { appendQuoted(out, text); });
    } else if (value.typeId() == QMetaType::QString) {
        appendQuoted(out, value.toString());
    } else {
        out += scalarDescription(value);
    }
}

bool areSameNumbers(const QVariant& left, const QVariant& right)
{
    // Wide enough for 64 bits with and without a sign, and for a double.
    const auto wide = [](const QVariant& value) -> long double {
        if (value.typeId() == QMetaType::Double)
            return value.toDouble();
        return value.typeId() == QMetaType::ULongLong ? static_cast<long double>(value.toULongLong())
                                                      : static_cast<long double>(value.toLongLong());
    };
    return wide(left) == wide(right);
}

bool areSameMaps(const QVariantMap& left, const QVariantMap& right)
{
    return left.size() == right.size() && std::equal(left.keyValueBegin(), left.keyValueEnd(),
                                                     right.keyValueBegin(), [](const auto& a, const auto& b) {
                                                         return a.first == b.first &&
                                                                isSameValue(a.second, b.second);
                                                     });
}

bool areSameLists(const QVariantList& left, const QVariantList& right)
{
    return left.size() == right.size() && std::equal(left.begin(), left.end(), right.begin(), isSameValue);
}

} // namespace

bool isNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

QString descriptionOf(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    QString out;
    appendNested(out, value);
    return out;
}

bool isSameValue(const QVariant& left, const QVariant& right)
{
    if (isNumber(left) && isNumber(right))
        return areSameNumbers(left, right);
    if (left.typeId() != right.typeId())
        return false;
    if (left.typeId() == QMetaType::QVariantMap) {
        return areSameMaps(*static_cast<const QVariantMap*>(left.constData()),
                           *static_cast<const QVariantMap*>(right.constData()));
    }
    if (left.typeId() == QMetaType::QVariantList) {
        return areSameLists(*static_cast<const QVariantList*>(left.constData()),
                            *static_cast<const QVariantList*>(right.constData()));
    }
    return left == right;
}

} // namespace halvern
