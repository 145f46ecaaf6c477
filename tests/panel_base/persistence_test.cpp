// SPDX-License-Identifier: MIT
#include "tests/panel_base/test_panel.h"

namespace halvern {

class PersistenceTest : public testing::Test {
protected:
    PersistenceTest() { useBuiltBundle(); }

    std::shared_ptr<TestPanel> panelFor(const QByteArray& ppd)
    {
        host = std::make_shared<FakeHost>(ppdHeader() + ppd);
        return makePanel<TestPanel>(host);
    }

    LogCapture log;
    std::shared_ptr<FakeHost> host;
};

TEST_F(PersistenceTest, WithoutPrintSettingsAKeyTakesWhatTheKeyBeforeItLeft)
{
    const auto panel =
        panelFor("*ADefault: \"a default\"\n" + ppdOption("B", {"X", "Y"}) + "*CDefault: \"c default\"\n");
    host->settings.reset();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(panel->stored("A"), q("a default"));
    EXPECT_EQ(panel->stored("B"), q("X"));
    EXPECT_EQ(panel->stored("C"), q("X"));
}

TEST_F(PersistenceTest, WithPrintSettingsTheLookUpClearsTheHolder)
{
    const auto panel = panelFor(ppdOption("A", {"X", "Y"}) + "*BDefault: \"b default\"\n");
    host->settings->setValue(q("A"), q("not used"), false);
    host->settings->setValue(q("C"), 7, false);
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->stored("A"), q("X"));
    EXPECT_EQ(panel->stored("B"), q("b default"));
    // A number stays a number; a key with no value and no default has no entry.
    EXPECT_EQ(panel->storedChoice(q("C")).typeId(), QMetaType::Int);
    EXPECT_FALSE(panel->choices()->contains(q("D")));
    EXPECT_EQ(panel->refreshes, 0);
}

TEST_F(PersistenceTest, WithoutAPpdNothingIsRestored)
{
    const auto panel = panelFor(ppdOption("A", {"X"}));
    panel->ppd = nullptr;
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->choices()->isEmpty());
}

TEST_F(PersistenceTest, FollowsTheHostsNoticesForItsOwnKeys)
{
    const auto panel = panelFor({});
    panel->PPDOptionKeyValueDidChange_ppdChoice(q("Other"), q("1"));
    panel->PPDOptionKeyValueDidChange_ppdChoice(q("A"), {});
    panel->PPDOptionKeyValueDidChange_ppdChoice(std::nullopt, q("1"));
    EXPECT_TRUE(panel->choices()->isEmpty());
    EXPECT_EQ(panel->refreshes, 0);
    // A notice loads the view, which restoring does not.
    panel->layout = q("TessarinSharpness");
    panel->PPDOptionKeyValueDidChange_ppdChoice(q("A"), q("1"));
    EXPECT_EQ(panel->stored("A"), q("1"));
    EXPECT_EQ(panel->customCalls, 1);
    EXPECT_TRUE(host->asked.isEmpty());
}

} // namespace halvern
