// SPDX-License-Identifier: MIT
#include "plugin/plug_in.h"

#include "platform/foundation/bundle.h"
#include "tests/support/test.h"

namespace halvern {
namespace {

int made = 0;

std::shared_ptr<Panel> noPanel(const std::shared_ptr<HostCallback>&)
{
    ++made;
    return nullptr;
}

std::shared_ptr<Panel> aPanel(const std::shared_ptr<HostCallback>& host)
{
    ++made;
    auto panels = RZPDEPlugInHalvern().PDEPanelsForType_withHostInfo(
        QLatin1StringView(kPrintDialogExtensionType), host);
    return panels->front();
}

// A panel that asks its printer in the background is gone when the answer has come.
bool areAllGone(const std::shared_ptr<FakeHost>& host)
{
    return waitUntil([&] { return host.use_count() == 1; });
}

} // namespace

TEST(PlugInTest, MakesFreshPanelsForItsTypeAndNoneForAnother)
{
    useBuiltBundle();
    LogCapture log;
    const auto host = std::make_shared<FakeHost>();
    RZPDEPlugInHalvern plugIn;
    EXPECT_FALSE(plugIn.PDEPanelsForType_withHostInfo(q("another"), host).has_value());
    auto first = plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), host);
    auto second = plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), host);
    ASSERT_FALSE(first->empty());
    ASSERT_EQ(first->size(), second->size());
    EXPECT_NE(first->front(), second->front());
    QStringList kinds;
    for (const auto& panel : *first)
        kinds.append(panel->panelKind()->section(u'.', -1));
    EXPECT_EQ(kinds.join(u' '), q("features cvp coloradjust sharpness"));
    first.reset();
    second.reset();
    EXPECT_TRUE(areAllGone(host));
    const auto bare = std::make_shared<FakeHost>(QByteArray());
    const auto none =
        plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), bare);
    ASSERT_TRUE(none.has_value());
    EXPECT_TRUE(none->empty());
}

TEST(PlugInTest, ThePrintersDescriptionHasTheOptionsOfAllPanels)
{
    useBuiltBundle();
    const auto host = std::make_shared<FakeHost>(readFile(q(HALVERN_TESSARIN_PPD)));
    auto panels = RZPDEPlugInHalvern().PDEPanelsForType_withHostInfo(
        QLatin1StringView(kPrintDialogExtensionType), host);
    int found = 0;
    for (const auto& panel : *panels) {
        for (const QString& key : panel->supportedPPDOptionKeys()) {
            const bool isFreeText = key == q("CVP1") || key == q("CVP2");
            EXPECT_EQ(ppd::choices(host->ppdFile(), key).has_value(), !isFreeText) << qPrintable(key);
            ++found;
        }
    }
    EXPECT_EQ(found, 29);
    panels.reset();
    EXPECT_TRUE(areAllGone(host));
}

TEST(PlugInTest, TheListEndsBeforeTheFirstFailureAndLaterPanelsAreReleased)
{
    useBuiltBundle();
    const auto host = std::make_shared<FakeHost>();
    LogCapture log;
    made = 0;
    EXPECT_EQ(makePanels({&aPanel, &noPanel, &aPanel, &aPanel}, host).size(), 1U);
    EXPECT_EQ(made, 4);
    EXPECT_GE(log.count(q("entered dealloc in RZSharpnessPDEHalvern")), 3);
    EXPECT_TRUE(makePanels({&noPanel, &aPanel}, host).empty());
    EXPECT_TRUE(areAllGone(host));
}

} // namespace halvern
