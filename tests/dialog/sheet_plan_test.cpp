// SPDX-License-Identifier: MIT
// Photos on sheets: where each layout puts them.
#include "dialog/page/caption.h"
#include "dialog/page/crop.h"
#include "dialog/page/layout_library.h"
#include "dialog/page/sheet_plan.h"
#include "tests/support/test.h"

#include <QDir>

namespace halvern {
namespace {

constexpr double kMm = kPointsPerMillimetre;
const QSizeF kA4(210 * kMm, 297 * kMm);
const QRectF kA4Area(4 * kMm, 4 * kMm, 202 * kMm, 287 * kMm);

Photo photoOf(const QSizeF& size)
{
    Photo photo;
    photo.path = q("/photos/lake.jpg");
    photo.ownSize = size;
    return photo;
}

// Two wide ones, two high ones, two square ones.
std::vector<Photo> sixPhotos()
{
    return {photoOf({300, 200}), photoOf({200, 300}), photoOf({200, 200}),
            photoOf({300, 200}), photoOf({200, 300}), photoOf({200, 200})};
}

SheetPlan planned(const QString& id, const std::vector<Photo>& photos, SheetSettings settings = {})
{
    const Layout layout = LayoutLibrary().find(id).value_or(Layout());
    EXPECT_EQ(layout.id, id);
    settings = withLayout(settings, layout);
    std::vector<size_t> all(photos.size());
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    return planSheets(
        {kA4, kA4Area, PageTurn::automatic, layout.scaling.value_or(Scaling::fit), layout, settings}, photos,
        all);
}

QRectF inMillimetres(const QRectF& rect)
{
    return {rect.topLeft() / kMm, rect.size() / kMm};
}

void expectNear(const QRectF& rect, const QRectF& wanted, double tolerance)
{
    EXPECT_NEAR(rect.left(), wanted.left(), tolerance);
    EXPECT_NEAR(rect.top(), wanted.top(), tolerance);
    EXPECT_NEAR(rect.width(), wanted.width(), tolerance);
    EXPECT_NEAR(rect.height(), wanted.height(), tolerance);
}

} // namespace

TEST(SheetPlan, EachLayoutPutsItsPhotosWhereItSays)
{
    const struct {
        const char* id;
        std::vector<size_t> photos; // on each sheet
        bool isTurned;
        QRectF firstCell; // millimetres
        bool hasMarks;
    } cases[] = {
        {"4-up", {4, 2}, false, {4, 4, 99, 141.5}, false},
        {"2-of-10x15", {2, 2, 2}, false, {5, 73.5, 100, 150}, true},
        {"4-of-9x13", {4, 2}, false, {15, 18.5, 90, 130}, true},
        {"passport", {8, 8, 8, 8, 8, 8}, false, {27.5, 101, 35, 45}, true},
        {"3x1", {3, 3}, false, {4, 4, 202, 93}, false},
        {"60x80mm", {6, 0}, false, {}, false},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.id);
        const SheetPlan plan = planned(q(c.id), sixPhotos());
        EXPECT_EQ(plan.problem, QString());
        ASSERT_FALSE(plan.sheets.empty());
        for (size_t i = 0; i < plan.sheets.size(); ++i)
            EXPECT_EQ(plan.sheets[i].photos.size(), c.photos.at(i));
        EXPECT_EQ(plan.sheets.front().page.turned, c.isTurned);
        if (!c.firstCell.isNull())
            expectNear(inMillimetres(plan.sheets.front().photos.front().cell), c.firstCell, 0.09);
        EXPECT_EQ(plan.sheets.front().cutMarks.empty(), !c.hasMarks);
        for (const Sheet& sheet : plan.sheets) {
            for (const PlacedPhoto& placed : sheet.photos) {
                EXPECT_TRUE(placed.cell.adjusted(-1, -1, 1, 1).contains(placed.outline));
                for (const QLineF& mark : sheet.cutMarks) {
                    const QRectF line =
                        QRectF(mark.p1(), mark.p2()).normalized().adjusted(-0.01, -0.01, 0.01, 0.01);
                    EXPECT_FALSE(placed.cell.intersects(line)) << "a mark on a photo";
                }
            }
        }
    }
}

