// SPDX-License-Identifier: MIT
#include "dialog/session/sheet_words.h"

#include "dialog/options/back_lines.h"
#include "platform/foundation/list_text.h"
#include "platform/foundation/numbers.h"
#include "platform/maker/backprint_text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace halvern {

namespace {

struct SheetWordsWords {
    Q_DECLARE_TR_FUNCTIONS(SheetWords)
};

const QString kLayout = QStringLiteral("layout");
const QString kRepeat = QStringLiteral("repeat");
const QString kCaption = QStringLiteral("caption");
const QString kCutMarks = QStringLiteral("cutMarks");
const QString kLine = QStringLiteral("line");
const QString kBorder = QStringLiteral("border");
const QString kMargin = QStringLiteral("margin");
const QString kPhotoSize = QStringLiteral("photoSize");
const QString kPercent = QStringLiteral("percent");
const QString kCorner = QStringLiteral("corner");

QString sizeText(const QSizeF& size)
{
    return size.isEmpty() ? QString()
                          : shortestDouble(size.width()) + QLatin1Char('x') + shortestDouble(size.height());
}

QString pointText(const QPointF& point)
{
    return shortestDouble(point.x()) + QLatin1Char(',') + shortestDouble(point.y());
}

void readNumber(const QMap<QString, QString>& texts, const QString& key, double least, double most,
                double& value)
{
    bool isNumber = false;
    const double read = texts.value(key).toDouble(&isNumber);
    if (isNumber && read >= least && read <= most)
        value = read;
}

std::optional<QPointF> cornerOf(const QString& text)
{
    bool hasX = false;
    bool hasY = false;
    const QPointF corner(text.section(QLatin1Char(','), 0, 0).toDouble(&hasX),
                         text.section(QLatin1Char(','), 1).toDouble(&hasY));
    const bool isPossible = hasX && hasY && std::min(corner.x(), corner.y()) >= 0.0 &&
                            std::max(corner.x(), corner.y()) <= kMostPhoto;
    return isPossible ? std::optional(corner) : std::nullopt;
}

QString millimetres(double points)
{
    return QString::number(points / kPointsPerMillimetre, 'f', 1);
}

} // namespace

QStringList sheetWords(const SheetSettings& settings, Scaling scaling, const LayoutLibrary& layouts)
{
    QStringList words;
    const Layout layout = layouts.find(settings.layout).value_or(Layout());
    const SheetSettings usual = withLayout({}, layout);
    const auto add = [&](bool isSaid, const QString& word, const QString& value) {
        if (isSaid)
            words << word << value;
    };
    const auto flag = [&](bool is, bool wasUsual, const QString& word) {
        if (is != wasUsual)
            words << QStringLiteral("--%1%2").arg(is ? QString() : QStringLiteral("no-"), word);
    };
    add(!settings.layout.isEmpty(), QStringLiteral("--layout"), settings.layout);
    flag(settings.repeats, usual.repeats, QStringLiteral("repeat"));
    if (settings.caption != usual.caption)
        words << QStringLiteral("--caption=") + settings.caption;
    flag(settings.hasCutMarks, usual.hasCutMarks, QStringLiteral("cut-marks"));
    flag(settings.hasLine, usual.hasLine, QStringLiteral("line"));
    add(settings.border != usual.border, QStringLiteral("--border"), shortestDouble(settings.border));
    add(settings.margin != usual.margin, QStringLiteral("--margin"), shortestDouble(settings.margin));
    const bool isSized = settings.layout.isEmpty() && !settings.photo.isEmpty();
    add(isSized, QStringLiteral("--photo-size"), sizeText(settings.photo));
    // Elsewhere the percentage says nothing.
    add(scaling == Scaling::actualSize && settings.percent != usual.percent, QStringLiteral("--photo-size"),
        shortestDouble(settings.percent) + QLatin1Char('%'));
    if (isSized && settings.corner)
        add(true, QStringLiteral("--corner"), pointText(*settings.corner));
    return words;
}

