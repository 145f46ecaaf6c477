#include "platform/printing/cups_ppd.h"
#include "tests/support/private_cups.h"

#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <span>

namespace halvern {

namespace {

struct PpdCloser {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;
using Marks = std::map<std::string, std::string>;

Ppd openTessarin(const Marks& marks = {})
{
    Ppd ppd(ppdOpenFile(HALVERN_TEST_PPD));
    if (ppd) {
        ppdMarkDefaults(ppd.get());
        for (const auto& [option, choice] : marks)
            ppdMarkOption(ppd.get(), option.c_str(), choice.c_str());
    }
    return ppd;
}

// What has to change for the choice, the choice included; nothing if it cannot be had.
std::optional<Marks> resolve(ppd_file_t* ppd, const char* option, const char* choice)
{
    cups_option_t* options = nullptr;
    int count = 0;
    if (cupsResolveConflicts(ppd, option, choice, &count, &options) == 0)
        return std::nullopt;
    Marks changes;
    for (int i = 0; i < count; ++i)
        changes[options[i].name] = options[i].value;
    cupsFreeOptions(count, options);
    return changes;
}

TEST(TessarinPpd, PassesTheConformanceTestWithItsFiltersInPlace)
{
    PrivateCups server;
    const ProgramResult test =
        runProgram(QStringLiteral("cupstestppd"),
                   {QStringLiteral("-W"), QStringLiteral("none"), QStringLiteral(HALVERN_TEST_PPD)});
    EXPECT_EQ(test.status, 0) << test.output.toStdString();
    // Roll pages have names of their own on purpose: a sheet of the same size may have other margins.
    QString warnings = test.output;
    warnings.remove(
        QRegularExpression(QStringLiteral("^.*(PASS|Size \"Roll).*\n"), QRegularExpression::MultilineOption));
    EXPECT_EQ(warnings.toStdString(), "");
}

TEST(TessarinPpd, ItsDefaultsAgreeWithEachOther)
{
    const Ppd ppd = openTessarin();
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppdConflicts(ppd.get()), 0);
    for (const ppd_option_t* option = ppdFirstOption(ppd.get()); option != nullptr;
         option = ppdNextOption(ppd.get())) {
        // Marking a page size unmarks the page region.
        const bool marked = ppdFindMarkedChoice(ppd.get(), option->keyword) != nullptr;
        EXPECT_TRUE(marked || std::string_view(option->keyword) == "PageRegion") << option->keyword;
    }
}

TEST(TessarinPpd, WhatThePanelsFindBesideTheirOptions)
{
    const Ppd ppd = openTessarin();
    // Free text is no option; what stands in for its default is an attribute.
    EXPECT_EQ(ppdFindOption(ppd.get(), "CVP1"), nullptr);
    EXPECT_STREQ(ppdFindAttr(ppd.get(), "CVP1Default", nullptr)->value, "");
    EXPECT_STREQ(ppdFindAttr(ppd.get(), "HalvernDialogExtension", nullptr)->value, "tessarin.pde");
    for (const ppd_choice_t& choice : std::span(ppdFindOption(ppd.get(), "Resolution")->choices, 4))
        EXPECT_EQ(std::string(choice.choice) + "/" + choice.text,
                  std::to_string(std::atoi(choice.choice)) + "dpi/" +
                      std::to_string(std::atoi(choice.choice)) + " dpi");
}

TEST(TessarinPpd, EachPageSizeHasItsPlaceOnThePaper)
{
    const Ppd ppd = openTessarin();
    const ppd_option_t* sizes = ppdFindOption(ppd.get(), "PageSize");
    int borderless = 0;
    for (const ppd_choice_t& choice : std::span(sizes->choices, size_t(sizes->num_choices))) {
        const ppd_size_t* size = ppdPageSize(ppd.get(), choice.choice);
        ASSERT_NE(size, nullptr) << choice.choice;
        if (std::string_view(choice.choice) == "Custom")
            continue;
        const bool full =
            size->left == 0 && size->bottom == 0 && size->right == size->width && size->top == size->length;
        const bool inside =
            size->left > 0 && size->bottom > 0 && size->right < size->width && size->top < size->length;
        EXPECT_TRUE(full || inside) << choice.choice;
        borderless += full ? 1 : 0;
        int width = 0;
        int length = 0;
        if (std::sscanf(choice.choice, "Roll%dx%d", &width, &length) == 2) {
            EXPECT_NEAR(double(size->width) / 72 * 254, width, 0.05) << choice.choice;
            EXPECT_NEAR(double(size->length) / 72 * 254, length, 0.05) << choice.choice;
        }
    }
    EXPECT_EQ(borderless, 1);
}

struct Clash {
    Marks before;
    const char* option;
    const char* choice;
    // What has to give way; nothing if the choice must be refused.
    std::optional<Marks> expected;
};

class TessarinConstraint : public testing::TestWithParam<Clash> {};

TEST_P(TessarinConstraint, BitesAndIsResolved)
{
    const Clash& clash = GetParam();
    const Ppd before = openTessarin(clash.before);
    ASSERT_EQ(ppdConflicts(before.get()), 0);
    Marks marks = clash.before;
    marks[clash.option] = clash.choice;
    EXPECT_GT(ppdConflicts(openTessarin(marks).get()), 0);

    const auto changes = resolve(before.get(), clash.option, clash.choice);
    ASSERT_EQ(changes.has_value(), clash.expected.has_value());
    if (!changes)
        return;
    for (const auto& [option, choice] : *clash.expected)
        EXPECT_EQ(changes->count(option) != 0 ? changes->at(option) : "", choice) << option;
    for (const auto& [option, choice] : *changes)
        marks[option] = choice;
    EXPECT_EQ(marks[clash.option], clash.choice);
    EXPECT_EQ(ppdConflicts(openTessarin(marks).get()), 0);
}

const Marks kOnRoll = {{"PaperFeed", "Roll"}, {"PageSize", "Roll1524x1016"}};

INSTANTIATE_TEST_SUITE_P(
    Pairs, TessarinConstraint,
    testing::Values(
        Clash{{{"TwoSided", "LongEdge"}}, "PaperFeed", "Roll", Marks{{"TwoSided", "None"}}},
        Clash{{{"PaperFeed", "Roll"}}, "TwoSided", "ShortEdge", Marks{{"PaperFeed", "Sheet"}}},
        Clash{{{"PaperFeed", "Roll"}}, "Duplex", "DuplexTumble", Marks{{"PaperFeed", "Sheet"}}},
        Clash{kOnRoll, "TwoSided", "LongEdge", std::nullopt},
        Clash{kOnRoll, "PaperFeed", "Sheet", Marks{{"PageSize", "4x6"}}},
        Clash{kOnRoll, "PaperWidth", "1270", Marks{{"PageSize", "Roll1270x1778"}}},
        Clash{{}, "PageSize", "Roll2032x2540", Marks{{"PaperFeed", "Roll"}, {"PaperWidth", "2032"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "PageSize", "Roll1524x1016", Marks{{"TwoSided", "None"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "PaperSurface", "4", Marks{{"TwoSided", "None"}}},
        Clash{{{"BindingMargin", "Left"}}, "PageSize", "4x6.Fullbleed", Marks{{"BindingMargin", "None"}}},
        Clash{{{"PageSize", "4x6.Fullbleed"}}, "PaperName", "FineArt102x152", Marks{{"PageSize", "4x6"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "EnableCVP1", "True", Marks{{"TwoSided", "None"}}}));

} // namespace

} // namespace halvern
