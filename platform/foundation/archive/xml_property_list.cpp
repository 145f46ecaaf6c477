// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/xml_property_list.h"

#include "platform/foundation/archive/binary_property_list_writer.h"
#include "platform/foundation/archive/property_list_object_table.h"
#include "platform/foundation/archive/xml_markup_guard.h"

#include <QBuffer>
#include <QDateTime>
#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <vector>

namespace halvern {

namespace {

/// An archive is flat: five levels, and what classes that we do not know keep in their fields.
constexpr std::size_t kMaxNesting = 64;

/// What is parsed and decoded in less than a second. A catalogue of 32 MiB without any space has 900,000.
constexpr quint32 kMaxXmlObjects = 1'100'000;

enum class Element { unknown, dictionary, array, key, string, integer, real, isTrue, isFalse, date, data };

Element elementOf(QStringView name)
{
    struct Name {
        const char16_t* text;
        Element element;
    };

    static constexpr std::array kNames{
        Name{u"key", Element::key},       Name{u"dict", Element::dictionary}, Name{u"array", Element::array},
        Name{u"string", Element::string}, Name{u"integer", Element::integer}, Name{u"real", Element::real},
        Name{u"true", Element::isTrue},   Name{u"false", Element::isFalse},   Name{u"date", Element::date},
        Name{u"data", Element::data},
    };
    const auto found = std::ranges::find_if(kNames, [name](const Name& known) { return name == known.text; });
    return found == kNames.end() ? Element::unknown : found->element;
}

class XmlPropertyListReader {
public:
    explicit XmlPropertyListReader(QIODevice* device) : xml_(device) { xml_.setNamespaceProcessing(false); }

    QByteArray read();

private:
    struct Container {
        bool dictionary = false;
        bool keyIsUid = false;
        quint32 firstObject = 0;
        std::size_t firstChild = 0;
    };

    void startElement();
    void open(bool dictionary);
    void close();
    void add(quint32 object, bool isKey);
    quint32 readScalar(Element element);
    quint32 addInteger(QByteArrayView text);
    quint32 addReal(QByteArrayView text);
    quint32 addDate(QByteArrayView text);
    quint32 addData(QByteArray text);
    QString text();