TEST(SheetPlan, APlacementStaysWithItsPhotoWhateverTheLayoutTurns)
{
    std::vector<Photo> photos{photoOf({300, 200})};
    photos[0].placement = {{0.0, 0.5}, 2.0};
    const SheetPlan plan = planned(q("4-of-9x13"), photos);
    const PageLayout& layout = plan.sheets.at(0).photos.at(0).layout;
    EXPECT_EQ(layout.quarterTurns, 1) << "a wide photo in a high place";
    EXPECT_NEAR(layout.photo.top(), layout.frame.top(), 0.1) << "its left edge is seen, at the place's top";
    EXPECT_GT(layout.photo.bottom(), layout.frame.bottom() + 10);
    photos[0].placement.copies = 5;
    EXPECT_EQ(planned(q("4-up"), photos).photoCount(), 5u);
    photos[0].placement.isIncluded = false;
    EXPECT_FALSE(planned(q("4-up"), photos).problem.isEmpty());
}

TEST(SheetPlan, ACropIsWhatWasAskedForInWhateverPlace)
{
    std::vector<Photo> photos{photoOf({300, 200})};
    for (const char* id : {"4-of-9x13", "4-up", "passport"}) {
        SCOPED_TRACE(id);
        photos[0].placement = {};
        const PageLayout before = planned(q(id), photos).sheets.at(0).photos.at(0).layout;
        const QRectF seen = cropOf(before);
        EXPECT_TRUE(QRectF(-0.001, -0.001, 1.002, 1.002).contains(seen));
        photos[0].placement = croppedAround(before, {}, {0.3, 0.6}, 4.0);
        const PageLayout after = planned(q(id), photos).sheets.at(0).photos.at(0).layout;
        EXPECT_NEAR(cropOf(after).center().x(), 0.3, 0.001);
        EXPECT_NEAR(cropOf(after).center().y(), 0.6, 0.001);
        EXPECT_LE(cropOf(after).width(), seen.width() / 2.0);
        photos[0].placement = croppedAround(after, photos[0].placement, {5.0, -5.0}, 1e9);
        const PageLayout corner = planned(q(id), photos).sheets.at(0).photos.at(0).layout;
        EXPECT_NEAR(cropOf(corner).right(), 1.0, 0.001);
        EXPECT_NEAR(cropOf(corner).top(), 0.0, 0.001);
        EXPECT_EQ(photos[0].placement.zoom, kMostZoom);
    }
    PhotoPlacement turned = photos[0].placement;
    for (int i = 0; i < 4; ++i)
        turned = turnedOnce(turned);
    EXPECT_EQ(turned, photos[0].placement);
}

TEST(SheetPlan, BordersCaptionsAndSizesTakeTheirRoom)
{
    SheetSettings settings;
    settings.photo = {150, 100};
    settings.corner = QPointF(20, 30);
    const std::vector<Photo> photos{photoOf({300, 200})};
    const PlacedPhoto plain = planned(QString(), photos, settings).sheets.at(0).photos.at(0);
    EXPECT_NEAR(plain.layout.visible().width() / kMm, 150.0, 0.1);
    const SheetRequest request{kA4, kA4Area, PageTurn::portrait, Scaling::fit, {}, settings};
    expectNear(inMillimetres(planSheets(request, photos, {0}).sheets.at(0).photos.at(0).layout.visible()),
               {20, 30, 150, 100}, 0.06);
    SheetRequest framed = request;
    framed.settings.border = 5;
    framed.settings.caption = q("[F]");
    const PlacedPhoto placed = planSheets(framed, photos, {0}).sheets.at(0).photos.at(0);
    EXPECT_NEAR(placed.layout.visible().left() - placed.outline.left(), 5 * kMm, 0.01);
    EXPECT_NEAR(placed.caption.top(), placed.outline.bottom(), 0.01);
    EXPECT_TRUE(placed.cell.adjusted(-1, -1, 1, 1).contains(placed.caption));
}

