// SPDX-License-Identifier: MIT
#include "panels/simple/cover_page_panel.h"
#include "tests/support/test.h"

namespace halvern {

TEST(CoverPagePanel, AsksForNoneWhenCreatedRestoredAndSaved)
{
    useBuiltBundle();
    const LogCapture log;
    const auto host = std::make_shared<FakeHost>();
    const auto ask = [&](const char* sheets) { host->settings->setValue(q("job-sheets"), q(sheets), false); };
    const QVariantMap none{{q("job-sheets"), q("None")}};
    ask("standard");
    const auto panel = makePanel<RZUnavailablePDEHalvern>(host);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->panelKind(), q("com.apple.print.pde.CoverPageKind")) << "the system's own";
    EXPECT_EQ(host->settings->values(), none);
    ask("classified");
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(host->settings->values(), none);
    ask("secret");
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host->settings->values(), none);
    EXPECT_EQ(log.lines().last(), q("After change ... job-sheets = None"));
}

} // namespace halvern
