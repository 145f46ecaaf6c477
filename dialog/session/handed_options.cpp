// SPDX-License-Identifier: MIT
#include "dialog/session/handed_options.h"

#include "dialog/options/common_words.h"
#include "dialog/options/ppd_keywords.h"
#include "dialog/options/ppd_lookup.h"
#include "dialog/options/ppd_model.h"
#include "dialog/session/preset_use.h"
#include "dialog/session/presets.h"
#include "platform/foundation/units.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace halvern {

namespace {

struct HandedOptionsWords {
    Q_DECLARE_TR_FUNCTIONS(HandedOptions)
};

constexpr double kSamePoints = 1.5;

bool hasMeasures(ppd_file_t* file, const QString& pageSize, const QSizeF& points)
{
    const ppd_size_t* size = ppdPageSize(file, pageSize.toUtf8().constData());
    return size && std::abs(double(size->width) - points.width()) < kSamePoints &&
           std::abs(double(size->length) - points.height()) < kSamePoints;
}

// The printer's size for the paper that was handed in; nothing if it has none.
std::optional<QString> pageSizeOf(ppd_file_t* file, const HandedOptions& handed)
{
    if (ppd_lookup::listedChoice(file, kPageSize, handed.paperName) &&
        (handed.paper.isEmpty() || hasMeasures(file, handed.paperName, handed.paper)))
        return handed.paperName;
    if (handed.paper.isEmpty())
        return std::nullopt;
    const QSizeF mm = handed.paper / kPointsPerMillimetre;
    const QString measures =
        QStringLiteral("custom_handed_%1x%2mm").arg(mm.width(), 0, 'f', 2).arg(mm.height(), 0, 'f', 2);
    for (const GivenOption& option :
         understand(file, givenBy(OptionOrigin::remembered, {{QStringLiteral("media"), measures}})).options)
        return option.value;
    return std::nullopt;
}

// What every printer does, whether it has an option for it or not.
bool isUsual(const OptionValue& option)
{
    return option.value == QLatin1StringView("color") || option.value == QLatin1StringView("normal") ||
           option.value == QLatin1StringView("auto");
}

// In the printer's own words where it has any. What it has no option for is left to be refused.
QMap<QString, QString> inPrintersWords(ppd_file_t* file, const OptionValues& options, const PresetEntry* last)
{
    QMap<QString, QString> own;
    for (const OptionValue& option : options) {
        const QString key = optionForWords(file, option.key);
        const QMap<QString, QString> now{{key, last && last->preset.options.contains(key)
                                                   ? last->preset.options.value(key)
                                                   : ppd::defaultChoice(file, key).value_or(QString())}};
        if (const std::optional<OptionValue> choice = choiceForWord(file, option, now))
            own.insert(choice->key, choice->value);
        else if (!isUsual(option))
            own.insert(key.isEmpty() ? option.key : key, option.value);
    }
    return own;
}

} // namespace

std::optional<PresetEntry> withHanded(ppd_file_t* file, const QString& printer, const HandedOptions& handed,
                                      const PresetEntry* last)
{
    Preset own;
    own.options = inPrintersWords(file, handed.options, last);
    if (handed.isFor(printer)) {
        for (const OptionValue& option : handed.printersOptions)
            own.options.insert(option.key, option.value);
    }
    own = understoodPreset(file, own);
    // A size of another name that measures the same stays: the program may know measures only.
    const QString known =
        own.options.value(kPageSize, last ? last->preset.options.value(kPageSize) : QString());
    if (handed.paper.isEmpty() || known.isEmpty() || !hasMeasures(file, known, handed.paper)) {
        if (const std::optional<QString> size = pageSizeOf(file, handed)) {
            own.options.insert(kPageSize, *size);
            own.changed.insert(kPageSize);
        }
    }
    if (own.options.isEmpty())
        return last ? std::optional(*last) : std::nullopt;
    PresetEntry entry{PresetKind::named, last ? last->preset : Preset()};
    for (auto it = own.options.cbegin(); it != own.options.cend(); ++it) {
        entry.preset.options.insert(it.key(), it.value());
        entry.preset.changed.insert(it.key());
    }
    entry.preset.basedOn.clear();
    entry.preset.name = handed.giver.isEmpty() ? HandedOptionsWords::tr("The application's settings")
                                               : HandedOptionsWords::tr("Settings of %1").arg(handed.giver);
    return entry;
}

SheetName sheetName(const QString& pageSize)
{
    if (pageSize.startsWith(QLatin1StringView("Custom.")))
        return {};
    const pwg_media_t* media = pwgMediaForPPD(pageSize.toUtf8().constData());
    // Without its measures: "iso_a4_210x297mm".
    const QString pwg =
        media && media->pwg ? QString::fromUtf8(media->pwg).section(QLatin1Char('_'), 0, 1) : QString();
    return {pageSize, pwg.isEmpty() ? pageSize : pwg};
}

QString sidesWord(const QString& choice)
{
    static const QStringList kLong{QStringLiteral("DuplexNoTumble"), QStringLiteral("LongEdge"),
                                   QStringLiteral("Top")};
    static const QStringList kShort{QStringLiteral("DuplexTumble"), QStringLiteral("ShortEdge"),
                                    QStringLiteral("Bottom")};
    return kLong.contains(choice)    ? QStringLiteral("two-sided-long-edge")
           : kShort.contains(choice) ? QStringLiteral("two-sided-short-edge")
                                     : QStringLiteral("one-sided");
}

} // namespace halvern
