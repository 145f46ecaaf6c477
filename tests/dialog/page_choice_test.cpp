// SPDX-License-Identifier: MIT
#include "dialog/options/custom_paper.h"
#include "dialog/options/paper_sizes.h"
#include "dialog/page/page_choice.h"
#include "dialog/session/recent_names.h"
#include "dialog/window/custom_paper_row.h"
#include "dialog/window/paper_size_list.h"
#include "dialog/window/printer_rows.h"
#include "dialog/window/search_box.h"
#include "platform/foundation/units.h"
#include "tests/dialog/model_support.h"

#include <QDoubleSpinBox>

namespace halvern {
namespace {

const PaperSize* find(const std::vector<PaperSize>& sizes, const char* keyword)
{
    const auto found = std::ranges::find(sizes, q(keyword), &PaperSize::keyword);
    return found == sizes.end() ? nullptr : &*found;
}

} // namespace

TEST(PageChoice, TheNamedPagesComeOnceInTheirOrder)
{
    struct Case {
        const char* ranges;
        std::vector<size_t> pages; // from 0; empty: a problem
        const char* words;
        bool isGone = false;
    };

    for (const Case& c : {
             Case{"", {0, 1, 2, 3, 4}, ""},
             Case{"4, 1-2,2", {0, 1, 3}, ""},
             Case{"3\u20135", {2, 3, 4}, ""},
             Case{"-2; 5-", {0, 1, 4}, ""},
             Case{"6", {}, "the pages are 1 to 5"},
             Case{"0-2", {}, "no page 0"},
             Case{"4-2", {}, "Write 2-4"},
             Case{"1-2-3", {}, "is no page"},
             Case{"-", {}, "is no page"},
             Case{"12345678901", {}, "is no page"},
             Case{"two", {}, "for example"},
             Case{"2", {}, "left out", true},
         }) {
        const ChosenPages chosen = choosePages({.ranges = q(c.ranges), .isGone = c.isGone}, 5);
        EXPECT_EQ(chosen.pages, c.pages) << c.ranges;
        EXPECT_TRUE(chosen.problem.isEmpty() != c.pages.empty() && chosen.problem.contains(q(c.words)))
            << c.ranges << ": " << qPrintable(chosen.problem);
    }
    EXPECT_EQ(choosePages({.ranges = q("7-")}, 0).problem, QString())
        << "nobody knows yet how many there are";
    EXPECT_EQ(rangesOf({6, 0, 1, 2}), q("1-3, 7"));
}

TEST(PaperSizes, AreGroupedAndASizeWithoutMarginsIsASwitchBesideItsOwn)
{
    const auto model = tessarinModel();
    std::vector<PaperSize> sizes = paperSizes(*model);
    EXPECT_EQ(find(sizes, "4x6.Fullbleed"), nullptr);
    ASSERT_TRUE(find(sizes, "4x6") && find(sizes, "A4") && find(sizes, "Letter"));
    EXPECT_EQ(find(sizes, "4x6")->borderless, q("4x6.Fullbleed"));
    EXPECT_EQ(find(sizes, "4x6")->group, PaperGroup::photo);
    EXPECT_EQ(find(sizes, "A4")->group, PaperGroup::iso);
    EXPECT_EQ(find(sizes, "Letter")->group, PaperGroup::us);
    ASSERT_TRUE(model->change(q("PageSize"), q("4x6.Fullbleed")).accepted);
    const BorderlessSwitch state = borderlessSwitch(*model, sizes);
    EXPECT_TRUE(state.isPossible && state.isOn);
    EXPECT_EQ(state.off, q("4x6"));
    EXPECT_TRUE(searchText(*find(sizes, "4x6")).contains(searchForm(q("10 \u00d7 15"))));
    lift(sizes, {152.4, std::nullopt, true}, {q("Letter"), q("4x6.Fullbleed")});
    EXPECT_EQ(find(sizes, "Roll1524x1016")->group, PaperGroup::loaded);
    EXPECT_EQ(find(sizes, "Roll2032x1524")->group, PaperGroup::roll)
        << "it is as long as the roll is wide, but not as wide";
    const auto recent = std::ranges::find(sizes, PaperGroup::recent, &PaperSize::group);
    EXPECT_TRUE(recent->keyword == q("Letter") && std::next(recent)->keyword == q("4x6"));
}

TEST(PaperSizes, AnOptionOfThePrintersOwnMayBeTheSwitch)
{
    const auto model = modelOf(R"(*PPD-Adobe: "4.3"
*OpenUI *PageSize/Size: PickOne
*DefaultPageSize: A4
*PageSize A4/A4: ""
*PageSize TA4/A4 (Borderless): ""
*CloseUI: *PageSize
*ImageableArea A4: "9 9 586 833"
*PaperDimension A4: "595 842"
*ImageableArea TA4: "0 0 595 842"
*PaperDimension TA4: "595 842"
*OpenUI *StpFullBleed/Borderless: PickOne
*DefaultStpFullBleed: False
*StpFullBleed False/No: ""
*StpFullBleed True/Yes: ""
*CloseUI: *StpFullBleed
)");
    const std::vector<PaperSize> sizes = paperSizes(*model);
    ASSERT_EQ(sizes.size(), 1u);
    EXPECT_EQ(sizes.front().borderless, q("TA4"));
    EXPECT_EQ(sizes.front().group, PaperGroup::iso) << "in whole points it is still A4";
    EXPECT_EQ(borderlessSwitch(*model, sizes).key, q("StpFullBleed"));
    EXPECT_FALSE(paperLimits(model->file()));
}

TEST(CustomPaper, ARollOfOneWidthTakesSizesOfThatWidth)
{
    const auto model = modelOf(ppdHeader() + "*VariablePaperSize: True\n*MaxMediaWidth: \"432\"\n"
                                             "*MaxMediaHeight: \"6000\"\n"
                                             "*CustomPageSize True: \"pop\"\n"
                                             "*ParamCustomPageSize Width: 1 points 432 432\n"
                                             "*ParamCustomPageSize Height: 2 points 100 6000\n");
    const std::optional<PaperLimits> limits = paperLimits(model->file());
    ASSERT_TRUE(limits);
    EXPECT_TRUE(model->change(q("PageSize"), q("Custom.152.4x300mm")).accepted);
    EXPECT_FALSE(model->change(q("PageSize"), q("Custom.150x300mm")).accepted);
    CustomPaperRow row(nullptr);
    row.show(*limits, {432.0, 600.0});
    EXPECT_NEAR(row.findChild<QDoubleSpinBox*>(q("customWidth"))->maximum(), 152.4, 0.001);
}

TEST(CustomPaper, MeasuresTravelInMillimetresWithinThePrintersLimits)
{
    const auto model = tessarinModel();
    const std::optional<PaperLimits> limits = paperLimits(model->file());
    ASSERT_TRUE(limits);
    const QSizeF points = QSizeF(152.4, 250.25) * kPointsPerMillimetre;
    EXPECT_TRUE(limits->holds(points) && limits->holds(limits->least) && limits->holds(limits->most));
    EXPECT_FALSE(limits->holds(limits->most + QSizeF(1.0, 0.0)));
    const QString keyword = customKeyword(points);
    EXPECT_EQ(keyword, q("Custom.152.4x250.25mm"));
    EXPECT_NEAR(customMeasures(keyword)->height(), points.height(), 0.01);
    for (const char* bad : {"Custom.", "Custom.1x2px", "A4", "Custom.nanx3mm"})
        EXPECT_FALSE(customMeasures(q(bad))) << bad;
    ASSERT_TRUE(model->change(q("PageSize"), keyword).accepted);
    EXPECT_NEAR(model->sheet().paper.height(), points.height(), 0.01);
    const double height = heightForPhoto(points.width(), {300.0, 200.0}, limits->margins);
    EXPECT_NEAR(height, (points.width() - 17.0) * 2.0 / 3.0 + 17.0, 0.01) << "margins of 8.5 points";
}

TEST(SearchBox, FindsWhatIsTypedAndReturnChoosesItWhileEscapeChangesNothing)
{
    const auto model = tessarinModel();
    SearchBox box(SearchBox::Rows::oneLine, q("Search"), nullptr);
    auto* list = new PaperSizeList(&box);
    list->setSizes(paperSizes(*model),
                   {{q("Panorama"), QSizeF(300.0, 900.0)}, {q("Wall"), QSizeF(3000.0, 9000.0)}},
                   paperLimits(model->file()));
    box.setForm(searchForm);
    box.setModel(list);
    box.show();
    int chosen = -1;
    QObject::connect(&box, &QComboBox::activated, &box, [&](int row) { chosen = row; });
    const auto search = [&](const char* words, Qt::Key key) {
        box.showPopup();
        auto* field = box.findChild<QLineEdit*>(q("search"));
        QTest::keyClicks(field, q(words));
        QTest::keyClick(field, key);
        EXPECT_FALSE(field->isVisible());
    };
    search("a4", Qt::Key_Return);
    EXPECT_EQ(box.currentData(), q("A4"));
    EXPECT_EQ(chosen, box.currentIndex());
    search("10 x 15", Qt::Key_Escape);
    EXPECT_EQ(box.currentData(), q("A4"));
    search("panor", Qt::Key_Return);
    EXPECT_EQ(box.currentText(), q("Panorama"));
    EXPECT_EQ(list->rowOf(q("Custom.120x300mm")), box.findData(q("Custom")));
    EXPECT_LT(box.findText(q("Wall")), 0) << "it is beyond the printer's limits";
}

TEST(PrinterRows, ThoseUsedLastComeFirstAndAChangedStateMovesNothing)
{
    std::vector<PrinterInfo> printers(3);
    for (size_t i = 0; i < 3; ++i)
        printers[i].name = printers[i].info = QString(QChar(u'a' + char16_t(i)));
    printers[1].location = q("Second Floor");
    PrinterRows rows;
    rows.setPrinters(printers, {q("c"), q("gone")}, q("new"));
    EXPECT_TRUE(rows.rowOf(q("c")) == 0 && rows.rowOf(q("new")) == 1 && rows.rowOf(q("b")) == 3);
    EXPECT_TRUE(rows.index(3).data(kSearchedRole).toString().contains(q("second floor")));
    int resets = 0;
    int changes = 0;
    QObject::connect(&rows, &QAbstractItemModel::modelReset, &rows, [&] { ++resets; });
    QObject::connect(&rows, &QAbstractItemModel::dataChanged, &rows, [&] { ++changes; });
    printers[1].isAccepting = false;
    rows.setPrinters(printers, {q("c")}, q("new"));
    EXPECT_TRUE(resets == 0 && changes == 1);
}

TEST(RecentNames, EachIsThereOnceTheNewestFirst)
{
    RecentNames names(q("NamesOfATest"), 3);
    for (const char* name : {"a", "b", "a"})
        names.use(q(name));
    EXPECT_EQ(names.names(), (QStringList{q("a"), q("b")})) << "the one used again pushes no other out";
    for (const char* name : {"c", "d"})
        names.use(q(name));
    EXPECT_EQ(RecentNames(q("NamesOfATest"), 3).names(), (QStringList{q("d"), q("c"), q("a")}));
}

} // namespace halvern
