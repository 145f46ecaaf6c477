// SPDX-License-Identifier: MIT
#include "dialog/program/sheet_switches.h"

#include "dialog/page/layout_library.h"
#include "dialog/session/sheet_words.h"

#include <QCoreApplication>

#include <algorithm>

namespace halvern {

namespace {

struct SheetSwitchesWords {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

// "12.5", or "0.5in". Nothing if it is no length up to `most` millimetres.
std::optional<double> lengthOf(const QString& text, double most)
{
    QString number = text;
    const bool isInches = number.endsWith(QLatin1StringView("in"));
    if (isInches || number.endsWith(QLatin1StringView("mm")))
        number.chop(2);
    bool isNumber = false;
    const double length = number.toDouble(&isNumber) * (isInches ? kMillimetresPerInch : 1.0);
    return isNumber && length >= 0.0 && length <= most ? std::optional(length) : std::nullopt;
}

QString badLength(const QString& text, double most)
{
    return SheetSwitchesWords::tr("\"%1\" is no length: write millimeters from 0 to %2.")
        .arg(text, QString::number(most));
}

} // namespace

SheetSwitches::SheetSwitches()
    : layout_(QStringLiteral("layout"),
              SheetSwitchesWords::tr(
                  "Put several photos on a sheet: a layout's name, rows and columns such as 3x4, or a size "
                  "such as 90x130mm."),
              QStringLiteral("NAME")),
      caption_(QStringLiteral("caption"),
               SheetSwitchesWords::tr(
                   "Write this under each photo. It holds placeholders: [F] file name, [T] title, [C] "
                   "number, [DATE] date taken, [YYYY], [MM], [DD]."),
               QStringLiteral("TEXT")),
      size_(QStringLiteral("photo-size"),
            SheetSwitchesWords::tr(
                "Print each photo in this size, for example 100x150, 4x6in, or 50% of its own."),
            QStringLiteral("SIZE")),
      corner_(QStringLiteral("corner"),
              SheetSwitchesWords::tr(
                  "With --photo-size: so many millimeters from the sheet's left and top, for example 20,15."),
              QStringLiteral("X,Y")),
      margin_(QStringLiteral("margin"),
              SheetSwitchesWords::tr("Leave so many millimeters free at the sheet's edges at least."),
              QStringLiteral("MM")),
      border_(QStringLiteral("border"),
              SheetSwitchesWords::tr("Leave a white border of so many millimeters around each photo."),
              QStringLiteral("MM")),
      flags_{{QStringLiteral("repeat"),
              SheetSwitchesWords::tr("With --layout: each photo fills its own sheet.")},
             {QStringLiteral("no-repeat"), SheetSwitchesWords::tr("The photos share sheets.")},
             {QStringLiteral("cut-marks"), SheetSwitchesWords::tr("Print marks that show where to cut.")},
             {QStringLiteral("no-cut-marks"), SheetSwitchesWords::tr("Print no such marks.")},
             {QStringLiteral("line"), SheetSwitchesWords::tr("Print a thin line around each photo.")},
             {QStringLiteral("no-line"), SheetSwitchesWords::tr("Print no such line.")}}
{
}

QList<QCommandLineOption> SheetSwitches::all() const
{
    return QList<QCommandLineOption>{layout_, caption_, size_, corner_, margin_, border_} + flags_;
}

QString SheetSwitches::read(const QCommandLineParser& parser, SessionRequest& request) const
{
    SheetWishes& sheets = request.sheets;
    if (parser.isSet(layout_)) {
        const LayoutLibrary layouts;
        sheets.layout = layouts.find(parser.value(layout_));
        if (!sheets.layout)
            return layouts.unknownText(parser.value(layout_));
    }
    if (parser.isSet(caption_))
        sheets.caption = parser.value(caption_);
    if (sheets.caption && sheets.caption->size() > kLongestCaption)
        return SheetSwitchesWords::tr("The caption is longer than %1 characters.").arg(kLongestCaption);
    QString problem = readFlags(parser, sheets);
    if (problem.isEmpty())
        problem = readLengths(parser, sheets);
    return problem.isEmpty() ? readSize(parser, sheets) : problem;
}

QString SheetSwitches::readFlags(const QCommandLineParser& parser, SheetWishes& sheets) const
{
    std::optional<bool>* const flags[] = {&sheets.repeats, &sheets.hasCutMarks, &sheets.hasLine};
    for (qsizetype i = 0; i < 3; ++i) {
        const bool isOn = parser.isSet(flags_[2 * i]);
        const bool isOff = parser.isSet(flags_[2 * i + 1]);
        if (isOn && isOff)
            return SheetSwitchesWords::tr("--%1 and --no-%1 do not go together.")
                .arg(flags_[2 * i].names().front());
        if (isOn || isOff)
            *flags[i] = isOn;
    }
    return {};
}

QString SheetSwitches::readLengths(const QCommandLineParser& parser, SheetWishes& sheets) const
{
    if (parser.isSet(margin_)) {
        const std::optional<double> margin = lengthOf(parser.value(margin_), kMostMargin);
        if (!margin)
            return badLength(parser.value(margin_), kMostMargin);
        sheets.margin = *margin;
    }
    if (parser.isSet(border_)) {
        const std::optional<double> border = lengthOf(parser.value(border_), kMostBorder);
        if (!border)
            return badLength(parser.value(border_), kMostBorder);
        sheets.border = *border;
    }
    return {};
}

QString SheetSwitches::readSize(const QCommandLineParser& parser, SheetWishes& sheets) const
{
    const QString text = parser.value(size_);
    if (text.endsWith(QLatin1Char('%'))) {
        bool isNumber = false;
        const double percent = text.chopped(1).toDouble(&isNumber);
        if (!isNumber || !(percent >= kLeastPercent && percent <= kMostPercent))
            return SheetSwitchesWords::tr("\"%1\" is no size: write %2% to %3%.")
                .arg(text, QString::number(kLeastPercent), QString::number(kMostPercent));
        sheets.percent = percent;
    } else if (parser.isSet(size_)) {
        const std::optional<QSizeF> size = photoSizeOf(text);
        if (!size)
            return SheetSwitchesWords::tr(
                       "\"%1\" is no size: write millimeters such as 100x150, inches such as 4x6in, or 50%.")
                .arg(text);
        if (sheets.layout && !sheets.layout->id.isEmpty())
            return SheetSwitchesWords::tr(
                "--photo-size with a width and a height does not go with --layout, which says "
                "how large the photos are. Leave one of them out.");
        sheets.photo = *size;
    }
    if (!parser.isSet(corner_))
        return {};
    const QString corner = parser.value(corner_);
    const std::optional<double> left = lengthOf(corner.section(QLatin1Char(','), 0, 0), kMostPhoto);
    const std::optional<double> top = lengthOf(corner.section(QLatin1Char(','), 1), kMostPhoto);
    if (!left || !top)
        return SheetSwitchesWords::tr(
                   "\"%1\" is no corner: write two lengths in millimeters, for example 20,15.")
            .arg(corner);
    if (!sheets.photo)
        return SheetSwitchesWords::tr("--corner goes with --photo-size and a width and a height.");
    sheets.corner = QPointF(*left, *top);
    return {};
}

} // namespace halvern
