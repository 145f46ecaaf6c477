// SPDX-License-Identifier: MIT
#include "dialog/program/photo_switches.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>

namespace halvern {

namespace {

struct PhotoSwitchesWords {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

// Each value for one photo after the other, the last one also for those that follow. The first that cannot be
// read, or nothing.
std::optional<QString> readEach(const QStringList& texts, QList<PhotoPlacement>& placements,
                                const std::function<bool(const QString&, PhotoPlacement&)>& read)
{
    for (qsizetype i = 0; i < std::max(texts.size(), placements.size()) && !texts.isEmpty(); ++i) {
        if (i == placements.size())
            placements.append(placements.isEmpty() ? PhotoPlacement() : placements.back());
        const QString& text = texts[std::min(i, texts.size() - 1)];
        if (!read(text, placements[i]))
            return text;
    }
    return std::nullopt;
}

bool readPosition(const QString& text, PhotoPlacement& placement)
{
    bool hasX = false;
    bool hasY = false;
    placement.position = {text.section(QLatin1Char(','), 0, 0).toDouble(&hasX),
                          text.section(QLatin1Char(','), 1).toDouble(&hasY)};
    return hasX && hasY && held(placement).position == placement.position;
}

bool readZoom(const QString& text, PhotoPlacement& placement)
{
    bool isNumber = false;
    placement.zoom = text.toDouble(&isNumber);
    return isNumber && placement.zoom >= 1.0 && placement.zoom <= kMostZoom;
}

bool readTurn(const QString& text, PhotoPlacement& placement)
{
    bool isNumber = false;
    const int degrees = text.toInt(&isNumber);
    placement.quarterTurns = degrees / 90;
    return isNumber && degrees >= 0 && degrees < 360 && degrees % 90 == 0;
}

bool readCopies(const QString& text, PhotoPlacement& placement)
{
    bool isNumber = false;
    placement.copies = text.toInt(&isNumber);
    return isNumber && placement.copies >= 1 && placement.copies <= kMostPhotoCopies;
}

} // namespace

PhotoSwitches::PhotoSwitches()
    : position_(QStringLiteral("position"),
                PhotoSwitchesWords::tr(
                    "Where the spare room or the cut goes: 0,0 is left and top, 1,1 right and bottom. Can "
                    "be given several times, for one photo after the other, as can the next three."),
                QStringLiteral("X,Y")),
      zoom_(QStringLiteral("zoom"),
            PhotoSwitchesWords::tr("Print a part of the photo this much larger, 1 to %1.").arg(kMostZoom),
            QStringLiteral("TIMES")),
      turn_(QStringLiteral("turn"),
            PhotoSwitchesWords::tr("Turn the photo clockwise: 0, 90, 180 or 270 degrees."),
            QStringLiteral("DEGREES")),
      copies_(QStringLiteral("photo-copies"),
              PhotoSwitchesWords::tr("Print the photo this often in each copy of the job, 1 to %1.")
                  .arg(kMostPhotoCopies),
              QStringLiteral("N"))
{
}

QString PhotoSwitches::read(const QCommandLineParser& parser, SessionRequest& request) const
{
    QList<PhotoPlacement>& placements = request.placements;
    if (const auto bad = readEach(parser.values(position_), placements, readPosition))
        return PhotoSwitchesWords::tr(
                   "\"%1\" is no place: write two numbers from 0 to 1, for example 0.5,0.5.")
            .arg(*bad);
    if (const auto bad = readEach(parser.values(zoom_), placements, readZoom))
        return PhotoSwitchesWords::tr("\"%1\" is no enlargement: write a number from 1 to %2.")
            .arg(*bad)
            .arg(kMostZoom);
    if (const auto bad = readEach(parser.values(turn_), placements, readTurn))
        return PhotoSwitchesWords::tr("\"%1\" is no turn: write 0, 90, 180 or 270.").arg(*bad);
    if (const auto bad = readEach(parser.values(copies_), placements, readCopies))
        return PhotoSwitchesWords::tr("\"%1\" is no number of copies: write a number from 1 to %2.")
            .arg(*bad, QString::number(kMostPhotoCopies));
    return {};
}

} // namespace halvern
