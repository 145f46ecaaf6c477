// SPDX-License-Identifier: MIT
#include "dialog/page/layout.h"

#include "platform/foundation/display_text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <utility>

namespace halvern {

namespace {

struct LayoutWords {
    Q_DECLARE_TR_FUNCTIONS(Layouts)
};

constexpr int kVersion = 1;
constexpr qsizetype kMostCells = 200;
constexpr double kMostGap = 100.0; // millimetres
const QString kSchema = QStringLiteral("halvern-layout");

struct KindRow {
    LayoutKind kind;
    const char* word;
};

constexpr std::array kKinds{KindRow{LayoutKind::grid, "grid"}, KindRow{LayoutKind::size, "size"},
                            KindRow{LayoutKind::cells, "cells"}, KindRow{LayoutKind::pack, "pack"}};

/// Reads an object's members, and remembers the first that cannot be.
class Members {
public:
    explicit Members(const QJsonObject& object) : object_(object) {}

    double number(const char* name, double least, double most, double otherwise)
    {
        const QJsonValue value = object_.value(QLatin1StringView(name));
        if (value.isUndefined())
            return otherwise;
        const double found = value.toDouble(least - 1.0);
        if (found < least || found > most) {
            wrong(LayoutWords::tr("\"%1\" is no number from %2 to %3.")
                      .arg(QLatin1StringView(name), QString::number(least), QString::number(most)));
            return otherwise;
        }
        return found;
    }

    int whole(const char* name, int least, int most, int otherwise)
    {
        return int(number(name, least, most, otherwise));
    }

    bool flag(const char* name)
    {
        const QJsonValue value = object_.value(QLatin1StringView(name));
        if (!value.isUndefined() && !value.isBool())
            wrong(LayoutWords::tr("\"%1\" is neither true nor false.").arg(QLatin1StringView(name)));
        return value.toBool();
    }

    QString text(const char* name) { return object_.value(QLatin1StringView(name)).toString(); }

    // As many numbers as they are given names for.
    QList<double> numbers(const QJsonValue& value, qsizetype count, double most)
    {
        const QJsonArray array = value.toArray();
        QList<double> found;
        for (const QJsonValue& each : array)
            found.append(each.toDouble(-1.0));
        const bool isFit = found.size() == count && std::ranges::all_of(found, [&](double each) {
                               return each >= 0.0 && each <= most;
                           });
        if (!isFit) {
            wrong(LayoutWords::tr("A measure is not written as %1 numbers from 0 to %2.")
                      .arg(QString::number(count), QString::number(most)));
            return QList<double>(count, 0.0);
        }
        return found;
    }

    void wrong(const QString& sentence)
    {
        if (problem.isEmpty())
            problem = sentence;
    }

