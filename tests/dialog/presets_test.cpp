// SPDX-License-Identifier: MIT
// What is kept of a printer's settings: the files, and what of a preset reaches a printer.
#include "dialog/options/common_words.h"
#include "dialog/options/preset_file.h"
#include "dialog/session/handed_options.h"
#include "dialog/session/preset_use.h"
#include "dialog/session/presets.h"
#include "dialog/session/session_request.h"
#include "dialog/session/starting_options.h"
#include "platform/foundation/whole_file.h"
#include "tests/dialog/model_support.h"

#include <sys/stat.h>

namespace halvern {
namespace {

Preset presetWith(const char* name, const QMap<QString, QString>& options)
{
    Preset preset;
    preset.name = q(name);
    preset.options = options;
    preset.changed = QSet<QString>(options.keyBegin(), options.keyEnd());
    return preset;
}

QStringList namesIn(const PresetFile& file)
{
    QStringList names;
    for (const Preset& preset : file.read().presets)
        names.append(preset.name);
    return names;
}

} // namespace

TEST(PresetFile, KeepsWhatTwoDialogsSaveAndEachPresetAsItWas)
{
    const PresetFile one(q("Room/..%7"));
    const PresetFile two(q("Room/..%7"));
    Preset whole = presetWith("Matte, \"fine\"", {{q("PageSize"), q("A4")}, {q("CVP1"), q("{a} é")}});
    whole.makeAndModel = q("Halvern Tessarin");
    whole.saved = QDateTime::fromString(q("2026-11-22T03:00:00Z"), Qt::ISODate);
    whole.changed = {q("CVP1")};
    whole.page = {{q("copies"), q("3")}};
    EXPECT_EQ(one.save(whole), QString());
    EXPECT_EQ(two.save(presetWith("Other", {})), QString());
    EXPECT_EQ(one.remember(presetWith("", {{q("PageSize"), q("A5")}})), QString());
    EXPECT_EQ(two.rename(q("Other"), q("Another")), QString());
    EXPECT_NE(one.rename(q("Another"), whole.name), QString()) << "the name is taken";
    EXPECT_NE(one.remove(q("Other")), QString()) << "another dialog has renamed it";
    QStringList added;
    EXPECT_EQ(one.add({presetWith("Another", {}), presetWith("last used", {})}, &added), QString());
    EXPECT_EQ(added, (QStringList{q("Another (2)"), q("last used (2)")})) << "each can be named";
    EXPECT_EQ(one.remove(q("last used (2)")), QString());
    const KeptPresets kept = two.read();
    EXPECT_EQ(namesIn(two), (QStringList{q("Another"), q("Another (2)"), whole.name}));
    EXPECT_EQ(kept.presets.back(), whole);
    EXPECT_EQ(kept.lastUsed->options.value(q("PageSize")), q("A5"));
    EXPECT_EQ(QFileInfo(one.path()).dir().dirName(), q("presets")) << "a queue's name leads nowhere else";

    const QList<QueuesPreset> others = presetsForModel(q("Halvern Tessarin"), q("Third"));
    ASSERT_EQ(others.size(), 1);
    EXPECT_TRUE(others.front().queue == q("Room/..%7") && others.front().preset == whole);

    QTemporaryDir folder;
    EXPECT_EQ(exportPresets(folder.filePath(q("p.json")), {whole}), QString());
    EXPECT_EQ(importPresets(folder.filePath(q("p.json"))).presets, QList<Preset>{whole});

    const FileLock lock(one.path() + q(".lock"), 0);
    ASSERT_TRUE(lock.isHeld());
    EXPECT_TRUE(two.remove(whole.name).contains(q(".lock")));
    EXPECT_EQ(namesIn(two).size(), 3) << "reading needs no lock";
}

TEST(PresetFile, WhatCannotBeReadIsSetAsideOrLeftAloneAndStopsNothing)
{
    const QByteArray head = R"({"schema": "halvern-presets", "version": )";

    const struct {
        const char* what;
        QByteArray text;
        bool isSetAside;
    } cases[] = {
        {"cut", head + "1, \"presets\": [", true},
        {"of somebody else", R"({"version": 1})", true},
        {"no JSON", "\xff\xfe garbage", true},
        {"empty", "", true},
        {"deep", QByteArray(5000, '['), true},
        {"newer", head + "2}", false},
        {"odd", head + R"(1, "lastUsed": 7, "presets": [4, {"name": "x", "options": {"A": 1}}]})", false},
        {"a pipe", {}, true}};

    for (const auto& c : cases) {
        const PresetFile file(q(c.what));
        writeFile(file.path(), c.text);
        if (q(c.what) == q("a pipe")) {
            QFile::remove(file.path());
            ASSERT_EQ(mkfifo(file.path().toLocal8Bit().constData(), 0600), 0);
        }
        EXPECT_FALSE(importPresets(file.path()).problem.isEmpty()) << c.what;
        const KeptPresets kept = file.read();
        EXPECT_TRUE(kept.presets.isEmpty() && !kept.problem.isEmpty()) << c.what;
        EXPECT_EQ(QFileInfo::exists(file.path()), !c.isSetAside) << c.what;
        const QFileInfo info(file.path());
        const QStringList aside =
            info.dir().entryList({info.fileName() + q(".damaged-*")}, QDir::Files | QDir::System);
        EXPECT_EQ(aside.size(), c.isSetAside ? 1 : 0) << c.what;
        EXPECT_EQ(file.save(presetWith("New", {})).isEmpty(), q(c.what) != q("newer")) << c.what;
    }
}

TEST(PresetUse, SetsOnlyOptionsThatThePrinterHasAndSaysWhatIsGone)
{
    const auto model = tessarinModel();
    const QMap<QString, QString> byDefault = model->values();
    Preset stranger = presetWith("From afar", {{q("PageSize"), q("A4")},
                                               {q("Resolution"), q("9600dpi")},
                                               {q("job-hold-until"), q("indefinite")},
                                               {q("copies"), q("999")},
                                               {q("Unknown"), q("1")},
                                               {q("Red"), q("400")},
                                               {q("Gone"), q("Default")}});
    stranger.changed.remove(q("Gone"));
    stranger.page = {
        {q("copies"), q("100000")}, {q("scaling"), q("none")}, {q("turn"), q("over")}, {q("ranges"), q("x")}};
    const StartingOptions start =
        applyGiven(*model, {}, &stranger, givenBy(OptionOrigin::typed, {{q("PaperTone"), q("Warm")}}));
    EXPECT_EQ(start.leftOut.size(), 5) << "all but what had the default";
    for (const LeftOut& left : start.leftOut)
        EXPECT_EQ(left.origin, OptionOrigin::remembered) << qPrintable(left.sentence);
    QMap<QString, QString> expected = byDefault;
    expected.insert(q("PageSize"), q("A4"));
    expected.insert(q("PaperTone"), q("Warm"));
    EXPECT_EQ(model->values(), expected);
    const PageSettings page = withPreset({}, stranger);
    EXPECT_TRUE(page.copies == 1 && page.scaling == Scaling::actualSize && page.turn == PageTurn::automatic &&
                page.pages == PageChoice());
}

TEST(PresetUse, HoldsCopiesAndTheTextOnTheBackOnlyIfSomebodySaidSo)
{
    const auto model = tessarinModel();
    const QMap<QString, QString> byDefault = printerDefaults(*model, {});
    PageSettings page;
    page.copies = 7;
    page.pages = {q("2-"), PageParity::odd, true};
    for (const auto& [key, value] : {std::pair("EnableCVP1", "True"), {"CVP1", "Lake"}, {"PageSize", "A4"}})
        ASSERT_TRUE(model->change(q(key), q(value)).accepted);
    const QVariantMap saved{{q("com.halvern.private.key"), 1}, {q("job-sheets"), q("none")}};
    const Preset last = captureLastUsed(*model, saved, page, byDefault);
    EXPECT_EQ(last.changed, QSet<QString>{q("PageSize")});
    for (const char* key : {"CVP1", "EnableCVP1", "job-sheets", "com.halvern.private.key"})
        EXPECT_FALSE(last.options.contains(q(key))) << key;
    const Preset rest =
        withoutSaved(last, givenBy(OptionOrigin::saved, {{q("PageSize"), q("A5")}, {q("Red"), q("9")}}));
    EXPECT_TRUE(rest.options.contains(q("PageSize")) && !rest.options.contains(q("Red")))
        << "what nobody chose gives way to what the user saved since";
    EXPECT_FALSE(contentsOf(last).copies || contentsOf(last).backText);
    const Preset full = capturePreset(*model, saved, page, byDefault, {true, true, true});
    EXPECT_TRUE(contentsOf(full).copies && contentsOf(full).backText);
    EXPECT_EQ(withPreset({}, full), page);
    EXPECT_EQ(withPreset({}, last).pages, (PageChoice{{}, PageParity::all, true}));
    EXPECT_TRUE(isAsPreset(*model, page, full, {}) && isAsPreset(*model, page, last, {}));
    ASSERT_TRUE(model->change(q("PaperName"), q("MatteA4")).accepted);
    EXPECT_FALSE(isAsPreset(*model, page, full, {}));
    EXPECT_TRUE(isAsPreset(*model, page, full, {{q("PaperName"), q("MatteA4")}})) << "nobody chose it";
}

TEST(PresetUse, WhatIsTypedForThePageWinsOverAPresetAndThatOverWhatIsSaved)
{
    const struct {
        const char* typed; ///< KEY=VALUE; empty: nothing
        const char* saved;
        const char* preset; ///< of its page
        PageSettings expected;
    } cases[] = {
        {"print-scaling=fit", "", "scaling=fill", {.scaling = Scaling::fit}},
        {"", "print-scaling=fit", "scaling=fill", {.scaling = Scaling::fill}},
        {"", "print-scaling=none", "turn=portrait", {Scaling::actualSize, PageTurn::portrait}},
        {"outputorder=normal", "", "reversed=true", {}},
        {"page-set=all", "", "parity=odd", {}},
        {"page-ranges=2", "", "reversed=true", {.pages = {q("2"), PageParity::all, true}}},
        {"outputorder=reverse", "", "ranges=2", {.pages = {q("2"), PageParity::all, true}}},
    };

    const auto given = [](OptionOrigin origin, const char* text) {
        const std::optional<OptionValue> option = parseOption(q(text));
        return givenBy(origin, option ? OptionValues{*option} : OptionValues());
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.preset);
        Preset preset = presetWith("P", {});
        preset.page = {{q(c.preset).section(u'=', 0, 0), q(c.preset).section(u'=', 1)}};
        const auto model = tessarinModel();
        const StartingOptions start = applyGiven(*model, given(OptionOrigin::saved, c.saved), &preset,
                                                 given(OptionOrigin::typed, c.typed));
        const SessionRequest request;
        PageSetup setup(request);
        setup.set(startingPage(setup.settings(), preset, request, start.page));
        setup.takeWishes(start.page);
        EXPECT_EQ(setup.settings(), c.expected);
    }
    SessionRequest request;
    request.turn = PageTurn::landscape;
    Preset upright = presetWith("P", {});
    upright.page = {{q("turn"), q("portrait")}};
    EXPECT_EQ(startingPage({}, upright, request, {}).turn, PageTurn::landscape);
}

