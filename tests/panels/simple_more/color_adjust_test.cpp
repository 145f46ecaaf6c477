// SPDX-License-Identifier: MIT
#include "panel_base/tags.h"
#include "panels/simple/color_adjust_panel.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/decimal_slider.h"
#include "platform/toolkit/view_search.h"
#include "tests/support/test.h"

namespace halvern {
namespace {

QByteArray customNumber(const QByteArray& keyword, const QByteArray& range)
{
    return "*Custom" + keyword + " True: \"pop\"\n*ParamCustom" + keyword + " Value: 1 " + range + "\n";
}

QByteArray colorPpd()
{
    QByteArray text = ppdHeader() + ppdOption("AdjustmentsEnabled", {"False/No", "True/Yes"});
    for (const QByteArray key : {"Red", "Green", "Blue", "Brightness", "Contrast", "Saturation"})
        text += ppdOption(key, {"0", "25"}) + customNumber(key, "int -100 100");
    return text + ppdOption("Gamma", {"1.0", "1.8"}) + customNumber("Gamma", "real 0 4.0");
}

class ColorAdjustPanel : public testing::Test {
protected:
    void SetUp() override { open(colorPpd()); }

    void open(const QByteArray& ppdText)
    {
        useBuiltBundle();
        host = std::make_shared<FakeHost>(ppdText);
        panel = makePanel<RZColorAdjustPDEHalvern>(host);
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        view = panel->panelView();
        ASSERT_NE(view, nullptr);
        host->asked.clear();
    }

    QWidget* tagged(int tag) { return viewWithTag(view, tag); }

    DecimalSlider* slider(int n) { return qobject_cast<DecimalSlider*>(tagged(n)); }

    QLineEdit* field(int n) { return qobject_cast<QLineEdit*>(tagged(tags::kCompanion + n)); }

    void click(int tag) { qobject_cast<QAbstractButton*>(tagged(tag))->click(); }

    void type(int n, const QString& text)
    {
        field(n)->selectAll();
        QTest::keyClicks(field(n), text);
    }

    QString stored(const char* key) { return panel->choices()->value(QLatin1StringView(key)).toString(); }

    void switchOn()
    {
        click(tags::kToggle);
        ASSERT_EQ(stored("AdjustmentsEnabled"), q("True"));
    }

    BeepCounter beeps;
    std::shared_ptr<FakeHost> host;
    std::shared_ptr<RZColorAdjustPDEHalvern> panel;
    QWidget* view = nullptr;
};

TEST_F(ColorAdjustPanel, SlidersAndStepButtonsWriteTheirNumberIntoTheField)
{
    switchOn();
    QTest::keyClick(slider(2), Qt::Key_Left);
    EXPECT_EQ(stored("Green"), q("-1"));
    EXPECT_EQ(field(2)->text(), q("-1"));
    click(tags::kIncrement + 3);
    EXPECT_EQ(stored("Blue"), q("1"));
    click(tags::kDecrement + 3);
    EXPECT_EQ(field(3)->text(), q("0"));
    QTest::keyClick(slider(7), Qt::Key_Right);
    EXPECT_EQ(stored("Gamma"), q("1.05"));
    EXPECT_EQ(field(7)->text(), q("1.05"));
}

TEST_F(ColorAdjustPanel, TheToggleSwitchesEveryControlThatBelongsToAnAdjustment)
{
    const auto allEnabled = [this](bool wanted) {
        for (const int group : {0, tags::kCompanion, tags::kDecrement, tags::kIncrement}) {
            for (int n = 1; n <= 7; ++n) {
                if (!tagged(group + n) || tagged(group + n)->isEnabled() != wanted)
                    return false;
            }
        }
        return true;
    };
    EXPECT_TRUE(allEnabled(false)) << "the PPD's default is off";
    switchOn();
    EXPECT_TRUE(allEnabled(true));
    click(tags::kToggle);
    EXPECT_EQ(stored("AdjustmentsEnabled"), q("False"));
    EXPECT_TRUE(allEnabled(false));
    EXPECT_TRUE(tagged(tags::kToggle)->isEnabled());
    EXPECT_TRUE(tagged(tags::kRestoreDefaults)->isEnabled());
}

TEST_F(ColorAdjustPanel, RestoringDefaultsOffersThemInTheSavingOrderAndShowsThem)
{
    switchOn();
    type(4, q("40"));
    type(7, q("3"));
    host->asked.clear();
    click(tags::kRestoreDefaults);
    QStringList offered;
    for (const auto& [key, choice] : host->asked)
        offered.append(key + u'=' + choice.toString());
    EXPECT_EQ(offered.join(u' '), q("Brightness=0 Contrast=0 Saturation=0 Gamma=1.0 Red=0 "
                                    "Green=0 Blue=0 AdjustmentsEnabled=False"));
    EXPECT_EQ(field(4)->text(), q("0"));
    EXPECT_EQ(slider(7)->realValue(), 1.0);
    EXPECT_FALSE(control::asButton(tagged(tags::kToggle))->isChecked());
}

struct RangeCase {
    const char* what;
    QByteArray ppd;
    double minimum;
    double maximum;
    double step = 1;
};

TEST_F(ColorAdjustPanel, TakesARangeFromThePpdButNotTheMarkForNoChange)
{
    const QByteArray option = ppdOption("Brightness", {"5", "0"});
    const RangeCase cases[] = {
        {"integers", option + customNumber("Brightness", "int -20 30"), -20, 30},
        {"few integers", option + customNumber("Brightness", "int 0 10"), 0, 10},
        {"reals", option + customNumber("Brightness", "real -0.1 0.7"), -0.1, 0.7, 0.02},
        {"a hair less than twenty steps", option + customNumber("Brightness", "real 0.1 0.3"), 0.1, 0.3,
         0.01},
        {"more reals", option + customNumber("Brightness", "real 0 1000"), 0, 1000},
        {"no custom value", option, -100, 100},
        {"text", option + customNumber("Brightness", "string 1 9"), -100, 100},
        {"upside down", option + customNumber("Brightness", "int 30 -20"), -100, 100},
        {"two numbers",
         option + customNumber("Brightness", "int 1 9") + "*ParamCustomBrightness More: 2 int 1 9\n", -100,
         100},
    };
    for (const auto& c : cases) {
        open(ppdHeader() + c.ppd);
        EXPECT_EQ(slider(4)->minimumValue(), c.minimum) << c.what;
        EXPECT_EQ(slider(4)->maximumValue(), c.maximum) << c.what;
        EXPECT_EQ(slider(4)->neutralValue(), 0.0) << c.what;
        EXPECT_DOUBLE_EQ(slider(4)->singleStepValue(), c.step) << c.what;
        EXPECT_EQ(slider(1)->minimumValue(), -100) << c.what;
    }
}

} // namespace
} // namespace halvern