    QString problem;

private:
    const QJsonObject& object_;
};

bool isPhotoSize(const QSizeF& size)
{
    return size.width() >= kLeastPhoto && size.height() >= kLeastPhoto && size.width() <= kMostPhoto &&
           size.height() <= kMostPhoto;
}

QString badPhotoSize()
{
    return LayoutWords::tr("A photo is not from %1 to %2 mm wide and high.")
        .arg(QString::number(kLeastPhoto), QString::number(kMostPhoto));
}

QString nameIn(const QJsonObject& object)
{
    const QString language = QLocale().name().section(QLatin1Char('_'), 0, 0);
    const QJsonObject names = object.value(QLatin1StringView("names")).toObject();
    const QString name = names.value(language).toString(object.value(QLatin1StringView("name")).toString());
    return displayText(name, kLongestLayoutName).trimmed();
}

void readKind(Members& members, const QJsonObject& object, Layout& layout)
{
    const QString word = members.text("kind");
    const auto row = std::ranges::find_if(
        kKinds, [&](const KindRow& each) { return word == QLatin1StringView(each.word); });
    if (row == kKinds.end()) {
        members.wrong(LayoutWords::tr("\"kind\" is none of grid, size, cells and pack."));
        return;
    }
    layout.kind = row->kind;
    if (layout.kind == LayoutKind::grid) {
        layout.rows = members.whole("rows", 1, kMostRows, 1);
        layout.columns = members.whole("columns", 1, kMostRows, 1);
    } else if (layout.kind == LayoutKind::cells) {
        const QJsonArray cells = object.value(QLatin1StringView("cells")).toArray();
        if (cells.isEmpty() || cells.size() > kMostCells)
            members.wrong(LayoutWords::tr("\"cells\" does not hold 1 to %1 places.").arg(kMostCells));
        for (const QJsonValue& cell : cells) {
            const QList<double> at = members.numbers(cell, 4, kMostPhoto);
            layout.cells.append(QRectF(at[0], at[1], at[2], at[3]));
            if (!isPhotoSize(layout.cells.back().size()))
                members.wrong(badPhotoSize());
        }
    } else {
        const QList<double> size = members.numbers(object.value(QLatin1StringView("photo")), 2, kMostPhoto);
        layout.photo = {size[0], size[1]};
        if (!isPhotoSize(layout.photo))
            members.wrong(badPhotoSize());
        layout.most = members.whole("most", 0, int(kMostCells), 0);
    }
}

void readDefaults(Members& members, Layout& layout)
{
    layout.gap = members.number("gap", 0.0, kMostGap, 0.0);
    layout.turnsPhotos = members.flag("turnPhotos");
    layout.repeats = members.flag("repeat");
    layout.hasCutMarks = members.flag("cutMarks");
    layout.hasLine = members.flag("line");
    layout.border = members.number("border", 0.0, kMostBorder, 0.0);
    layout.margin = members.number("margin", 0.0, kMostMargin, 0.0);
    layout.caption = members.text("caption");
    if (layout.caption.size() > kLongestCaption)
        members.wrong(LayoutWords::tr("\"caption\" is longer than %1 characters.").arg(kLongestCaption));
    const QString scaling = members.text("scaling");
    if (scaling == QLatin1StringView("fill"))
        layout.scaling = Scaling::fill;
    else if (scaling == QLatin1StringView("fit"))
        layout.scaling = Scaling::fit;
    else if (!scaling.isEmpty())
        members.wrong(LayoutWords::tr("\"scaling\" is neither fit nor fill."));
}

} // namespace

SheetSettings withWishes(const SheetSettings& before, const SheetWishes& wishes)
{
    SheetSettings settings =
        wishes.replace(before) ? withLayout({}, wishes.layout.value_or(Layout())) : before;
    settings.repeats = wishes.repeats.value_or(settings.repeats);
    settings.caption = wishes.caption.value_or(settings.caption);
    settings.hasCutMarks = wishes.hasCutMarks.value_or(settings.hasCutMarks);
    settings.hasLine = wishes.hasLine.value_or(settings.hasLine);
    settings.border = wishes.border.value_or(settings.border);
    settings.margin = wishes.margin.value_or(settings.margin);
    settings.percent = wishes.percent.value_or(settings.percent);
    if (wishes.photo) {
        settings.photo = *wishes.photo;
        settings.corner = wishes.corner;
    }
    return settings;
}

Scaling scalingWith(Scaling before, const SheetWishes& wishes)
{
    if (wishes.percent)
        return Scaling::actualSize;
    if (wishes.layout && wishes.layout->scaling)
        return *wishes.layout->scaling;
    return wishes.photo && before == Scaling::actualSize ? Scaling::fit : before;
}

SheetSettings withLayout(const SheetSettings& before, const Layout& layout)
{
    SheetSettings settings = before;
    settings.layout = layout.id;
    settings.repeats = layout.repeats;
    settings.caption = layout.caption;
    settings.hasCutMarks = layout.hasCutMarks;
    settings.hasLine = layout.hasLine;
    settings.border = layout.border;
    settings.margin = layout.margin;
    return settings;
}

Layout keepingSettings(Layout layout, const SheetSettings& settings, Scaling scaling)
{
    layout.repeats = settings.repeats;
    layout.caption = settings.caption;
    layout.hasCutMarks = settings.hasCutMarks;
    layout.hasLine = settings.hasLine;
    layout.border = settings.border;
    layout.margin = settings.margin;
    layout.scaling = scaling == Scaling::actualSize ? std::nullopt : std::optional<Scaling>(scaling);
    return layout;
}

std::optional<Layout> layoutOfMeasures(const QString& id)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)x([0-9]+(?:\\.[0-9]+)?)(mm|in)?$"));
    const QRegularExpressionMatch match = pattern.match(id);
    if (!match.hasMatch())
        return std::nullopt;
    Layout layout;
    layout.id = id;
    const QSizeF measure(match.captured(1).toDouble(), match.captured(2).toDouble());
    if (match.captured(3).isEmpty()) {
        layout.kind = LayoutKind::grid;
        layout.rows = int(measure.width());
        layout.columns = int(measure.height());
        layout.gap = 4.0;
        const bool isWhole = layout.rows == measure.width() && layout.columns == measure.height();
        layout.name = LayoutWords::tr("%1 rows of %2").arg(layout.rows).arg(layout.columns);
        const bool isPossible = layout.rows >= 1 && layout.columns >= 1 && layout.rows <= kMostRows &&
                                layout.columns <= kMostRows;
        return isWhole && isPossible ? std::optional(layout) : std::nullopt;
    }
    layout.kind = LayoutKind::size;
    layout.photo = measure * (match.captured(3) == QLatin1StringView("in") ? 25.4 : 1.0);
    layout.gap = 2.0;
    layout.turnsPhotos = true;
    layout.scaling = Scaling::fill;
    layout.name =
        LayoutWords::tr("Photos of %1 × %2 %3").arg(match.captured(1), match.captured(2), match.captured(3));
    return isPhotoSize(layout.photo) ? std::optional(layout) : std::nullopt;
}