TEST(PresetUse, WhatIsTypedForTheSheetsLiesOverThePreset)
{
    Layout passport;
    passport.id = q("passport");
    passport.scaling = Scaling::fill;
    passport.hasCutMarks = true;

    const struct {
        SheetWishes wishes;
        SheetSettings sheets;
        Scaling scaling;
    } cases[] = {
        {{.hasLine = true}, {q("4-up"), false, q("[F]"), true, true}, Scaling::actualSize},
        {{.layout = passport, .border = 2.0}, {q("passport"), false, {}, true, false, 2.0}, Scaling::fill},
        {{.photo = QSizeF(100, 150)}, {.photo = {100, 150}}, Scaling::fit},
        {{.percent = 100.0}, {q("4-up"), false, q("[F]"), true}, Scaling::actualSize},
    };

    Preset preset = presetWith("P", {});
    preset.page = {{q("layout"), q("4-up")},
                   {q("caption"), q("[F]")},
                   {q("cutMarks"), q("true")},
                   {q("scaling"), q("none")}};
    for (const auto& c : cases) {
        SessionRequest request;
        request.sheets = c.wishes;
        const PageSettings page = startingPage(PageSetup(request).settings(), preset, request, {});
        EXPECT_EQ(page.sheets, c.sheets);
        EXPECT_EQ(page.scaling, c.scaling);
    }
    EXPECT_EQ(scalingWith(Scaling::fill, {.photo = QSizeF(100, 150)}), Scaling::fill);
}

