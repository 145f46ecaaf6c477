// SPDX-License-Identifier: MIT
#include "portal/application_settings.h"
#include "portal/document_kind.h"
#include "portal/front_end.h"
#include "portal/token_store.h"
#include "tests/support/files.h"
#include "tests/support/test.h"

namespace halvern {
namespace {

SessionRequest requestOf(const ApplicationSettings& settings)
{
    SessionRequest request;
    settings.applyTo(request, q("Editor"));
    return request;
}

AcceptedJob acceptedA4(bool isTurned)
{
    AcceptedJob job{q("Q"), {{q("PaperTone"), q("Standard")}}};
    job.copies = 3;
    job.sheet.turned = isTurned;
    job.sheet.page = isTurned ? QSizeF(842, 595) : QSizeF(595, 842);
    job.sheet.imageable = QRectF(QPointF(), job.sheet.page).adjusted(9, 18, -27, -36);
    job.pageSize = q("A4");
    job.sides = q("two-sided-short-edge");
    return job;
}

TEST(ApplicationSettings, TellTheDialogWhatTheApplicationWants)
{
    const ApplicationSettings settings({{q("n-copies"), q("3")},
                                        {q("collate"), q("false")},
                                        {q("reverse"), q("true")},
                                        {q("print-pages"), q("ranges")},
                                        {q("page-ranges"), q("0-2,6")},
                                        {q("page-set"), q("even")},
                                        {q("scale"), q("90")},
                                        {q("duplex"), q("vertical")},
                                        {q("use-color"), q("false")},
                                        {q("quality"), q("low")},
                                        {q("default-source"), q("rear")},
                                        {q("printer"), q("Q")},
                                        {q("cups-PaperTone"), q("Warm")}},
                                       {{q("PPDName"), q("A4")},
                                        {q("Width"), 210.0},
                                        {q("Height"), 297.0},
                                        {q("Orientation"), q("reverse_landscape")}});
    EXPECT_TRUE(settings.refused().isEmpty());
    const SessionRequest request = requestOf(settings);
    EXPECT_EQ(request.copies, 3);
    EXPECT_FALSE(request.isCollated);
    EXPECT_EQ(request.pages, (PageChoice{q("1-3, 7"), PageParity::even, true}));
    EXPECT_EQ(request.scalePercent, 90);
    EXPECT_EQ(request.turn, PageTurn::landscape);
    EXPECT_EQ(request.handed->options, (OptionValues{{q("sides"), q("two-sided-short-edge")},
                                                     {q("print-color-mode"), q("monochrome")},
                                                     {q("print-quality"), q("draft")},
                                                     {q("media-source"), q("rear")}}));
    EXPECT_EQ(request.handed->printersOptions, (OptionValues{{q("PaperTone"), q("Warm")}}));
    EXPECT_TRUE(request.handed->isFor(q("Q")));
    EXPECT_FALSE(request.handed->isFor(q("Other")));
    EXPECT_NEAR(request.handed->paper.width(), 595.3, 0.1);
}

TEST(ApplicationSettings, AreRefusedOneByOne)
{
    const ApplicationSettings settings({{q("n-copies"), 3},
                                        {q("scale"), q("nan")},
                                        {q("page-ranges"), q("5-2")},
                                        {q("collate"), q("maybe")},
                                        {q("orientation"), q("upwards")},
                                        {q("cups-Resolution"), QStringList()},
                                        {q("reverse"), q("true")}},
                                       {{q("Width"), q("210")}, {q("Height"), -1.0}, {q("Orientation"), 1}});
    EXPECT_EQ(settings.refused().size(), 9);
    const SessionRequest request = requestOf(settings);
    EXPECT_EQ(request.copies, 1);
    EXPECT_EQ(request.scalePercent, 100);
    EXPECT_TRUE(request.isCollated && request.pages.isReversed && request.pages.ranges.isEmpty());
    EXPECT_TRUE(request.handed->printersOptions.isEmpty() && request.handed->paper.isEmpty());
}

// Whoever laid the document out would apply a second time what the server does.
TEST(ApplicationSettings, GoBackWithoutWhatTheServerDoes)
{
    const ApplicationSettings settings({{q("n-copies"), q("3")},
                                        {q("number-up"), q("2")},
                                        {q("reverse"), q("true")},
                                        {q("own-word"), q("kept")},
                                        {q("page-ranges"), q("1-1")},
                                        {q("cups-Gone"), q("1")},
                                        {q("quality"), q("low")},
                                        {q("use-color"), q("false")},
                                        {q("media-type"), q("parchment")},
                                        {q("orientation"), q("reverse_portrait")}},
                                       {{q("Orientation"), q("reverse-portrait")}});
    AcceptedJob job = acceptedA4(false);
    job.pages = {q("2-4, 9-"), PageParity::odd, true};
    job.quality = q("draft");
    job.mediaSource = q("tray-2");
    const QVariantMap back = settings.settingsFor(job);
    const QVariantMap expected{{q("n-copies"), q("1")},
                               {q("collate"), q("false")},
                               {q("reverse"), q("false")},
                               {q("number-up"), q("1")},
                               {q("own-word"), q("kept")},
                               {q("print-pages"), q("ranges")},
                               {q("page-ranges"), q("1-3,8-99999")},
                               {q("page-set"), q("odd")},
                               {q("quality"), q("low")},
                               {q("use-color"), q("true")},
                               {q("media-type"), QVariant()},
                               {q("default-source"), q("tray-2")},
                               {q("duplex"), q("vertical")},
                               {q("printer"), q("Q")},
                               {q("cups-PaperTone"), q("Standard")},
                               {q("paper-format"), q("iso_a4")},
                               {q("orientation"), q("reverse_portrait")}};
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        EXPECT_EQ(back.value(it.key()), it.value()) << qPrintable(it.key());
    EXPECT_FALSE(back.contains(q("cups-Gone")));
    EXPECT_EQ(settings.pageSetupFor(job).value(q("Orientation")), q("reverse-portrait"));
    job.pages = {q("2"), PageParity::current, false};
    EXPECT_EQ(settings.settingsFor(job).value(q("print-pages")), q("current"));
    EXPECT_FALSE(settings.settingsFor(job).contains(q("page-ranges")));
    for (const PageParity parity :
         {PageParity::all, PageParity::odd, PageParity::even, PageParity::current, PageParity::selection}) {
        job.pages = {{}, parity, false};
        SessionRequest next;
        ApplicationSettings(settings.settingsFor(job), {}).applyTo(next, q("App"));
        EXPECT_EQ(next.pages.parity, parity) << "as the application hands it in the next time";
    }
}

TEST(ApplicationSettings, GoBackWithTheWholePage)
{
    const QVariantMap page = ApplicationSettings({}, {}).pageSetupFor(acceptedA4(true));
    EXPECT_EQ(page.value(q("PPDName")), q("A4"));
    EXPECT_EQ(page.value(q("Name")), q("iso_a4"));
    EXPECT_EQ(page.value(q("Orientation")), q("landscape"));
    const std::map<const char*, double> lengths{{"Width", 595},    {"Height", 842},     {"MarginLeft", 9},
                                                {"MarginTop", 18}, {"MarginRight", 27}, {"MarginBottom", 36}};
    for (const auto& [key, points] : lengths)
        EXPECT_NEAR(page.value(q(key)).toDouble(), points * 25.4 / 72.0, 0.01) << key;
    AcceptedJob custom = acceptedA4(false);
    custom.margins = QMarginsF(0, 36, 0, 0);
    custom.pageSize = q("Custom.595x842");
    const QVariantMap own = ApplicationSettings({}, {}).pageSetupFor(custom);
    EXPECT_FALSE(own.contains(q("PPDName")));
    EXPECT_EQ(own.value(q("Name")), q("custom_210x297mm"));
    EXPECT_NEAR(own.value(q("MarginTop")).toDouble(), 12.7, 0.01);
    EXPECT_EQ(own.value(q("MarginLeft")), 0.0);
}

TEST(TokenStore, HandsEachJobOutOnceAndToItsApplication)
{
    TokenStore store;
    const quint32 one = store.keep({q("app"), {q("one"), {}, {}}, {}});
    const quint32 other = store.keep({q("app"), {q("other"), {}, {}}, {}});
    EXPECT_TRUE(one != 0 && other != 0 && one != other);
    EXPECT_EQ(store.take(one, q("app"))->order.queue, q("one"));
    EXPECT_FALSE(store.take(one, q("app")));
    EXPECT_FALSE(store.take(other, q("stranger")));
    EXPECT_FALSE(store.take(other, q("app"))) << "tried once";
    EXPECT_FALSE(store.take(0, q("app")));
    EXPECT_TRUE(store.isEmpty());
}

TEST(TokenStore, ForgetsWhatNobodyComesFor)
{
    TokenStore store{std::chrono::milliseconds(1)};
    int emptied = 0;
    QObject::connect(&store, &TokenStore::emptied, [&] { ++emptied; });
    for (int i = 0; i < 300; ++i)
        store.keep({});
    EXPECT_TRUE(waitUntil([&] { return store.isEmpty(); }));
    EXPECT_EQ(emptied, 1);
}

TEST(DocumentKind, IsReadFromTheContent)
{
    EXPECT_EQ(kindOf("%PDF-1.4\n"), DocumentKind::pdf);
    EXPECT_EQ(kindOf("junk\n%PDF-1.4\n"), DocumentKind::pdf);
    EXPECT_EQ(kindOf("%!PS-Adobe-3.0\n"), DocumentKind::postScript);
    EXPECT_EQ(kindOf("\x1B%-12345X@PJL\n%!PS\n"), DocumentKind::postScript);
    EXPECT_EQ(kindOf(QByteArray("MM\0*", 4)), DocumentKind::picture);
    EXPECT_EQ(endingOf(QByteArray("\0\0\0 ftypavif", 12)), q(".avif"));
    EXPECT_EQ(endingOf("RIFF....WEBPVP8 "), q(".webp"));
    EXPECT_EQ(endingOf("\x1B%-12345X@PJL\n%!PS\n"), q(".ps"));
    EXPECT_EQ(kindOf("He wrote %! in a letter"), DocumentKind::unknown);
    EXPECT_EQ(kindOf("Hm"), DocumentKind::unknown);
    EXPECT_FALSE(documentProblem(DocumentKind::pdf, 9, "%PDF-1.4\n").isEmpty()) << "cut off";
    EXPECT_TRUE(documentProblem(DocumentKind::pdf, 9, "\n%%EOF\n").isEmpty());
    EXPECT_FALSE(documentProblem(DocumentKind::picture, 0, {}).isEmpty());
}

class FrontEnds : public testing::Test {
protected:
    FrontEnds()
    {
        describe("gtk", "Interfaces=org.freedesktop.impl.portal.FileChooser;org.freedesktop.impl.portal."
                        "Print;\nUseIn=gnome\n");
        describe("tessarin", "Interfaces=org.freedesktop.impl.portal.Print;\nUseIn=gnome;kde\n");
        describe("kde", "Interfaces=org.freedesktop.impl.portal.Settings;\nUseIn=KDE\n");
    }