TEST(SheetPlan, WhatIsNotAllOnThePageIsSaidAndNothingIsPlanned)
{
    const struct {
        const char* layout;
        SheetSettings settings;
        int copies;
        const char* words; // empty: it fits
    } cases[] = {
        {"", {.margin = 110}, 1, "margins of 110 mm"},
        {"4-up", {.margin = 148.6}, 1, "margins"},
        {"", {.margin = 100, .photo = {20, 20}}, 1, "20.0 × 20.0"},
        {"", {.photo = {150, 100}, .corner = QPointF(3.6, 20)}, 1, ""},
        {"", {.photo = {150, 100}, .corner = QPointF(250, 20)}, 1, "not all on what can be printed"},
        {"16x12", {.repeats = true}, 999, "191808 photos"},
    };

    for (const auto& c : cases) {
        SCOPED_TRACE(c.words);
        const Layout layout = *LayoutLibrary().find(q(c.layout));
        std::vector<Photo> photos{photoOf({300, 200})};
        photos[0].placement.copies = c.copies;
        const SheetPlan plan =
            planSheets({kA4, kA4Area, PageTurn::portrait, Scaling::fit, layout, c.settings}, photos, {0});
        EXPECT_EQ(plan.sheets.empty(), !plan.problem.isEmpty());
        EXPECT_TRUE(plan.problem.isEmpty() == (c.words[0] == '\0') && plan.problem.contains(q(c.words)))
            << qPrintable(plan.problem);
    }
}

TEST(SheetPlan, OddAndEvenAndTheLastFirstAreOfSheetsAndNumbersStay)
{
    const SheetPlan plan = planned(q("4-up"), sixPhotos());
    const SheetPlan reversed = withChosenSheets(plan, {{}, PageParity::all, true});
    ASSERT_EQ(reversed.sheets.size(), 2u);
    EXPECT_EQ(reversed.sheets[0].photos.front().photo, 4u);
    EXPECT_EQ(reversed.sheets[1].photos.front().number, 1);
    const SheetPlan even = withChosenSheets(plan, {{}, PageParity::even, false});
    ASSERT_EQ(even.sheets.size(), 1u);
    EXPECT_EQ(even.sheets[0].photos.front().photo, 4u);
    EXPECT_TRUE(withChosenSheets(even, {{}, PageParity::even, false}).problem.contains(q("one sheet only")));
}

TEST(SheetPlan, ACaptionMovesNoCutMark)
{
    const Layout layout = *LayoutLibrary().find(q("4-of-9x13"));
    SheetRequest request{kA4, kA4Area, PageTurn::automatic, Scaling::fit, layout, withLayout({}, layout)};
    const std::vector<QLineF> plain = planSheets(request, sixPhotos(), {0, 1, 2}).sheets.at(0).cutMarks;
    request.settings.caption = q("[F]");
    EXPECT_EQ(planSheets(request, sixPhotos(), {0, 1, 2}).sheets.at(0).cutMarks, plain);
}

TEST(SheetPlan, APackTurnsPhotosToSaveARollAndSaysWhatDoesNotFit)
{
    const Layout layout = LayoutLibrary().find(q("side-by-side")).value();
    const QSizeF roll(610 * kMm, 1500 * kMm);
    const std::vector<Photo> photos(4, photoOf({200, 300}));
    SheetRequest request{roll,   QRectF({0, 0}, roll),  PageTurn::automatic, Scaling::fit,
                         layout, withLayout({}, layout)};
    const SheetPlan plan = planSheets(request, photos, {0, 1, 2, 3});
    ASSERT_EQ(plan.sheets.size(), 1u);
    EXPECT_NEAR(plan.sheets[0].usedLength / kMm, 405.0, 0.1)
        << "two rows of two that lie, not three and one that stand";
    for (size_t i = 1; i < 4; ++i)
        EXPECT_FALSE(plan.sheets[0].photos[i].cell.intersects(plan.sheets[0].photos[i - 1].cell));
    request.paper = {150 * kMm, 150 * kMm};
    request.imageable = QRectF({0, 0}, request.paper);
    EXPECT_TRUE(planSheets(request, photos, {0}).problem.contains(q("200")));
}