std::optional<PresetEntry> entryFor(const PpdModel& model, const char* word)
{
    HandedOptions handed;
    handed.options = {*parseOption(q(word))};
    return withHanded(model.file(), q("Q"), handed, nullptr);
}

TEST(PresetUse, AnotherProgramsWordsBecomeThePrintersOptions)
{
    const struct {
        const char* word; ///< KEY=VALUE, in the words of IPP
        const char* option;
        const char* back; ///< the word for it; null: as it was
    } cases[] = {
        {"print-color-mode=monochrome", "ColorModel=Gray", nullptr},
        {"print-color-mode=color", "ColorModel=CMYK", nullptr},
        {"print-quality=draft", "StpQuality=Economy", nullptr},
        {"media-type=photographic-glossy", "MediaType=GlossyPaper", nullptr},
        {"media-type=Rough", "MediaType=Rough", nullptr},
        {"media-type=parchment", "MediaType=parchment", "stationery"},
        {"media-source=tray-2", "InputSlot=2Tray", nullptr},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.word);
        const auto model = modelOf(ppdHeader() + ppdOption("ColorModel", {"CMYK", "RGB", "Gray"}) +
                                   ppdOption("StpQuality", {"Standard", "Economy"}) +
                                   ppdOption("MediaType", {"Plain", "Rough", "GlossyPaper"}) +
                                   ppdOption("InputSlot", {"Auto", "1Tray", "2Tray"}));
        const OptionValue word = *parseOption(q(c.word));
        const std::optional<PresetEntry> entry = entryFor(*model, c.word);
        const OptionValue wanted = *parseOption(q(c.option));
        ASSERT_TRUE(entry);
        EXPECT_EQ(entry->preset.options, (QMap<QString, QString>{{wanted.key, wanted.value}}));
        const StartingOptions start = applyGiven(*model, {}, &entry->preset, {});
        EXPECT_EQ(start.leftOut.size(), c.back ? 1 : 0);
        const QString back = wordForChoice(model->file(), word.key, model->values());
        EXPECT_EQ(back, c.back ? q(c.back) : word.value);
    }
    const auto plain = modelOf(ppdHeader());
    EXPECT_FALSE(entryFor(*plain, "print-color-mode=color")) << "it needs no option for that";
    const std::optional<PresetEntry> gray = entryFor(*plain, "print-color-mode=monochrome");
    ASSERT_TRUE(gray);
    EXPECT_EQ(applyGiven(*plain, {}, &gray->preset, {}).leftOut.size(), 1);
}

