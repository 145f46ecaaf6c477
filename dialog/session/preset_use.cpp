// SPDX-License-Identifier: MIT
#include "dialog/session/preset_use.h"

#include "dialog/options/back_lines.h"
#include "dialog/session/colour_management.h"
#include "dialog/session/session_request.h"
#include "dialog/session/sheet_words.h"
#include "platform/printing/cups_ppd.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace halvern {

namespace {

struct PresetUseWords {
    Q_DECLARE_TR_FUNCTIONS(Presets)
};

constexpr qsizetype kMostSentences = 5;
const QString kScaling = QStringLiteral("scaling");
const QString kTurn = QStringLiteral("turn");
const QString kCollate = QStringLiteral("collate");
const QString kReversed = QStringLiteral("reversed");
const QString kCopies = QStringLiteral("copies");
const QString kRanges = QStringLiteral("ranges");
const QString kParity = QStringLiteral("parity");
const QString kColours = QStringLiteral("colours");
const QString kProfile = QStringLiteral("profile");
const QString kIntent = QStringLiteral("intent");
const QString kBlackPoint = QStringLiteral("blackPoint");

template <typename Value> struct Word {
    Value value;
    const char* word;
};

constexpr std::array kScalings{Word<Scaling>{Scaling::fit, "fit"}, Word<Scaling>{Scaling::fill, "fill"},
                               Word<Scaling>{Scaling::actualSize, "none"}};
constexpr std::array kTurns{Word<PageTurn>{PageTurn::automatic, "automatic"},
                            Word<PageTurn>{PageTurn::portrait, "portrait"},
                            Word<PageTurn>{PageTurn::landscape, "landscape"}};

constexpr std::array kParities{Word<PageParity>{PageParity::all, "all"},
                               Word<PageParity>{PageParity::odd, "odd"},
                               Word<PageParity>{PageParity::even, "even"}};

template <typename Table, typename Value> QString wordOf(const Table& words, Value value)
{
    for (const auto& row : words) {
        if (row.value == value)
            return QString::fromLatin1(row.word);
    }
    return {};
}

template <typename Table, typename Value> void readWord(const Table& words, const QString& word, Value& value)
{
    for (const auto& row : words) {
        if (word == QLatin1StringView(row.word))
            value = row.value;
    }
}

QMap<QString, QString> pageTexts(const PageSettings& page)
{
    const ColourSettings& colours = page.colours;
    QMap<QString, QString> texts = {
        {kScaling, wordOf(kScalings, page.scaling)},
        {kTurn, wordOf(kTurns, page.turn)},
        {kCollate, trueOrFalse(page.isCollated)},
        {kReversed, trueOrFalse(page.pages.isReversed)},
        {kColours, colours.isByDialog ? QStringLiteral("dialog") : QStringLiteral("printer")},
        {kProfile, colours.profile},
        {kIntent, intentWord(colours.intent)},
        {kBlackPoint, trueOrFalse(colours.compensatesBlack)}};
    texts.insert(sheetTexts(page.sheets));
    return texts;
}

ColourSettings coloursOf(const Preset& preset, const ColourSettings& before)
{
    if (!preset.page.contains(kColours))
        return before;
    ColourSettings colours;
    colours.isByDialog = preset.page.value(kColours) == QLatin1StringView("dialog");
    colours.profile = preset.page.value(kProfile);
    readIntent(preset.page.value(kIntent), colours.intent);
    colours.compensatesBlack = preset.page.value(kBlackPoint) != QLatin1StringView("false");
    return colours;
}

bool isBackText(const QString& key)
{
    return key == backLineText(1) || key == backLineText(2);
}

bool isBackSwitch(const QString& key)
{
    return key == backLineSwitch(1) || key == backLineSwitch(2);
}

static_assert(kBackLines == 2);

// The printer's own, or a free text for which its PPD has nothing but a default.
bool isPrinters(const PpdModel& model, const QString& key)
{
    const QByteArray standard = key.toUtf8() + "Default";
    return ppd_lookup::option(model.file(), key) ||
           ppdFindAttr(model.file(), standard.constData(), nullptr) != nullptr;
}

// What the page holds already.
bool isPages(const QString& key)
{
    return key.compare(QLatin1StringView("Collate"), Qt::CaseInsensitive) == 0 || key == kCopies;
}

bool canHave(const PpdModel& model, const QString& key, const QString& value)
{
    return ppd_lookup::listedChoice(model.file(), key, value) ||
           (!ppd_lookup::option(model.file(), key) && isPrinters(model, key)) ||
           ppdFindCustomOption(model.file(), key.toUtf8().constData());
}

// A sheet may be chosen by its keyword or by the printer's name for it.
bool isSameChoice(const PpdModel& model, const QString& key, const QString& one, const QString& other)
{
    if (one == other)
        return true;
    const bool areListed = ppd_lookup::listedChoice(model.file(), key, one) &&
                           ppd_lookup::listedChoice(model.file(), key, other);
    return !areListed && model.choiceText(key, one) == model.choiceText(key, other);
}

} // namespace

