// SPDX-License-Identifier: MIT
#include "panels/backprint/back_preview.h"
#include "platform/foundation/notifications/notification_center.h"
#include "tests/panels/backprint/backprint_window.h"

namespace halvern {
namespace {

// Whether the panel counts as leaving.
struct Leaving : RZBackprintPDEHalvern {
    static bool of(const RZBackprintPDEHalvern& panel) { return panel.*(&Leaving::pdePluginDidUnload); }
};

} // namespace

using BackprintPanelTest = BackprintWindow;

TEST_F(BackprintPanelTest, CreationRestoresTheSettingsOrTheDefaultsAndWritesThemBack)
{
    close();
    host = std::make_shared<FakeHost>(backprintOptions() + "*CVP2Default: \"it's, default\"\n");
    host->settings->setValue(q("CVP1"), q("Smith\u00e6s\u2264 Inc."), false);
    open();
    EXPECT_EQ(line(1)->text(), q("Smith's, Inc."));
    EXPECT_EQ(line(2)->text(), q("it's, default"));
    EXPECT_EQ(saved("CVP1"), q("Smith\u00e6s\u2264 Inc."));
    EXPECT_EQ(saved("CVP2"), q("it\u00e6s\u2264 default"));
    EXPECT_EQ(saved("EnableCVP1"), q("False"));
    EXPECT_EQ(saved("DebugLog"), q("False"));
    EXPECT_TRUE(host->asked.isEmpty());
    EXPECT_EQ(beeps.count, 0);
    EXPECT_FALSE(line(1)->isEnabled());
    EXPECT_FALSE(find(256)->isEnabled());
}

TEST_F(BackprintPanelTest, SavesTheLinesSafelyAndTheTogglesAsTheyAre)
{
    type(1, q("a,b"));
    panel->setChoice_forKey(q("x,y"), q("EnableCVP1"));
    panel->setChoice_forKey(7, q("CVP2"));
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(saved("CVP1"), q("a\u2264b"));
    EXPECT_EQ(saved("EnableCVP1"), q("x,y"));
    EXPECT_EQ(host->settings->values().value(q("CVP2")).typeId(), QMetaType::Int);
    EXPECT_FALSE(Leaving::of(*panel)) << "saving is not the base's, which says that the panel leaves";
}

TEST_F(BackprintPanelTest, RestoreDefaultsShowsThePpdsLines)
{
    close();
    host = std::make_shared<FakeHost>(backprintOptions() + "*CVP1Default: \"[F]\"\n");
    host->settings->setValue(q("EnableCVP1"), q("True"), false);
    open();
    type(1, q("more"));
    click(514);
    click(32);
    EXPECT_EQ(line(1)->text(), q("[F]"));
    EXPECT_EQ(stored("DebugLog"), q("False"));
    EXPECT_FALSE(find<QCheckBox>(512)->isChecked());
    EXPECT_FALSE(line(1)->isEnabled());
}

TEST_F(BackprintPanelTest, AChangeFromOutsideIsShownUnswappedAndLeavesTypingAlone)
{
    type(1, q("typed, still"));
    line(1)->setCursorPosition(3);
    panel->PPDOptionKeyValueDidChange_ppdChoice(q("CVP2"), q("a\u2264b"));
    EXPECT_EQ(line(2)->text(), q("a,b"));
    EXPECT_EQ(line(1)->text(), q("typed, still"));
    EXPECT_EQ(line(1)->cursorPosition(), 3);
}

TEST_F(BackprintPanelTest, ThePreviewShowsTheSwitchedOnLinesAsTyped)
{
    auto* holder = panel->panelView()->findChild<QWidget*>(q("previewHolder"));
    auto* preview = dynamic_cast<BackPreview*>(holder->findChild<QWidget*>());
    ASSERT_NE(preview, nullptr);
    const QImage empty = preview->grab().toImage();
    type(1, q("Lake, [YYYY]"));
    type(2, q("It's ours"));
    EXPECT_EQ(preview->line(0), q("Lake, [YYYY]"));
    EXPECT_EQ(preview->line(1), q("It's ours"));
    EXPECT_NE(preview->grab().toImage(), empty);
    click(512);
    EXPECT_EQ(preview->line(0), QString());
    const QImage second = preview->grab().toImage();
    click(512);
    click(513);
    line(1)->clear();
    type(1, q("It's ours"));
    EXPECT_EQ(preview->grab().toImage(), second) << "the printer leaves no gap for a missing line";
    click(512);
    EXPECT_EQ(preview->grab().toImage(), empty);
}

TEST_F(BackprintPanelTest, DestructionTellsTheOtherPanelsOfTheSameHost)
{
    int own = 0;
    int others = 0;
    const QString name = q("com.halvern.vlx.PDEPluginIsUnloading");
    NotificationCenter& center = NotificationCenter::defaultCenter();
    center.addObserver(&own, name, static_cast<HostCallback*>(host.get()), [&](const Notification&) {
        // Before the base's part of the destruction.
        EXPECT_EQ(log.count(q("entered dealloc in RZBackprintPDEHalvern")), 0);
        ++own;
    });
    center.addObserver(&others, name, &others, [&](const Notification&) { ++others; });
    close();
    center.removeObserver(&own);
    center.removeObserver(&others);
    EXPECT_EQ(own, 1);
    EXPECT_EQ(others, 0);
    EXPECT_EQ(log.count(q("entered dealloc in RZBackprintPDEHalvern")), 1);
}

} // namespace halvern