TEST(PresetUse, AnOptionWithoutADefaultIsPartOfWhatDiffers)
{
    const auto model =
        modelOf(ppdHeader() + ppdOption("Foo", {"A", "B"}).replace("DefaultFoo: A", "DefaultFoo: Unknown"));
    const Preset defaults = presetWith("", printerDefaults(*model, {}));
    EXPECT_TRUE(isAsPreset(*model, {}, defaults, {}));
    ASSERT_TRUE(model->choose(q("Foo"), q("B"), {}).accepted);
    EXPECT_FALSE(isAsPreset(*model, {}, defaults, {}));
    EXPECT_EQ(asTexts(model->putBack({q("Foo")}, {}).sideChanges), QStringList{q("Foo=")});
    EXPECT_FALSE(model->values().contains(q("Foo"))) << "no job carries it";
    EXPECT_TRUE(isAsPreset(*model, {}, defaults, {}) && model->changedKeys().isEmpty());
}

TEST(Presets, ASecretIsInNoPreset)
{
    const struct {
        const char* parameters;
        const char* value;
    } cases[] = {
        {"*ParamCustomPin Value/Value: 1 passcode 4 8\n", "1234"},
        {"*ParamCustomPin User/User: 1 string 0 20\n*ParamCustomPin PIN/PIN: 2 passcode 4 8\n",
         "{User=me PIN=1234}"},
    };

    for (const auto& c : cases) {
        const auto model =
            modelOf(ppdHeader() + ppdOption("Pin", {"None"}) + "*CustomPin True: \"pop\"\n" + c.parameters);
        ASSERT_TRUE(model->choose(q("Pin"), q(c.value), {}).accepted);
        EXPECT_FALSE(capturePreset(*model, {{q("Pin"), q(c.value)}}, {}, {}, {}).options.contains(q("Pin")));
        EXPECT_EQ(model->choiceText(q("Pin"), q(c.value)), concealed());
    }
}

} // namespace halvern