    QXmlStreamReader xml_;
    BinaryPropertyListWriter writer_;
    std::vector<Container> open_;
    std::vector<quint32> children_;
    std::optional<quint32> top_;
    std::optional<quint64> lastNumber_;
    bool lastIsUidKey_ = false;
    bool inPropertyList_ = false;
};

QByteArray XmlPropertyListReader::read()
{
    while (!xml_.atEnd()) {
        switch (xml_.readNext()) {
        case QXmlStreamReader::StartDocument:
            if (!xml_.documentEncoding().isEmpty() &&
                xml_.documentEncoding().compare(QLatin1StringView("utf-8"), Qt::CaseInsensitive) != 0)
                throw CorruptArchive{"its XML is not in UTF-8"};
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            if (!open_.empty())
                close();
            break;
        case QXmlStreamReader::Characters:
            if (!xml_.isWhitespace())
                throw CorruptArchive{"its XML has text outside the values"};
            break;
        case QXmlStreamReader::EntityReference:
            throw CorruptArchive{"its XML uses an unknown entity"};
        case QXmlStreamReader::Invalid:
            throw CorruptArchive{"its XML is not well formed"};
        default:
            break;
        }
    }
    if (!top_)
        throw CorruptArchive{"its XML holds no value"};
    return writer_.finish(*top_);
}

void XmlPropertyListReader::startElement()
{
    if (!inPropertyList_) {
        if (xml_.qualifiedName() != QLatin1StringView("plist"))
            throw CorruptArchive{"its XML is not a property list"};
        inPropertyList_ = true;
        return;
    }
    const Element element = elementOf(xml_.qualifiedName());
    if (element == Element::dictionary || element == Element::array) {
        open(element == Element::dictionary);
    } else {
        const quint32 object = readScalar(element);
        add(object, element == Element::key);
    }
}

void XmlPropertyListReader::open(bool dictionary)
{
    if (open_.size() >= kMaxNesting)
        throw CorruptArchive{"its XML is nested too deeply"};
    open_.push_back({dictionary, false, writer_.objectCount(), children_.size()});
}

void XmlPropertyListReader::close()
{
    const Container container = open_.back();
    open_.pop_back();
    const std::span<const quint32> children = std::span(children_).subspan(container.firstChild);
    quint32 object = 0;
    if (!container.dictionary) {
        object = writer_.addArray(children);
    } else if (container.keyIsUid && children.size() == 2 && lastNumber_) {
        writer_.dropFrom(container.firstObject);
        object = writer_.addUid(*lastNumber_);
    } else if (children.size() % 2 == 0) {
        object = writer_.addDictionary(children);
    } else {
        throw CorruptArchive{"its XML has a key without a value"};
    }
    children_.resize(container.firstChild);
    lastNumber_.reset();
    add(object, false);
}

/// Adds a finished object to the innermost open container.
void XmlPropertyListReader::add(quint32 object, bool isKey)
{
    if (object >= kMaxXmlObjects)
        throw CorruptArchive{"its XML has more than 1,100,000 values"};
    if (open_.empty()) {
        if (top_ || isKey)
            throw CorruptArchive{"its XML holds more than one value"};
        top_ = object;
        return;
    }
    Container& container = open_.back();
    const std::size_t position = children_.size() - container.firstChild;
    if (isKey != (container.dictionary && position % 2 == 0))
        throw CorruptArchive{"its XML does not pair keys with values"};
    if (position == 0)
        container.keyIsUid = isKey && lastIsUidKey_;
    children_.push_back(object);
}

quint32 XmlPropertyListReader::readScalar(Element element)
{
    const QString content = text();
    lastNumber_.reset();
    lastIsUidKey_ = false;
    switch (element) {
    case Element::key:
        lastIsUidKey_ = content == QLatin1StringView("CF$UID");
        [[fallthrough]];
    case Element::string:
        return writer_.addUtf8String(content.toUtf8());
    case Element::integer:
        return addInteger(content.trimmed().toLatin1());
    case Element::real:
        return addReal(content.trimmed().toLatin1());
    case Element::isTrue:
    case Element::isFalse:
        if (!content.trimmed().isEmpty())
            throw CorruptArchive{"its XML has a truth value with a text"};
        return writer_.addBoolean(element == Element::isTrue);
    case Element::date:
        return addDate(content.trimmed().toLatin1());
    case Element::data:
        return addData(content.toLatin1());
    default:
        throw CorruptArchive{"its XML has an unknown element"};
    }
}

/// Decimal, or hexadecimal behind "0x"; a sign comes first.
quint32 XmlPropertyListReader::addInteger(QByteArrayView text)
{
    const bool negative = text.startsWith('-');
    QByteArrayView digits = text.sliced(negative || text.startsWith('+') ? 1 : 0);
    const bool hexadecimal = digits.startsWith("0x") || digits.startsWith("0X");
    digits = digits.sliced(hexadecimal ? 2 : 0);
    quint64 number = 0;
    const auto [stop, error] = std::from_chars(digits.begin(), digits.end(), number, hexadecimal ? 16 : 10);
    if (error != std::errc() || stop != digits.end() || (negative && number > quint64(1) << 63))
        throw CorruptArchive{"its XML has a number that is none"};
    if (negative)
        return writer_.addSigned(qint64(0 - number));
    lastNumber_ = number;
    return number >> 63 ? writer_.addUnsigned(number) : writer_.addSigned(qint64(number));
}

quint32 XmlPropertyListReader::addReal(QByteArrayView text)
{
    const QByteArrayView digits = text.sliced(text.startsWith('+') && !text.startsWith("+-") ? 1 : 0);
    double number = 0.0;
    const auto [stop, error] = std::from_chars(digits.begin(), digits.end(), number);
    if (error != std::errc() || stop != digits.end())
        throw CorruptArchive{"its XML has a number that is none"};
    return writer_.addReal(number);
}

/// In this one form only: 2026-02-28T06:30:00Z.
quint32 XmlPropertyListReader::addDate(QByteArrayView text)
{
    static constexpr QByteArrayView kForm = "0000-00-00T00:00:00Z";
    std::array<int, 7> parts{};
    std::size_t part = 0;
    bool good = text.size() == kForm.size();
    for (qsizetype i = 0; good && i < kForm.size(); ++i) {
        if (kForm[i] != '0') {
            good = text[i] == kForm[i];
            ++part;
        } else {
            good = text[i] >= '0' && text[i] <= '9';
            parts[part] = parts[part] * 10 + (text[i] - '0');
        }
    }
    const QDate day(parts[0], parts[1], parts[2]);
    const QTime time(parts[3], parts[4], parts[5]);
    if (!good || !day.isValid() || !time.isValid())
        throw CorruptArchive{"its XML has a date that is none"};
    return writer_.addDate(double(QDate(2001, 1, 1).daysTo(day)) * 86400.0 +
                           time.msecsSinceStartOfDay() / 1000);
}

quint32 XmlPropertyListReader::addData(QByteArray text)
{
    const auto isSpace = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    text.erase(std::remove_if(text.begin(), text.end(), isSpace), text.end());
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    // A missing end is no error to Qt.
    if (!decoded || text.size() % 4 != 0)
        throw CorruptArchive{"its XML has data that are not base64"};
    return writer_.addData(*decoded);
}

/// The text of the current element, up to its end.
QString XmlPropertyListReader::text()
{
    QString all;
    for (;;) {
        switch (xml_.readNext()) {
        case QXmlStreamReader::Characters:
            all += xml_.text();
            if (all.size() > kMaxXmlText)
                throw CorruptArchive{"its XML has a text of more than 16 MiB"};
            break;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::EndElement:
            return all;
        default:
            throw CorruptArchive{"its XML is not well formed"};
        }
    }
}

} // namespace

bool looksLikeXml(const QByteArray& bytes)
{
    QByteArrayView start = bytes;
    if (start.startsWith("\xEF\xBB\xBF"))
        start = start.sliced(3);
    return start.trimmed().startsWith('<');
}

QByteArray binaryFromXmlPropertyList(const QByteArray& xml)
{
    if (xml.size() > kMaxArchiveBytes)
        throw CorruptArchive{"it is larger than 32 MiB"};
    checkXmlMarkup(xml);
    QBuffer device;
    device.setData(xml);
    device.open(QIODevice::ReadOnly);
    return XmlPropertyListReader(&device).read();
}

} // namespace halvern