PresetContents contentsOf(const Preset& preset)
{
    return {preset.page.contains(kCopies), preset.page.contains(kRanges),
            preset.options.contains(backLineText(1))};
}

QString makeAndModelOf(ppd_file_t* file)
{
    const QString make = QString::fromUtf8(file->manufacturer).simplified();
    const QString model = QString::fromUtf8(file->modelname ? file->modelname : file->nickname).simplified();
    return model.startsWith(make, Qt::CaseInsensitive) || model.isEmpty() ? model
                                                                          : make + QLatin1Char(' ') + model;
}

Preset capturePreset(const PpdModel& model, const QVariantMap& saved, const PageSettings& page,
                     const QMap<QString, QString>& byDefault, const PresetContents& contents)
{
    QMap<QString, QString> values = model.values();
    for (auto it = saved.cbegin(); it != saved.cend(); ++it) {
        if (isPrinters(model, it.key()))
            values.insert(it.key(), valueText(it.value()));
    }
    Preset preset;
    preset.makeAndModel = makeAndModelOf(model.file());
    preset.saved = QDateTime::currentDateTimeUtc();
    preset.page = pageTexts(page);
    if (contents.copies)
        preset.page.insert(kCopies, QString::number(page.copies));
    if (contents.pages) {
        preset.page.insert(kRanges, page.pages.ranges);
        preset.page.insert(kParity, wordOf(kParities, page.pages.parity));
    }
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (!isPrinters(model, it.key()) || isPages(it.key()) || model.isSecret(it.key()) ||
            (isBackText(it.key()) && !contents.backText))
            continue;
        preset.options.insert(it.key(), it.value());
        if (byDefault.value(it.key()) != it.value())
            preset.changed.insert(it.key());
    }
    return preset;
}

Preset captureLastUsed(const PpdModel& model, const QVariantMap& saved, const PageSettings& page,
                       const QMap<QString, QString>& byDefault)
{
    Preset preset = capturePreset(model, saved, page, byDefault, {});
    // A switch without its text prints nothing.
    preset.options.removeIf([](const auto& option) { return isBackSwitch(option.key()); });
    preset.changed.removeIf([](const auto& key) { return isBackSwitch(key); });
    return preset;
}

Preset withoutSaved(const Preset& lastUsed, const GivenOptions& saved)
{
    Preset rest = lastUsed;
    for (const GivenOption& option : saved) {
        if (!rest.changed.contains(option.key))
            rest.options.remove(option.key);
    }
    return rest;
}

Preset understoodPreset(ppd_file_t* file, const Preset& preset)
{
    Preset understood = preset;
    understood.options.clear();
    for (auto it = preset.options.cbegin(); it != preset.options.cend(); ++it) {
        const UnderstoodOptions one =
            understand(file, givenBy(OptionOrigin::remembered, {{it.key(), it.value()}}));
        for (const GivenOption& option : one.options)
            understood.options.insert(option.key, option.value);
        if (!one.leftOut.isEmpty())
            understood.options.insert(it.key(), it.value());
        if (!one.page.scaling.isEmpty())
            understood.page.insert(kScaling, one.page.scaling);
        if (one.page.isCollated)
            understood.page.insert(kCollate, trueOrFalse(*one.page.isCollated));
    }
    understood.changed = QSet<QString>(understood.options.keyBegin(), understood.options.keyEnd());
    return understood;
}

PresetOptions optionsOf(const PpdModel& model, const Preset& preset, const QMap<QString, QString>& otherwise)
{
    PresetOptions options;
    for (auto it = preset.options.cbegin(); it != preset.options.cend(); ++it) {
        if (otherwise.contains(it.key()) && otherwise.value(it.key()) == it.value())
            continue;
        if (!preset.changed.contains(it.key()) &&
            (!canHave(model, it.key(), it.value()) || model.isInstallable(it.key())))
            continue;
        if (isPrinters(model, it.key()) && !isPages(it.key()))
            options.given.append({it.key(), it.value(), OptionOrigin::remembered});
        else
            options.leftOut.append({OptionOrigin::remembered,
                                    PresetUseWords::tr("The printer has no option \"%1\".").arg(it.key())});
    }
    return options;
}