    void describe(const char* name, const char* text)
    {
        writeFile(folder.filePath(q("portals/%1.portal").arg(q(name))), QByteArray("[portal]\n") + text);
    }

    FrontEnd frontEnd(int minor, const char* desktop)
    {
        return {QVersionNumber(1, minor),
                {folder.filePath(q("portals"))},
                {folder.filePath(q("user")), folder.filePath(q("system"))},
                {q(desktop)}};
    }

    QTemporaryDir folder;
};

TEST_F(FrontEnds, ChooseByDesktopAndFileName)
{
    EXPECT_FALSE(checkFrontEnd(frontEnd(16, "GNOME")).isYes) << "the first by name";
    EXPECT_TRUE(checkFrontEnd(frontEnd(16, "KDE")).isYes);
    EXPECT_FALSE(checkFrontEnd(frontEnd(16, "other")).isYes) << "the first of all";
    EXPECT_FALSE(checkFrontEnd(FrontEnd()).isYes);
    EXPECT_FALSE(enableInFrontEnd(frontEnd(16, "GNOME")).isYes);
    EXPECT_FALSE(QFile::exists(folder.filePath(q("user")))) << "nothing reads it";
    describe("00-tessarin", "Interfaces=org.freedesktop.impl.portal.Print;\nUseIn=gnome\n");
    EXPECT_TRUE(checkFrontEnd(frontEnd(16, "GNOME")).isYes);
}

TEST_F(FrontEnds, AreToldInTheUsersFileAndNothingElseChanges)
{
    const QString system = writeFile(folder.filePath(q("system/gnome-portals.conf")),
                                     "[preferred]\ndefault=gtk\norg.freedesktop.impl.portal.Settings=kde\n");
    const FrontEnd here = frontEnd(18, "GNOME");
    const QString users = folder.filePath(q("user/gnome-portals.conf"));
    EXPECT_FALSE(checkFrontEnd(here).isYes);
    EXPECT_TRUE(enableInFrontEnd(here).isYes);
    EXPECT_TRUE(checkFrontEnd(here).isYes);
    const QByteArray written = readFile(users);
    EXPECT_TRUE(written.contains("default=gtk\n") && written.contains("Settings=kde\n"));
    EXPECT_TRUE(disableInFrontEnd(here).isYes);
    EXPECT_FALSE(checkFrontEnd(here).isYes);
    EXPECT_EQ(readFile(users), readFile(system));
    writeFile(users, "[preferred]\norg.freedesktop.impl.portal.Print=none\n");
    EXPECT_FALSE(checkFrontEnd(here).isYes);
}

} // namespace
} // namespace halvern