QString layoutInWords(const SheetSettings& settings, const LayoutLibrary& layouts, const SheetPlan& plan)
{
    QStringList parts;
    const std::optional<Layout> layout = layouts.find(settings.layout);
    if (layout && !layout->name.isEmpty())
        parts << layout->name
              << (plan.sheets.size() == 1 ? SheetWordsWords::tr("1 sheet")
                                          : SheetWordsWords::tr("%1 sheets").arg(plan.sheets.size()));
    else if (!settings.photo.isEmpty())
        parts << SheetWordsWords::tr("photos in %1 × %2 mm")
                     .arg(shortestDouble(settings.photo.width()), shortestDouble(settings.photo.height()));
    if (!settings.caption.isEmpty())
        parts << SheetWordsWords::tr("with captions");
    if (settings.hasCutMarks)
        parts << SheetWordsWords::tr("with cut marks");
    if (settings.border > 0.0)
        parts << SheetWordsWords::tr("white border %1 mm").arg(shortestDouble(settings.border));
    return listText(parts);
}

QMap<QString, QString> sheetTexts(const SheetSettings& settings)
{
    return {{kLayout, settings.layout},
            {kRepeat, trueOrFalse(settings.repeats)},
            {kCaption, settings.caption},
            {kCutMarks, trueOrFalse(settings.hasCutMarks)},
            {kLine, trueOrFalse(settings.hasLine)},
            {kBorder, shortestDouble(settings.border)},
            {kMargin, shortestDouble(settings.margin)},
            {kPhotoSize, sizeText(settings.photo)},
            {kPercent, shortestDouble(settings.percent)},
            {kCorner, settings.corner ? pointText(*settings.corner) : QString()}};
}

SheetSettings sheetsOf(const QMap<QString, QString>& texts, const SheetSettings& before)
{
    if (!texts.contains(kLayout))
        return before;
    const auto isOn = [&](const QString& key) { return texts.value(key) == QLatin1StringView("true"); };
    SheetSettings settings;
    settings.layout = texts.value(kLayout);
    settings.repeats = isOn(kRepeat);
    settings.caption = texts.value(kCaption).left(kLongestCaption);
    settings.hasCutMarks = isOn(kCutMarks);
    settings.hasLine = isOn(kLine);
    readNumber(texts, kBorder, 0.0, kMostBorder, settings.border);
    readNumber(texts, kMargin, 0.0, kMostMargin, settings.margin);
    readNumber(texts, kPercent, kLeastPercent, kMostPercent, settings.percent);
    settings.photo = photoSizeOf(texts.value(kPhotoSize)).value_or(QSizeF());
    settings.corner = cornerOf(texts.value(kCorner));
    return settings;
}

std::optional<QSizeF> photoSizeOf(const QString& text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^([0-9]+(?:\\.[0-9]+)?)x([0-9]+(?:\\.[0-9]+)?)(mm|in)?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const double unit = match.captured(3) == QLatin1StringView("in") ? kMillimetresPerInch : 1.0;
    const QSizeF size = QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * unit;
    const bool isPossible = std::min(size.width(), size.height()) >= kLeastPhoto &&
                            std::max(size.width(), size.height()) <= kMostPhoto;
    return isPossible ? std::optional(size) : std::nullopt;
}

QStringList linesOnBack(const JobValues& values)
{
    QStringList lines;
    for (int i = 1; i <= kBackLines; ++i) {
        const bool isOn =
            values.value(backLineSwitch(i)).compare(QLatin1StringView("true"), Qt::CaseInsensitive) == 0;
        const QString text = values.value(backLineText(i));
        if (isOn && !text.isEmpty())
            lines.append(backprint::stringWithUnsafeCharacters(text));
    }
    return lines;
}

QStringList sheetLines(const SheetPlan& plan, const std::vector<Photo>& photos)
{
    QStringList lines;
    for (size_t i = 0; i < plan.sheets.size(); ++i) {
        for (const PlacedPhoto& placed : plan.sheets[i].photos) {
            const QRectF seen = placed.layout.visible();
            lines.append(SheetWordsWords::tr("Sheet %1: %2, %3 x %4 mm at %5, %6 mm")
                             .arg(QString::number(i + 1), QFileInfo(photos[placed.photo].path).fileName(),
                                  millimetres(seen.width()), millimetres(seen.height()),
                                  millimetres(seen.left()), millimetres(seen.top())));
        }
    }
    return lines;
}

} // namespace halvern
