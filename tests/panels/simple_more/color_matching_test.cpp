// SPDX-License-Identifier: MIT
#include "panels/simple/color_matching_panel.h"
#include "platform/toolkit/control.h"
#include "platform/toolkit/view_search.h"
#include "tests/support/test.h"

namespace halvern {

TEST(ColorMatchingPanel, OffersThePpdsModesAndStoresTheOneThatTheUserPicks)
{
    useBuiltBundle(q("de_DE"));
    const auto host = std::make_shared<FakeHost>(
        ppdHeader() + ppdOption("AP_ColorMatchingMode", {"AP_ApplicationColorMatching/By the Application",
                                                         "AP_VendorColorMatching/By the Printer"}));
    const auto panel = makePanel<RZColorMatchingPDEHalvern>(host);
    EXPECT_EQ(panel->panelName(), q("Farbangleichung"));
    EXPECT_EQ(panel->panelKind(), q("com.halvern.print.pde.info"));
    panel->restoreValuesAndReturnError(nullptr);
    panel->willShow();
    auto* menu = qobject_cast<QComboBox*>(viewWithTag(panel->panelView(), 1));
    ASSERT_EQ(menu->count(), 2);
    EXPECT_EQ(menu->currentText(), q("Durch das Programm"));
    QTest::keyClick(menu, Qt::Key_Down);
    EXPECT_EQ(panel->choices()->value(q("AP_ColorMatchingMode")), QVariant(q("AP_VendorColorMatching")));
    EXPECT_EQ(host->asked.size(), 1);
}

} // namespace halvern
