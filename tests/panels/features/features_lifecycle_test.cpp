#include "tests/panels/features/features_fixture.h"
#include "tests/support/test.h"

#include "platform/toolkit/control.h"
#include "platform/toolkit/matrix.h"
#include "platform/toolkit/stepper.h"

#include <QGroupBox>
#include <QToolButton>

namespace halvern {

namespace {

using namespace features;

class FeaturesLifecycle : public FeaturesPanelTest {
protected:
    void showRoll()
    {
        show(catalogueOf({sheetRecord(q("Gloss A4"), 300), rollRecord(1524, 1, 300)}));
        choose(kFeedTag, "Roll");
    }
};

TEST_F(FeaturesLifecycle, TagsNameTheOptions)
{
    make();
    EXPECT_EQ(panel->ppdOptionKeyForTag(323), q("Overspill"));
    EXPECT_EQ(panel->ppdOptionKeyForTag(329), q("BindingWidth"));
    EXPECT_EQ(panel->ppdOptionKeyForTag(10), q("TwoSided"));
    for (const int tag : {-1, 0, 11, 32, 42, 0x40 + 3, 0x100 + 3})
        EXPECT_FALSE(panel->ppdOptionKeyForTag(tag)) << tag;
    const char* const cells[] = {"1", "2", "3", "4", "Real", "Resize", "Crop"};
    for (int tag = 1; tag <= 7; ++tag) {
        EXPECT_EQ(panel->ppdChoiceForTag(tag).toString(), QLatin1StringView(cells[tag - 1]));
        EXPECT_EQ(panel->tagForStringValue(QString::fromLatin1(cells[tag - 1])), tag);
    }
    EXPECT_EQ(panel->tagForStringValue(1), 0) << "a number is no text";
    EXPECT_EQ(panel->supportedPPDOptionKeys().join(u' '),
              QStringLiteral(
                  "PaperFeed PaperName PaperWidth PaperSurface Resolution PaperTone Overspill BindingMargin "
                  "BindingWidth ResizeOption TwoSided Duplex HalvernLastResolution"));
}

TEST_F(FeaturesLifecycle, TheViewHasEveryControlWithItsNeighbours)
{
    show({});
    for (int tag = 1; tag <= 10; ++tag) {
        ASSERT_TRUE(control(tag)) << tag;
        EXPECT_TRUE(control::isControl(control(tag))) << tag;
        EXPECT_TRUE(panel->enclosingBoxForControl(control(tag))) << tag;
        EXPECT_FALSE(control(tag)->accessibleName().isEmpty()) << tag;
    }
    EXPECT_EQ(field(kOverspillTag)->parentWidget(), stepper(kOverspillStepperTag)->parentWidget());
    EXPECT_EQ(field(kBindingWidthTag)->parentWidget(), stepper(kBindingWidthStepperTag)->parentWidget());
    EXPECT_FALSE(panel->enclosingBoxForControl(control(kStatusTag)));
}

TEST_F(FeaturesLifecycle, ANumberIsTakenWhenEditingEnds)
{
    showRoll();
    QLineEdit* overspill = field(kOverspillTag);
    panel->panelView()->show();
    overspill->setFocus();
    overspill->selectAll();
    const qsizetype askedBefore = asked("Overspill").size();
    QTest::keyClicks(overspill, q("2.55"));
    EXPECT_EQ(asked("Overspill").size(), askedBefore);
    QTest::keyClick(overspill, Qt::Key_Return);
    EXPECT_EQ(asked("Overspill").size(), askedBefore + 1);
    EXPECT_EQ(choice("Overspill"), q("2.5"));
    EXPECT_EQ(overspill->text(), q("2.5"));
    EXPECT_DOUBLE_EQ(stepper(kOverspillStepperTag)->realValue(), 2.5);

    overspill->selectAll();
    QTest::keyClicks(overspill, q("-"));
    QTest::keyClick(overspill, Qt::Key_Return);
    EXPECT_EQ(choice("Overspill"), q("0.0"));
}

TEST_F(FeaturesLifecycle, TheStepperMovesItsField)
{
    showRoll();
    QTest::keyClick(stepper(kOverspillStepperTag), Qt::Key_Up);
    EXPECT_EQ(choice("Overspill"), q("0.5"));
    EXPECT_EQ(field(kOverspillTag)->text(), q("0.5"));
}

TEST_F(FeaturesLifecycle, StoringTheSameValueAgainTriggersNoRule)
{
    showRoll();
    const LogCapture log;
    panel->store("PaperFeed", "Roll");
    EXPECT_EQ(log.count(q("setting PaperFeed to Roll")), 0);
    panel->setChoice_forKey(QVariant(), q("ResizeOption"));
    EXPECT_FALSE(panel->choice("ResizeOption").isValid());
}

TEST_F(FeaturesLifecycle, SavesWhatTheHostDoesNotCarry)
{
    showRoll();
    panel->store("BindingWidth", "7.5");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host->settings->values().value(q("BindingWidth")), q("7.5"));
    EXPECT_FALSE(host->settings->values().contains(q("Overspill")));

