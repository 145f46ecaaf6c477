// SPDX-License-Identifier: MIT
#include "printer/fault_plan.h"
#include "printer/job_options.h"
#include "tests/support/test.h"

#include <cmath>

namespace halvern {
namespace {

struct OptionsCase {
    const char* argument;
    const char* file;
};

class ReadsTheOptionsArgument : public testing::TestWithParam<OptionsCase> {};

TEST_P(ReadsTheOptionsArgument, AsOneKeyAndValueALine)
{
    EXPECT_EQ(optionsFile(parseJobOptions(GetParam().argument)), GetParam().file);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, ReadsTheOptionsArgument,
    testing::Values(OptionsCase{"", ""}, OptionsCase{"  a=1   b=2 ", "a=1\nb=2\n"},
                    OptionsCase{"a=1 b=2 a=3", "a=1\nb=2\na=3\n"},
                    OptionsCase{"flag noflag no", "flag=true\nflag=false\nno=true\n"},
                    OptionsCase{"a= b=", "a=\nb=\n"},
                    OptionsCase{R"(a=one\ two b=\'it\'\"s\\ c=\)", "a=one two\nb='it'\"s\\\nc=\\\n"},
                    OptionsCase{R"(a='one two' b="it's")", "a=one two\nb=it's\n"},
                    OptionsCase{"a={b=1\\ c d=}x", "a={b=1 c\nd=}x\n"},
                    OptionsCase{"a=x=y =lost b=\xe2\x89\xa4", "a=x=y\nb=\xe2\x89\xa4\n"},
                    OptionsCase{"a=one\\\ntwo\\\n\\\tthree", "a=one\n\ttwo\n\t\tthree\n"}));

TEST(JobOptionsTest, TheLastOfARepeatedKeyCounts)
{
    const JobOptions options = parseJobOptions("EnableCVP1=False EnableCVP1=TRUE EnableCVP2=yes");
    EXPECT_EQ(optionValue(options, "EnableCVP1"), "TRUE");
    EXPECT_TRUE(optionIsOn(options, "EnableCVP1"));
    EXPECT_FALSE(optionIsOn(options, "EnableCVP2"));
    EXPECT_FALSE(optionIsOn(options, "enablecvp1"));
}

TEST(FaultPlanTest, ReadsEveryParameterAndOnlyForTheJobsMeant)
{
    std::string error;
    const auto plan =
        parseFaultPlan("halvern://virtual/x?slow=0.5&stop=2&reason=door-open&only=pages", false, error);
    ASSERT_TRUE(plan) << error;
    EXPECT_EQ(plan->slowSeconds, 0.5);
    EXPECT_EQ(plan->stopAfter, 2);
    EXPECT_EQ(plan->reason, "door-open");
    EXPECT_EQ(parseFaultPlan("halvern://virtual/x?reject&only=pages", true, error), FaultPlan());
    EXPECT_TRUE(std::isinf(parseFaultPlan("halvern:/x?offline", true, error)->offlineSeconds));
    EXPECT_EQ(parseFaultPlan("halvern:/x?fail", false, error)->failAfter, 0);
}

TEST(FaultPlanTest, NamesTheParameterThatIsWrong)
{
    for (const char* word : {"ofline", "slow=", "slow=-1", "slow=nan", "slow=1x", "stop=-1", "stop=x",
                             "reject=1", "reason=", "reason=a,b", "only=x"}) {
        std::string error;
        EXPECT_FALSE(parseFaultPlan(std::string("halvern:/x?hold&") + word, false, error)) << word;
        EXPECT_THAT(error, testing::HasSubstr(std::string("\"") + word + "\""));
    }
    std::string error;
    EXPECT_FALSE(parseFaultPlan("ipp://elsewhere/x", false, error));
}

} // namespace
} // namespace halvern
