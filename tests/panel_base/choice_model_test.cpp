#include "platform/foundation/user_defaults.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/matrix.h"
#include "tests/panel_base/test_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

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
        field->setText(QString::fromLatin1(typed));
        EXPECT_EQ(panel->newChoiceForSender(field), QVariant(QString::fromLatin1(choice))) << typed;
    }
    auto* box = addControl<QCheckBox>(view, 3);
    EXPECT_EQ(panel->newChoiceForSender(box).toString(), QStringLiteral("False"));
    box->setCheckState(Qt::PartiallyChecked);
    EXPECT_EQ(panel->newChoiceForSender(box).toString(), QStringLiteral("True"));
    auto* matrix = addControl<Matrix>(view, 5);
    matrix->setCellTitles({QStringLiteral("x"), QStringLiteral("y")});
    EXPECT_FALSE(panel->newChoiceForSender(matrix).isValid());
    matrix->selectCellWithTag(2);
    EXPECT_EQ(panel->newChoiceForSender(matrix).toString(), QStringLiteral("cell 2"));
}

TEST_F(ChoiceModelTest, HoldsATypedNumberToItsSlidersRange)
{
    addSlider(view, 2, 0, 100);
    auto* field = addControl<QLineEdit>(view, 0x142);
    panel->markChoice_forPPDOptionKey_fromSender(QStringLiteral("40"), QStringLiteral("B"), field);
    ASSERT_EQ(panel->stored("B"), QStringLiteral("40"));
    host->asked.clear();
    field->setText(QStringLiteral("150"));
    // Out of range is rejected, and still answers true.
    EXPECT_TRUE(
        panel->markChoice_forPPDOptionKey_fromSender(QStringLiteral("150"), QStringLiteral("B"), field));
    EXPECT_EQ(panel->stored("B"), QStringLiteral("40"));
    EXPECT_EQ(field->text(), QStringLiteral("40"));
    EXPECT_EQ(beeps.count, 1);
    EXPECT_TRUE(host->asked.isEmpty());
    for (const char* limit : {"0", "100", "-"}) {
        panel->markChoice_forPPDOptionKey_fromSender(QString::fromLatin1(limit), QStringLiteral("B"), field);
        EXPECT_EQ(panel->stored("B"), QString::fromLatin1(limit));
    }
    EXPECT_EQ(beeps.count, 1);
}

TEST_F(ChoiceModelTest, AcceptsAnyNumberBesideAControlWithoutLimits)
{
    addControl<QComboBox>(view, 2);
    auto* field = addControl<QLineEdit>(view, 0x142);
    EXPECT_TRUE(
        panel->validateChoice_forPPDOptionKey_fromSender(QStringLiteral("1e9"), QStringLiteral("B"), field));
    EXPECT_TRUE(
        panel->validateChoice_forPPDOptionKey_fromSender(QStringLiteral("-7"), QStringLiteral("B"), nullptr));
}

TEST_F(ChoiceModelTest, RejectsNothingWithoutAskingTheHost)
{
    auto* popup = addControl<QComboBox>(view, 1);
    popup->addItem(QStringLiteral("two"), QStringLiteral("2"));
    popup->addItem(QStringLiteral("one"), QStringLiteral("1"));
    popup->setCurrentIndex(-1);
    EXPECT_FALSE(panel->markChoice_forPPDOptionKey_fromSender({}, QStringLiteral("A"), popup));
    EXPECT_FALSE(panel->markChoice_forPPDOptionKey_fromSender(QStringLiteral("1"), std::nullopt, popup));
    EXPECT_EQ(beeps.count, 2);
    EXPECT_TRUE(host->asked.isEmpty());
    EXPECT_TRUE(panel->choices()->isEmpty());
    // Put back to what the PPD has marked.
    EXPECT_EQ(popup->currentData().toString(), QStringLiteral("1"));
}

TEST_F(ChoiceModelTest, TakesTheMarkedChoiceWhenTheHostRefuses)
{
    host->refusedKeys.insert(QStringLiteral("A"));
    auto* popup = addControl<QComboBox>(view, 1);
    popup->addItem(QStringLiteral("two"), QStringLiteral("2"));
    popup->addItem(QStringLiteral("one"), QStringLiteral("1"));
    EXPECT_FALSE(
        panel->markChoice_forPPDOptionKey_fromSender(QStringLiteral("2"), QStringLiteral("A"), popup));
    EXPECT_EQ(panel->stored("A"), QStringLiteral("1"));
    EXPECT_EQ(beeps.count, 0);
    EXPECT_EQ(panel->refreshes, 0);
    ASSERT_TRUE(waitUntil([this] { return panel->refreshes == 1; }));
    EXPECT_EQ(popup->currentData().toString(), QStringLiteral("1"));
}

TEST_F(ChoiceModelTest, ADelayedRefreshKeepsThePanelAlive)
{
    host->refusedKeys.insert(QStringLiteral("A"));
    panel->markChoice_forPPDOptionKey_fromSender(QStringLiteral("2"), QStringLiteral("A"), nullptr);
    const std::weak_ptr<TestPanel> weak = panel;
    panel.reset();
    EXPECT_FALSE(weak.expired());
    EXPECT_TRUE(waitUntil([&] { return weak.expired(); }));
}

TEST_F(ChoiceModelTest, WritesOneKeyOfTheGlobalDefaultsAndKeepsTheOthers)
{
    panel->setGlobalDefaultsObject_forKey(QStringLiteral("[MM]"), QStringLiteral("first.key"));
    panel->setGlobalDefaultsObject_forKey(7, QStringLiteral("second.key"));
    panel->setGlobalDefaultsObject_forKey({}, QStringLiteral("first.key"));
    const UserDefaults& defaults = UserDefaults::standardUserDefaults();
    EXPECT_EQ(defaults.objectForKey(QStringLiteral("first.key")).toString(), QStringLiteral("[MM]"));
    EXPECT_EQ(defaults.objectForKey(QStringLiteral("second.key")).toInt(), 7);
}

} // namespace halvern
