// SPDX-License-Identifier: MIT
#include "dialog/page/caption.h"

#include "platform/foundation/display_text.h"

#include <QDateTime>
#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QLocale>
#include <QTransform>

#include <algorithm>

namespace halvern {

namespace {

constexpr int kLetters = 100;         // pixels that shapes are made in, before they are scaled
constexpr double kLetterShare = 0.62; // of the place's height
constexpr int kLongest = 300;

QString valueOf(const QString& token, const QString& path, int number, const PhotoDetails& details)
{
    if (token == QLatin1StringView("[F]"))
        return QFileInfo(path).fileName();
    if (token == QLatin1StringView("[T]"))
        return details.title;
    if (token == QLatin1StringView("[C]"))
        return QString::number(number);
    const QDateTime taken = QDateTime::fromString(details.taken, QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    if (!taken.isValid())
        return {};
    if (token == QLatin1StringView("[DATE]"))
        return QLocale().toString(taken.date(), QLocale::ShortFormat);
    // "[YYYY]" is the format's own "yyyy"; months are large there, too.
    QString format = token.mid(1, token.size() - 2);
    format.replace(QLatin1Char('Y'), QLatin1Char('y')).replace(QLatin1Char('D'), QLatin1Char('d'));
    return taken.toString(format);
}

} // namespace

bool needsDetails(const QString& pattern)
{
    return std::ranges::any_of(kCaptionTokens, [&](const CaptionToken& row) {
        const QLatin1StringView token(row.token);
        return token != QLatin1StringView("[F]") && token != QLatin1StringView("[C]") &&
               pattern.contains(token);
    });
}

QString captionFor(const QString& pattern, const QString& path, int number, const PhotoDetails& details)
{
    QString text;
    for (qsizetype i = 0; i < pattern.size();) {
        const auto row = std::ranges::find_if(kCaptionTokens, [&](const CaptionToken& each) {
            return QStringView(pattern).sliced(i).startsWith(QLatin1StringView(each.token));
        });
        if (row == kCaptionTokens.end()) {
            text += pattern[i++];
            continue;
        }
        const QString token = QString::fromLatin1(row->token);
        text += displayText(valueOf(token, path, number, details), kLongest);
        i += token.size();
    }
    return displayText(text, kLongest).trimmed();
}

QPainterPath captionShapes(const QString& text, const QRectF& place, int quarterTurns)
{
    const bool isAcross = quarterTurns % 2 != 0;
    const QSizeF room = isAcross ? place.size().transposed() : place.size();
    if (text.isEmpty() || room.isEmpty())
        return {};
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(kLetters);
    font.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(font);
    const double scale = room.height() * kLetterShare / kLetters;
    const QString shown = metrics.elidedText(text, Qt::ElideMiddle, room.width() / scale);
    QPainterPath shapes;
    shapes.addText(QPointF(-metrics.horizontalAdvance(shown) / 2.0, metrics.capHeight() / 2.0), font, shown);
    QTransform toPlace;
    toPlace.translate(place.center().x(), place.center().y());
    toPlace.rotate(90.0 * quarterTurns);
    toPlace.scale(scale, scale);
    return toPlace.map(shapes);
}

} // namespace halvern
