#include "plugin/plug_in.h"

#include "platform/foundation/bundle.h"
#include "tests/support/fake_host.h"
#include "tests/support/observers.h"

#include <QFile>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

namespace halvern {

namespace {

std::shared_ptr<Bundle> bundleWith(const QTemporaryDir& folder, const char* identifier)
{
    QFile file(folder.filePath(QStringLiteral("Info.plist")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    QByteArray text =
        "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleName</key><string>x</string>";
    if (identifier)
        text += QByteArray("<key>CFBundleIdentifier</key><string>") + identifier + "</string>";
    file.write(text + "</dict></plist>");
    file.close();
    return Bundle::load(folder.path());
}

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

TEST(PlugInTest, AcceptsItsOwnBundleOnly)
{
    LogCapture log;
    const QTemporaryDir folder;
    RZPDEPlugInHalvern plugIn;
    EXPECT_TRUE(plugIn.initWithBundle(*bundleWith(folder, "com.halvern.tessarin.pde")));
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_FALSE(plugIn.initWithBundle(*bundleWith(folder, "com.halvern.Tessarin.pde")));
    EXPECT_EQ(log.lines().last(),
              QStringLiteral("ERROR: bad bundle id \"com.halvern.Tessarin.pde\" not equal to "
                             "\"com.halvern.tessarin.pde\""));
    EXPECT_FALSE(plugIn.initWithBundle(*bundleWith(folder, nullptr)));
}

TEST(PlugInTest, MakesFreshPanelsForItsTypeAndNoneForAnother)
{
    useBuiltBundle();
    LogCapture log;
    const auto host = std::make_shared<FakeHost>();
    RZPDEPlugInHalvern plugIn;
    EXPECT_FALSE(plugIn.PDEPanelsForType_withHostInfo(QStringLiteral("another"), host).has_value());
    auto first = plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), host);
    auto second = plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), host);
    ASSERT_FALSE(first->empty());
    ASSERT_EQ(first->size(), second->size());
    EXPECT_NE(first->front(), second->front());
    QStringList kinds;
    for (const auto& panel : *first)
        kinds.append(panel->panelKind()->section(u'.', -1));
    EXPECT_EQ(kinds.join(u' '), QStringLiteral("features cvp coloradjust sharpness"));
    first.reset();
    second.reset();
    EXPECT_TRUE(areAllGone(host));
    const auto bare = std::make_shared<FakeHost>(QByteArray());
    const auto none =
        plugIn.PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), bare);
    ASSERT_TRUE(none.has_value());
    EXPECT_TRUE(none->empty());
}

TEST(PlugInTest, TheListEndsBeforeTheFirstFailureAndLaterPanelsAreReleased)
{
    useBuiltBundle();
    const auto host = std::make_shared<FakeHost>();
    LogCapture log;
    made = 0;
    EXPECT_EQ(makePanels({&aPanel, &noPanel, &aPanel, &aPanel}, host).size(), 1U);
    EXPECT_EQ(made, 4);
    EXPECT_GE(log.count(QStringLiteral("entered dealloc in RZSharpnessPDEHalvern")), 3);
    EXPECT_TRUE(makePanels({&noPanel, &aPanel}, host).empty());
    EXPECT_TRUE(areAllGone(host));
}

TEST(PlugInTest, TheBuiltBundleLoadsAsThePrintDialogLoadsIt)
{
    LogCapture log;
    const auto bundle = Bundle::load(QStringLiteral(HALVERN_TEST_BUNDLE));
    ASSERT_NE(bundle, nullptr);
    QPluginLoader loader(bundle->executablePath().value_or(QString()));
    auto* module = qobject_cast<PlugInModule*>(loader.instance());
    ASSERT_NE(module, nullptr) << qPrintable(loader.errorString());
    std::unique_ptr<PrincipalClass> principal = module->makePrincipalObject();
    EXPECT_TRUE(principal->initWithBundle(*bundle));
    Bundle::setMainBundle(nullptr);
    const auto host = std::make_shared<FakeHost>();
    auto panels =
        principal->PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType), host);
    ASSERT_FALSE(panels->empty());
    // The panel finds its layout in the bundle that its module lies in.
    EXPECT_NE(panels->back()->panelView(), nullptr);
    principal.reset();
    EXPECT_EQ(log.count(QStringLiteral("entered dealloc in RZPDEPlugInHalvern")), 1);
    panels.reset();
    EXPECT_TRUE(areAllGone(host));
}

} // namespace halvern
