// SPDX-License-Identifier: MIT
#include "printer/papers/paper_list.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace halvern {

namespace {

constexpr double kMaxMillimetres = 10'000.0;
constexpr double kMaxDotsPerInch = 20'000.0;
constexpr int kMaxSurface = 999;
constexpr int kMaxTone = 32;

struct Fault {
    QString text;
};

/// A value of the list, with the words that lead a reader to it.
struct Place {
    QJsonValue value;
    QString where;

    [[noreturn]] void fail(const QString& advice) const
    {
        throw Fault{where.isEmpty() ? advice : QStringLiteral("%1: %2").arg(where, advice)};
    }

    Place member(const QString& name) const
    {
        return {value[name], where.isEmpty() ? name : QStringLiteral("%1.%2").arg(where, name)};
    }

    QList<Place> elements(const QString& advice) const
    {
        if (!value.isArray() || value.toArray().isEmpty())
            fail(advice);
        QList<Place> places;
        const QJsonArray array = value.toArray();
        for (const QJsonValue& element : array)
            places.append({element, QStringLiteral("%1[%2]").arg(where).arg(places.size())});
        return places;
    }

    bool isGiven() const { return !value.isUndefined(); }

    /// Tenths of the number, which has at most one decimal place.
    qint64 tenths(double most, const QString& advice) const
    {
        const double number = value.toDouble(-1.0);
        const double tenths = number * 10.0;
        if (number <= 0.0 || number > most || std::abs(tenths - std::round(tenths)) > 1e-6)
            fail(advice);
        return std::llround(tenths);
    }

    qint64 whole(int least, int most, const QString& advice) const
    {
        const double number = value.toDouble(least - 1.0);
        if (number < least || number > most || number != std::floor(number))
            fail(advice);
        return qint64(number);
    }

    void allow(const QStringList& names) const
    {
        const QStringList given = value.toObject().keys();
        for (const QString& name : given) {
            if (!names.contains(name))
                fail(QStringLiteral("\"%1\" is not known here; use %2")
                         .arg(name, names.join(QStringLiteral(", "))));
        }
    }
};

class PaperListReader {
public:
    PaperList read(const QJsonDocument& document);

private:
    void readAbilities(const Place& abilities);
    void readPaper(const Place& paper);
    void readSheet(const Place& paper);
    void readRoll(const Place& paper);
    void readRecords(const Place& records);
    QVariantMap recordOf(const Place& paper) const;
    void add(const QString& key, const QVariantMap& record, const Place& paper);

    PaperList list_;
    QHash<QString, QString> origin_;
};

const QString kWidthAdvice = QStringLiteral("give millimetres with at most one decimal place, such as 152.4");
const QString kSurfaceAdvice = QStringLiteral("give a surface code, such as 1");
const QString kResolutionAdvice =
    QStringLiteral("give dots per inch with at most one decimal place, such as 300");

PaperList PaperListReader::read(const QJsonDocument& document)
{
    const Place top{document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()),
                    QString()};
    const Place papers = document.isArray() ? Place{top.value, QStringLiteral("papers")}
                                            : top.member(QStringLiteral("papers"));
    if (const Place abilities = top.member(QStringLiteral("abilities"));
        document.isObject() && !papers.isGiven() && abilities.isGiven())
        abilities.fail(QStringLiteral("give the papers too, as \"papers\""));
    if (!papers.isGiven() || papers.value.isObject()) {
        readRecords(papers.isGiven() ? papers : top);
    } else {
        const QString advice =
            QStringLiteral("give a list of papers with at least one, or a map of records by key");
        for (const Place& paper : papers.elements(advice))
            readPaper(paper);
    }
    if (document.isObject() && papers.isGiven()) {
        top.allow({QStringLiteral("abilities"), QStringLiteral("papers")});
        readAbilities(top.member(QStringLiteral("abilities")));
    }
    return std::move(list_);
}

void PaperListReader::readAbilities(const Place& abilities)
{
    if (!abilities.isGiven())
        return;
    if (!abilities.value.isObject())
        abilities.fail(QStringLiteral("give a map, such as {\"duplex\": true}"));
    const QString duplex = QStringLiteral("duplex");
    const QString extraFeatures = QStringLiteral("extraFeatures");
    abilities.allow({duplex, extraFeatures});
    for (const auto& [name, ability] :
         {std::pair{duplex, &list_.duplex}, {extraFeatures, &list_.extraFeatures}}) {
        const Place place = abilities.member(name);
        if (place.isGiven() && !place.value.isBool())
            place.fail(QStringLiteral("give true or false"));
        if (place.isGiven())
            *ability = place.value.toBool();
    }
}

void PaperListReader::readPaper(const Place& paper)
{
    const bool sheet = paper.member(QStringLiteral("sheet")).isGiven();
    const bool roll = paper.member(QStringLiteral("roll")).isGiven();
    if (!paper.value.isObject() || sheet == roll)
        paper.fail(
            QStringLiteral("give each paper either \"sheet\" with its name or \"roll\" with its width"));
    if (sheet)
        readSheet(paper);
    else
        readRoll(paper);
}

