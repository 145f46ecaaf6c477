// SPDX-License-Identifier: MIT
#include "platform/printing/cups_ppd.h"
#include "tests/support/test.h"

#include <QRegularExpression>

#include <map>
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
    const ProgramResult test = runProgram(q("cupstestppd"), {q("-W"), q("none"), q(HALVERN_TEST_PPD)});
    EXPECT_EQ(test.status, 0) << test.output.toStdString();
    // Roll pages have names of their own on purpose: a sheet of the same size may have other margins.
    QString warnings = test.output;
    warnings.remove(QRegularExpression(q("^.*(PASS|Size \"Roll).*\n"), QRegularExpression::MultilineOption));
    EXPECT_EQ(warnings.toStdString(), "");
}

struct Clash {
    Marks before;
    const char* option;
    const char* choice;
    // What has to give way; nothing if the choice must be refused.
    std::optional<Marks> expected;
};

TEST(TessarinPpd, ItsConstraintsBiteAndAreResolved)
{
    const Marks onRoll = {{"PaperFeed", "Roll"}, {"PageSize", "Roll1524x1016"}};
    const Clash clashes[] = {
        Clash{{{"TwoSided", "LongEdge"}}, "PaperFeed", "Roll", Marks{{"TwoSided", "None"}}},
        Clash{{{"PaperFeed", "Roll"}}, "TwoSided", "ShortEdge", Marks{{"PaperFeed", "Sheet"}}},
        Clash{{{"PaperFeed", "Roll"}}, "Duplex", "DuplexTumble", Marks{{"PaperFeed", "Sheet"}}},
        Clash{onRoll, "TwoSided", "LongEdge", std::nullopt},
        Clash{onRoll, "PaperFeed", "Sheet", Marks{{"PageSize", "4x6"}}},
        Clash{onRoll, "PaperWidth", "1270", Marks{{"PageSize", "Roll1270x1778"}}},
        Clash{{}, "PageSize", "Roll2032x2540", Marks{{"PaperFeed", "Roll"}, {"PaperWidth", "2032"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "PageSize", "Roll1524x1016", Marks{{"TwoSided", "None"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "PaperSurface", "4", Marks{{"TwoSided", "None"}}},
        Clash{{{"BindingMargin", "Left"}}, "PageSize", "4x6.Fullbleed", Marks{{"BindingMargin", "None"}}},
        Clash{{{"PageSize", "4x6.Fullbleed"}}, "PaperName", "FineArt102x152", Marks{{"PageSize", "4x6"}}},
        Clash{{{"TwoSided", "LongEdge"}}, "EnableCVP1", "True", Marks{{"TwoSided", "None"}}}};
    for (const Clash& clash : clashes) {
        SCOPED_TRACE(std::string(clash.option) + '=' + clash.choice);
        const Ppd before = openTessarin(clash.before);
        ASSERT_EQ(ppdConflicts(before.get()), 0);
        Marks marks = clash.before;
        marks[clash.option] = clash.choice;
        EXPECT_GT(ppdConflicts(openTessarin(marks).get()), 0);
        const auto changes = resolve(before.get(), clash.option, clash.choice);
        ASSERT_EQ(changes.has_value(), clash.expected.has_value());
        if (!changes)
            continue;
        for (const auto& [option, choice] : *clash.expected)
            EXPECT_EQ(changes->count(option) != 0 ? changes->at(option) : "", choice) << option;
        for (const auto& [option, choice] : *changes)
            marks[option] = choice;
        EXPECT_EQ(marks[clash.option], clash.choice);
        EXPECT_EQ(ppdConflicts(openTessarin(marks).get()), 0);
    }
}

} // namespace
} // namespace halvern
