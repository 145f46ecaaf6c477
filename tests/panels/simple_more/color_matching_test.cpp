#include "panels/simple/color_matching_panel.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/view_search.h"
#include "tests/support/fake_host.h"
#include "tests/support/test.h"

#include <QComboBox>

namespace halvern {
namespace {

QByteArray matchingPpd()
{
    return ppdHeader() + ppdOption("AP_ColorMatchingMode", {"AP_ApplicationColorMatching/By the Application",
                                                            "AP_VendorColorMatching/By the Printer"});
}

QComboBox* matchingMenu(RZColorMatchingPDEHalvern& panel)
{
    return qobject_cast<QComboBox*>(viewWithTag(panel.panelView(), 1));
}

TEST(ColorMatchingPanel, OffersThePpdsModesAndStoresTheOneThatTheUserPicks)
{
    useBuiltBundle(q("de_DE"));
    const auto host = std::make_shared<FakeHost>(matchingPpd());
    const auto panel = makePanel<RZColorMatchingPDEHalvern>(host);
    EXPECT_EQ(panel->panelName(), q("Farbangleichung"));
    EXPECT_EQ(panel->panelKind(), q("com.halvern.print.pde.info"));
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    QComboBox* menu = matchingMenu(*panel);
    ASSERT_EQ(menu->count(), 2);
    EXPECT_EQ(menu->currentText(), q("Durch das Programm"));
    QTest::keyClick(menu, Qt::Key_Down);
    EXPECT_EQ(panel->choices()->value(q("AP_ColorMatchingMode")), QVariant(q("AP_VendorColorMatching")));
    EXPECT_EQ(host->asked.size(), 1);
}

TEST(ColorMatchingPanel, KeepsItsOwnItemsIfThePpdHasNoSuchOption)
{
    useBuiltBundle();
    const auto host = std::make_shared<FakeHost>();
    const auto panel = makePanel<RZColorMatchingPDEHalvern>(host);
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    EXPECT_EQ(matchingMenu(*panel)->currentText(), q("As the printer is set up"));
    EXPECT_TRUE(host->asked.isEmpty());
}

} // namespace
} // namespace halvern
