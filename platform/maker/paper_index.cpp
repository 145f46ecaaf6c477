// SPDX-License-Identifier: MIT
#include "platform/maker/paper_index.h"

#include "platform/foundation/description.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/string_additions.h"

#include <QSet>

namespace halvern {

namespace {

constexpr int kTenths = 10;

// Up to here a real number becomes a whole one.
constexpr double kWhole64 = 9.2e18;

// The text of a number (or a text as it is); nothing for anything else.
std::optional<QString> decimalText(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (!isNumber(value))
        return std::nullopt;
    if (value.typeId() == QMetaType::Double)
        return shortestDouble(value.toDouble());
    if (value.typeId() == QMetaType::Bool)
        return QString::number(int(value.toBool()));
    return value.toString();
}

// The low 32 bits of a number, or the number that a text starts with; 0 for anything else.
quint32 lowBits(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return quint32(leadingInteger(value.toString()));
    if (value.typeId() == QMetaType::Double) {
        const double number = value.toDouble();
        return number > -kWhole64 && number < kWhole64 ? quint32(qint64(number)) : 0U;
    }
    return isNumber(value) ? quint32(value.toULongLong()) : 0U;
}

// Titles in the order met, each once; the set keeps a paper with very many resolutions affordable.
struct TitleList {
    QStringList titles;
    QSet<int> seen;

    void add(int dotsPerInch)
    {
        if (seen.contains(dotsPerInch))
            return;
        seen.insert(dotsPerInch);
        titles.append(QStringLiteral("%1 dpi").arg(dotsPerInch));
    }
};

class IndexBuilder {
public:
    void add(const QVariant& recordOrNot)
    {
        const PaperRecord record = readPaperRecord(recordOrNot);
        // A record that is rejected below offers its tones all the same.
        result_.tones |= record.tones;
        TitleList* list = nullptr;
        if (record.sheetName) {
            list = &listOfSheet(*record.sheetName);
        } else if (record.widthCode) {
            list = listOfRoll(*record.widthCode, record.surfaceCode);
        } else {
            result_.badPapers.append(recordOrNot);
            return;
        }
        if (list)
            list->add(record.dotsPerInch);
    }

    IndexedCatalogue take()
    {
        for (auto it = names_.begin(); it != names_.end(); ++it)
            result_.index.names.insert(result_.index.names.cend(), it.key(), it->titles);
        for (auto width = widths_.begin(); width != widths_.end(); ++width) {
            ResolutionTitles surfaces;
            for (auto it = width->begin(); it != width->end(); ++it)
                surfaces.insert(surfaces.cend(), it.key(), it->titles);
            result_.index.widths.insert(result_.index.widths.cend(), width.key(), surfaces);
        }
        return std::move(result_);
    }

private:
    TitleList& listOfSheet(const QString& name)
    {
        const auto known = names_.find(name);
        if (known != names_.end())
            return *known;
        result_.namesMet.append(name);
        return names_[name];
    }

    // A roll without a surface has its place in the index, but no list.
    TitleList* listOfRoll(const QString& width, const std::optional<QString>& surface)
    {
        auto surfaces = widths_.find(width);
        if (surfaces == widths_.end()) {
            result_.widthsMet.append(width);
            surfaces = widths_.insert(width, {});
        }
        return surface ? &(*surfaces)[*surface] : nullptr;
    }

    IndexedCatalogue result_;
    QMap<QString, TitleList> names_;
    QMap<QString, QMap<QString, TitleList>> widths_;
};

QVariantMap toVariantMap(const ResolutionTitles& titles)
{
    QVariantMap map;
    for (auto it = titles.cbegin(); it != titles.cend(); ++it)
        map.insert(map.cend(), it.key(), it.value());
    return map;
}

} // namespace

QVariantMap PaperIndex::asDictionary() const
{
    QVariantMap widthMap;
    for (auto it = widths.cbegin(); it != widths.cend(); ++it)
        widthMap.insert(widthMap.cend(), it.key(), toVariantMap(it.value()));
    return {{QStringLiteral("com.halvern.tessarin.paper.name"), toVariantMap(names)},
            {QStringLiteral("com.halvern.tessarin.paper.width"), widthMap}};
}

PaperRecord readPaperRecord(const QVariant& recordOrNot)
{
    const QVariantMap fields = recordOrNot.toMap();
    PaperRecord record;
    const QVariant name = fields.value(QStringLiteral("paperName"));
    if (name.typeId() == QMetaType::QString && !name.toString().isEmpty())
        record.sheetName = name.toString();
    record.widthCode = decimalText(fields.value(QStringLiteral("paperWidth")));
    if (record.widthCode && record.widthCode->isEmpty())
        record.widthCode.reset();
    record.surfaceCode = decimalText(fields.value(QStringLiteral("paperSurface")));
    record.dotsPerInch = int(lowBits(fields.value(QStringLiteral("paperResolution")))) / kTenths;
    record.tones = paperToneOf(fields);
    return record;
}

QStringList sortedPaperKeys(const PaperCatalogue& catalogue)
{
    return KSTRVL_NSStringAdditions::sortedNumerically(catalogue.keys());
}

IndexedCatalogue indexCatalogue(const PaperCatalogue& catalogue)
{
    IndexBuilder builder;
    for (const QString& key : sortedPaperKeys(catalogue))
        builder.add(*catalogue.constFind(key));
    return builder.take();
}

std::optional<QString> paperWidthTitle(const QString& widthCode)
{
    if (widthCode.isEmpty())
        return std::nullopt;
    const QString tenths = widthCode.right(1);
    const QString fraction = tenths == QLatin1String("0") ? QStringLiteral("") : u'.' + tenths;
    return widthCode.chopped(1) + fraction + QStringLiteral(" mm");
}

QString sheetPaperKey(const QString& name, int dotsPerInch)
{
    return QStringLiteral("%1-r%2").arg(name, QString::number(dotsPerInch));
}

QString rollPaperKey(const QString& widthCode, const QString& surfaceCode, int dotsPerInch)
{
    return QStringLiteral("w%1s%2r%3").arg(widthCode, surfaceCode, QString::number(dotsPerInch));
}

quint32 paperToneOf(const QVariantMap& record)
{
    return lowBits(record.value(QStringLiteral("paperTone")));
}

} // namespace halvern