TEST(LayoutLibrary, KeepsTheUsersLayoutsAndSaysWhatIsWrongWithAFile)
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    LayoutLibrary library;
    EXPECT_EQ(library.problems(), QStringList());
    Layout mine = *library.find(q("3x4"));
    mine.caption = q("[T], [YYYY]");
    QString id;
    EXPECT_EQ(library.save(mine, q("Holiday: 3 × 4"), &id), QString());
    EXPECT_EQ(id, q("holiday-3-4"));
    const std::optional<Layout> kept = LayoutLibrary().find(id);
    ASSERT_TRUE(kept);
    EXPECT_TRUE(kept->isOwn && kept->rows == 3 && kept->columns == 4 && kept->caption == mine.caption);
    EXPECT_FALSE(library.save(mine, q("Passport"), &id).isEmpty()) << "the program's own stay";

    const struct {
        const char* text;
        const char* words;
    } bad[] = {
        {"no JSON", "no JSON"},
        {R"({"schema": "other"})", "schema"},
        {R"({"schema": "halvern-layout", "version": 2})", "version"},
        {R"({"schema": "halvern-layout", "version": 1, "name": "x", "kind": "grid", "rows": 0})", "rows"},
        {R"({"schema": "halvern-layout", "version": 1, "name": "x", "kind": "grid", "gap": "4"})", "gap"},
        {R"({"schema": "halvern-layout", "version": 1, "name": "x", "kind": "size", "photo": [5, 1e9]})",
         "numbers"},
        {R"({"schema": "halvern-layout", "version": 1, "name": "x", "kind": "cells", "cells": [[0, 0, 1, 1]]})",
         "wide"},
        {R"({"schema": "halvern-layout", "version": 1, "name": "x", "kind": "heap"})", "kind"},
    };

    for (const auto& c : bad) {
        writeFile(LayoutLibrary::ownFolder() + q("/bad.json"), c.text);
        const LayoutLibrary again;
        ASSERT_EQ(again.problems().size(), 1) << c.words;
        EXPECT_TRUE(again.problems().front().contains(q(c.words))) << qPrintable(again.problems().front());
        EXPECT_FALSE(again.find(q("bad")));
    }
    const QByteArray typo = readFile(LayoutLibrary::ownFolder() + q("/bad.json"));
    LayoutLibrary again;
    EXPECT_TRUE(again.unknownText(q("bad")).contains(q("kind"))) << "what is wrong with it is said";
    EXPECT_TRUE(again.save(mine, q("Bad"), &id).contains(q("something else")));
    EXPECT_EQ(readFile(LayoutLibrary::ownFolder() + q("/bad.json")), typo);
    EXPECT_TRUE(again.save(mine, q("Holiday 3+4"), &id).contains(q("something else")));
    EXPECT_EQ(again.save(mine, q("Holiday: 3 × 4"), &id), QString());
    EXPECT_EQ(library.remove(id), QString());
    qunsetenv("XDG_CONFIG_HOME");
}

TEST(Caption, SaysWhatIsKnownOfThePhotoInOneLine)
{
    PhotoDetails details;
    details.title = q("Two\nlines");
    details.taken = q("2024-05-06 12:13:14");
    EXPECT_EQ(captionFor(q("[C]. [T] ([YYYY]-[MM]-[DD]) [X]"), q("/a/b.jpg"), 7, details),
              q("7. Two lines (2024-05-06) [X]"));
    EXPECT_EQ(captionFor(q("[F] [D]"), q("/a/b.jpg"), 1, {}), q("b.jpg")) << "no date, no blank";
    EXPECT_TRUE(needsDetails(q("[M]")) && !needsDetails(q("[F] [C]")));
}

} // namespace halvern