bool isAsPreset(const PpdModel& model, const PageSettings& page, const Preset& preset,
                const QMap<QString, QString>& settled)
{
    for (auto it = preset.options.cbegin(); it != preset.options.cend(); ++it) {
        const QString now = model.value(it.key());
        // Nearly all of ten thousand are the same, and looking into the PPD for each takes its time.
        if (now == it.value())
            continue;
        const bool isSettled = settled.contains(it.key()) && settled.value(it.key()) == now;
        if (isPrinters(model, it.key()) && !isPages(it.key()) && !isSettled &&
            !isSameChoice(model, it.key(), now, it.value()))
            return false;
    }
    // What the printer has no default for is not in the preset if nothing was chosen.
    const bool isMore = std::ranges::any_of(model.changedKeys(), [&](const QString& key) {
        return !preset.options.contains(key) && model.choiceCount(key) > 0 &&
               model.defaultValue(key).isEmpty() && !model.isSecret(key) &&
               settled.value(key) != model.value(key);
    });
    return !isMore && withPreset(page, preset) == page;
}

PageSettings withPreset(const PageSettings& before, const Preset& preset)
{
    PageSettings page = before;
    readWord(kScalings, preset.page.value(kScaling), page.scaling);
    readWord(kTurns, preset.page.value(kTurn), page.turn);
    if (preset.page.contains(kCollate))
        page.isCollated = preset.page.value(kCollate) == QLatin1StringView("true");
    const int copies = preset.page.value(kCopies).toInt();
    if (copies >= 1 && copies <= kMostCopies)
        page.copies = copies;
    if (preset.page.contains(kReversed))
        page.pages.isReversed = preset.page.value(kReversed) == QLatin1StringView("true");
    PageChoice pages = page.pages;
    pages.ranges = preset.page.value(kRanges, pages.ranges);
    pages.isGone = pages.isGone && !preset.page.contains(kRanges);
    readWord(kParities, preset.page.value(kParity), pages.parity);
    if (choosePages(pages, 0).problem.isEmpty())
        page.pages = pages;
    page.colours = coloursOf(preset, page.colours);
    page.sheets = sheetsOf(preset.page, page.sheets);
    return page;
}

PageSettings startingPage(const PageSettings& before, const Preset& preset, const SessionRequest& request,
                          const PageWishes& wishes)
{
    PageSettings page = withPreset(before, preset);
    if (request.namesCopies)
        page.copies = request.copies;
    if (request.namesColours)
        page.colours = request.colours;
    if (request.sheets.replace(page.sheets))
        page.scaling = before.scaling;
    page.scaling = scalingWith(page.scaling, request.sheets);
    page.sheets = withWishes(page.sheets, request.sheets);
    if (request.turn != PageTurn::automatic)
        page.turn = request.turn;
    const bool isReversed = page.pages.isReversed || request.pages.isReversed;
    if (!request.pages.ranges.isEmpty() || request.pages.parity != PageParity::all ||
        !wishes.pageRanges.isEmpty() || !wishes.pageSet.isEmpty())
        page.pages = before.pages;
    page.pages.isReversed = wishes.isReversed.value_or(isReversed);
    return page;
}

PageWishes withoutDecided(const PageWishes& wishes, const Preset& preset)
{
    PageWishes rest = wishes;
    if (preset.page.contains(kScaling))
        rest.scaling.clear();
    if (preset.page.contains(kCollate))
        rest.isCollated.reset();
    return rest;
}

PageSettings withoutPreset(const PageSettings& now, const PageSettings& asPreset, const PageSettings& before)
{
    PageSettings page = now;
    const auto putBack = [&](auto& value, const auto& set, const auto& old) {
        if (value == set)
            value = old;
    };
    putBack(page.scaling, asPreset.scaling, before.scaling);
    putBack(page.turn, asPreset.turn, before.turn);
    putBack(page.copies, asPreset.copies, before.copies);
    putBack(page.isCollated, asPreset.isCollated, before.isCollated);
    putBack(page.pages, asPreset.pages, before.pages);
    putBack(page.colours, asPreset.colours, before.colours);
    putBack(page.sheets, asPreset.sheets, before.sheets);
    return page;
}

QString profileOf(const Preset& preset)
{
    return preset.page.value(kProfile);
}

bool isAboutBack(const QString& key)
{
    return isBackText(key) || isBackSwitch(key);
}

QString leftOutSentence(const QString& title, const QList<LeftOut>& leftOut)
{
    if (leftOut.isEmpty())
        return {};
    QStringList sentences;
    for (const LeftOut& left : leftOut.mid(0, kMostSentences))
        sentences.append(left.sentence);
    if (leftOut.size() > kMostSentences)
        sentences.append(PresetUseWords::tr("And %1 more.").arg(leftOut.size() - kMostSentences));
    return PresetUseWords::tr("Not all of \"%1\" can be had now.").arg(title) + QLatin1Char(' ') +
           sentences.join(QLatin1Char(' '));
}

} // namespace halvern