void PaperListReader::readSheet(const Place& paper)
{
    paper.allow({QStringLiteral("sheet"), QStringLiteral("width"), QStringLiteral("surface"),
                 QStringLiteral("resolutions"), QStringLiteral("tones"), QStringLiteral("note")});
    const Place name = paper.member(QStringLiteral("sheet"));
    if (name.value.toString().isEmpty())
        name.fail(QStringLiteral("give the paper's name, a text that is not empty"));
    QVariantMap record = recordOf(paper);
    record[QStringLiteral("paperName")] = name.value.toString();
    if (const Place width = paper.member(QStringLiteral("width")); width.isGiven())
        record[QStringLiteral("paperWidth")] = width.tenths(kMaxMillimetres, kWidthAdvice);
    if (const Place surface = paper.member(QStringLiteral("surface")); surface.isGiven())
        record[QStringLiteral("paperSurface")] = surface.whole(0, kMaxSurface, kSurfaceAdvice);
    const Place resolutions = paper.member(QStringLiteral("resolutions"));
    for (const Place& resolution : resolutions.elements(QStringLiteral("give a list, such as [300, 610]"))) {
        const qint64 tenths = resolution.tenths(kMaxDotsPerInch, kResolutionAdvice);
        record[QStringLiteral("paperResolution")] = tenths;
        add(QStringLiteral("%1-r%2").arg(name.value.toString()).arg(tenths / 10), record, resolution);
    }
}

void PaperListReader::readRoll(const Place& paper)
{
    paper.allow({QStringLiteral("roll"), QStringLiteral("surfaces"), QStringLiteral("resolutions"),
                 QStringLiteral("tones"), QStringLiteral("note")});
    QVariantMap record = recordOf(paper);
    const qint64 width = paper.member(QStringLiteral("roll")).tenths(kMaxMillimetres, kWidthAdvice);
    record[QStringLiteral("paperWidth")] = width;
    const QList<Place> resolutions = paper.member(QStringLiteral("resolutions"))
                                         .elements(QStringLiteral("give a list, such as [300, 610]"));
    const Place surfaces = paper.member(QStringLiteral("surfaces"));
    for (const Place& surface :
         surfaces.elements(QStringLiteral("give a list of surface codes, such as [1, 2]"))) {
        const qint64 code = surface.whole(0, kMaxSurface, kSurfaceAdvice);
        record[QStringLiteral("paperSurface")] = code;
        for (const Place& resolution : resolutions) {
            const qint64 tenths = resolution.tenths(kMaxDotsPerInch, kResolutionAdvice);
            record[QStringLiteral("paperResolution")] = tenths;
            add(QStringLiteral("w%1s%2r%3").arg(width).arg(code).arg(tenths / 10), record, resolution);
        }
    }
}

/// What sheets and rolls have in common. Tone 0 is always allowed and has no bit; tone n has bit n - 1.
QVariantMap PaperListReader::recordOf(const Place& paper) const
{
    quint64 mask = 0;
    if (const Place tones = paper.member(QStringLiteral("tones"));
        tones.isGiven() && !tones.value.toArray().isEmpty()) {
        for (const Place& tone : tones.elements(QString())) {
            const qint64 position =
                tone.whole(1, kMaxTone, QStringLiteral("give a tone from 1 to %1").arg(kMaxTone));
            mask |= quint64(1) << (position - 1);
        }
    } else if (tones.isGiven() && !tones.value.isArray()) {
        tones.fail(QStringLiteral("give a list of tones, such as [1, 2], or leave it out"));
    }
    return {{QStringLiteral("paperTone"), mask}};
}

void PaperListReader::add(const QString& key, const QVariantMap& record, const Place& paper)
{
    if (origin_.contains(key))
        paper.fail(QStringLiteral("makes the record \"%1\" once more; %2 has made it already. Take one out")
                       .arg(key, origin_.value(key)));
    origin_.insert(key, paper.where);
    list_.records.insert(key, record);
}

void PaperListReader::readRecords(const Place& records)
{
    const QJsonObject map = records.value.toObject();
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        const Place record = records.member(entry.key());
        if (!record.value.isObject())
            record.fail(QStringLiteral("give a record, such as {\"paperWidth\": 1524}"));
        const QVariantMap fields = record.value.toObject().toVariantMap();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (field->typeId() != QMetaType::QString && field->toDouble() < 0.0)
                record.member(field.key()).fail(QStringLiteral("give a number that is not below zero"));
        }
        list_.records.insert(entry.key(), fields);
    }
}

} // namespace

PaperListResult readPaperList(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        // The parser points at the unexpected character or just behind it.
        const QByteArray before = json.first(std::clamp<qsizetype>(error.offset - 1, 0, json.size()));
        const qsizetype line = before.count('\n') + 1;
        const qsizetype column = before.size() - before.lastIndexOf('\n');
        return {std::nullopt, QStringLiteral("line %1, near column %2: this is not JSON: %3")
                                  .arg(line)
                                  .arg(column)
                                  .arg(error.errorString())};
    }
    if (json.contains("\\u0000"))
        return {std::nullopt,
                QStringLiteral("a text holds the character \\u0000, which cannot be packed; take it out")};
    try {
        return {PaperListReader().read(document), QString()};
    } catch (const Fault& fault) {
        return {std::nullopt, fault.text};
    }
}

} // namespace halvern