ReadLayout layoutFromJson(const QJsonObject& object, const QString& id)
{
    Members members(object);
    if (members.text("schema") != kSchema)
        return {{}, LayoutWords::tr("It is no layout: \"schema\" is not \"%1\".").arg(kSchema)};
    if (object.value(QLatin1StringView("version")).toInt(0) != kVersion)
        return {{}, LayoutWords::tr("It is of another version of this program.")};
    Layout layout;
    layout.id = id;
    layout.name = nameIn(object);
    if (layout.name.isEmpty())
        members.wrong(LayoutWords::tr("It has no \"name\"."));
    readKind(members, object, layout);
    readDefaults(members, layout);
    return members.problem.isEmpty() ? ReadLayout{layout, {}} : ReadLayout{{}, members.problem};
}

QJsonObject toJson(const Layout& layout)
{
    QJsonObject object{{QStringLiteral("schema"), kSchema},
                       {QStringLiteral("version"), kVersion},
                       {QStringLiteral("name"), layout.name},
                       {QStringLiteral("gap"), layout.gap},
                       {QStringLiteral("turnPhotos"), layout.turnsPhotos},
                       {QStringLiteral("repeat"), layout.repeats},
                       {QStringLiteral("cutMarks"), layout.hasCutMarks},
                       {QStringLiteral("line"), layout.hasLine},
                       {QStringLiteral("border"), layout.border},
                       {QStringLiteral("margin"), layout.margin},
                       {QStringLiteral("caption"), layout.caption}};
    for (const KindRow& row : kKinds) {
        if (row.kind == layout.kind)
            object.insert(QStringLiteral("kind"), QLatin1StringView(row.word));
    }
    if (layout.kind == LayoutKind::grid) {
        object.insert(QStringLiteral("rows"), layout.rows);
        object.insert(QStringLiteral("columns"), layout.columns);
    } else if (layout.kind == LayoutKind::cells) {
        QJsonArray cells;
        for (const QRectF& cell : layout.cells)
            cells.append(QJsonArray{cell.x(), cell.y(), cell.width(), cell.height()});
        object.insert(QStringLiteral("cells"), cells);
    } else {
        object.insert(QStringLiteral("photo"), QJsonArray{layout.photo.width(), layout.photo.height()});
        object.insert(QStringLiteral("most"), layout.most);
    }
    if (layout.scaling)
        object.insert(QStringLiteral("scaling"),
                      *layout.scaling == Scaling::fill ? QStringLiteral("fill") : QStringLiteral("fit"));
    return object;
}

} // namespace halvern
