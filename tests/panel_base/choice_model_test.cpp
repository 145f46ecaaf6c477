// SPDX-License-Identifier: MIT
#include "platform/foundation/user_defaults.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "tests/panel_base/test_panel.h"

namespace halvern {

class ChoiceModelTest : public testing::Test {
protected:
    ChoiceModelTest()
    {
        useBuiltBundle();
        panel->setPanelView(view);
    }

    ~ChoiceModelTest() override
    {
        panel.reset();
        drainMainQueue();
    }

    BeepCounter beeps;
    LogCapture log;
    std::shared_ptr<FakeHost> host =
        std::make_shared<FakeHost>(ppdHeader() + ppdOption("A", {"1", "2", "3"}));
    std::shared_ptr<TestPanel> panel = makePanel<TestPanel>(host);
    QWidget* view = new QWidget;
};

TEST_F(ChoiceModelTest, ReadsAChoiceFromEachKindOfControl)
{
    auto* field = addControl<QLineEdit>(view, 2);
    const QList<QPair<const char*, const char*>> texts{
        {"x12px", "12"}, {"-", "-"}, {"--5", "0"}, {"-5", "-5"}};
    for (const auto& [typed, choice] : texts) {
        field->setText(q(typed));
        EXPECT_EQ(panel->newChoiceForSender(field), QVariant(QString::fromLatin1(choice))) << typed;
    }
    auto* box = addControl<QCheckBox>(view, 3);
    EXPECT_EQ(panel->newChoiceForSender(box).toString(), q("False"));
    box->setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(panel->newChoiceForSender(box).toString(), q("True"));
    auto* matrix = addControl<Matrix>(view, 5);
    matrix->setCellTitles({q("x"), q("y")});
    EXPECT_FALSE(panel->newChoiceForSender(matrix).isValid());
    matrix->selectCellWithTag(2);
    EXPECT_EQ(panel->newChoiceForSender(matrix).toString(), q("cell 2"));
}

TEST_F(ChoiceModelTest, HoldsATypedNumberToItsSlidersRange)
{
    addSlider(view, 2, 0, 100);
    auto* field = addControl<QLineEdit>(view, 0x142);
    panel->markChoice_forPPDOptionKey_fromSender(q("40"), q("B"), field);
    ASSERT_EQ(panel->stored("B"), q("40"));
    host->asked.clear();
    field->setText(q("150"));
    // Out of range is rejected, and still answers true.
    EXPECT_TRUE(panel->markChoice_forPPDOptionKey_fromSender(q("150"), q("B"), field));
    EXPECT_EQ(panel->stored("B"), q("40"));
    EXPECT_EQ(field->text(), q("40"));
    EXPECT_EQ(beeps.count, 1);
    EXPECT_TRUE(host->asked.isEmpty());
    for (const char* limit : {"0", "100", "-"}) {
        panel->markChoice_forPPDOptionKey_fromSender(q(limit), q("B"), field);
        EXPECT_EQ(panel->stored("B"), q(limit));
    }
    EXPECT_EQ(beeps.count, 1);
}

TEST_F(ChoiceModelTest, AcceptsAnyNumberBesideAControlWithoutLimits)
{
    addControl<QComboBox>(view, 2);
    auto* field = addControl<QLineEdit>(view, 0x142);
    EXPECT_TRUE(panel->validateChoice_forPPDOptionKey_fromSender(q("1e9"), q("B"), field));
    EXPECT_TRUE(panel->validateChoice_forPPDOptionKey_fromSender(q("-7"), q("B"), nullptr));
}

TEST_F(ChoiceModelTest, RejectsNothingWithoutAskingTheHost)
{
    auto* popup = addControl<QComboBox>(view, 1);
    popup->addItem(q("two"), q("2"));
    popup->addItem(q("one"), q("1"));
    popup->setCurrentIndex(-1);
    EXPECT_FALSE(panel->markChoice_forPPDOptionKey_fromSender({}, q("A"), popup));
    EXPECT_FALSE(panel->markChoice_forPPDOptionKey_fromSender(q("1"), std::nullopt, popup));
    EXPECT_EQ(beeps.count, 2);
    EXPECT_TRUE(host->asked.isEmpty());
    EXPECT_TRUE(panel->choices()->isEmpty());
    // Put back to what the PPD has marked.
    EXPECT_EQ(popup->currentData().toString(), q("1"));
}

TEST_F(ChoiceModelTest, TakesTheMarkedChoiceWhenTheHostRefuses)
{
    host->refusedKeys.insert(q("A"));
    auto* popup = addControl<QComboBox>(view, 1);
    popup->addItem(q("two"), q("2"));
    popup->addItem(q("one"), q("1"));
    EXPECT_FALSE(panel->markChoice_forPPDOptionKey_fromSender(q("2"), q("A"), popup));
    EXPECT_EQ(panel->stored("A"), q("1"));
    EXPECT_EQ(beeps.count, 0);
    EXPECT_EQ(panel->refreshes, 0);
    ASSERT_TRUE(waitUntil([this] { return panel->refreshes == 1; }));
    EXPECT_EQ(popup->currentData().toString(), q("1"));
}

TEST_F(ChoiceModelTest, ADelayedRefreshKeepsThePanelAlive)
{
    host->refusedKeys.insert(q("A"));
    panel->markChoice_forPPDOptionKey_fromSender(q("2"), q("A"), nullptr);
    const std::weak_ptr<TestPanel> weak = panel;
    panel.reset();
    EXPECT_FALSE(weak.expired());
    EXPECT_TRUE(waitUntil([&] { return weak.expired(); }));
}

} // namespace halvern