    struct Locked : PrintSettings {
        int setValue(const QString&, const QVariant&, bool) override { return kPrintingKeyLocked; }
    };

    host->settings = std::make_shared<Locked>();
    const LogCapture log;
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    const QString line = q("PDE got an error %1 setting the value for %2 !");
    for (const QString& key : {q("PaperName"), q("BindingWidth")})
        EXPECT_EQ(log.count(line.arg(QString::number(kPrintingKeyLocked), key)), 1);
    host->settings.reset();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

TEST_F(FeaturesLifecycle, RestoresTheHostsChoicesOntoTheControls)
{
    showRoll();
    ASSERT_TRUE(ppd::mark(host->ppdFile(), q("PaperTone"), q("Sepia")));
    host->settings->setValue(q("Overspill"), q("3.5"), false);
    const BeepCounter beeps;
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(menu(kToneTag)->currentText(), q("Sepia"));
    EXPECT_EQ(field(kOverspillTag)->text(), q("3.5"));
    EXPECT_EQ(beeps.count, 0);
}

TEST_F(FeaturesLifecycle, RestoreDefaultsTakesTheFirstLoadedName)
{
    show(catalogueOf({sheetRecord(q("A"), 300), sheetRecord(q("B"), 300)}));
    choose(kNameTag, "B");
    choose(kToneTag, "Vivid");
    panel->changePrinterSetting(control(tags::kRestoreDefaults));
    EXPECT_EQ(choice("PaperName"), q("A"));
    EXPECT_EQ(menu(kNameTag)->currentText(), q("A"));
    EXPECT_EQ(menu(kToneTag)->currentText(), q("Standard"));
}

TEST_F(FeaturesLifecycle, ALayoutThatDoesNotLoadIsTriedAgainAndHarmless)
{
    struct WithoutLayout : FeaturesPanelWithPrinter {
        std::optional<QString> nibName() override { return q("NoSuchLayout"); }
    };

    auto bare = makePanel<WithoutLayout>(std::make_shared<FakeHost>(featuresPpd()));
    ASSERT_TRUE(bare);
    const LogCapture log;
    EXPECT_FALSE(bare->panelView());
    bare->willShow();
    EXPECT_GE(log.count(q("Failed to load nib named NoSuchLayout")), 2);
    const std::weak_ptr<WithoutLayout> weak = bare;
    bare.reset();
    EXPECT_TRUE(waitUntil([&] { return weak.expired(); }));
}

TEST_F(FeaturesLifecycle, SpeaksTheUsersLanguageButNotInTheTitlesThatTheRulesRead)
{
    useBuiltBundle(q("de_DE"));
    show(catalogueOf({sheetRecord(q("Gloss A4"), 610)}));
    EXPECT_EQ(panel->panelName(), q("Papier und Qualität"));
    EXPECT_EQ(titles(kFeedTag).first(), q("Einzelblatt"));
    EXPECT_EQ(enabledTitles(kResolutionTag), QStringList{q("610 dpi")});
    EXPECT_EQ(surfaces()->cellTitles().first(), q("1"));
    panel->setToolTip_fromSender(q("tip"), control(1));
    EXPECT_TRUE(control(1)->toolTip().isEmpty());
}

} // namespace

} // namespace halvern
