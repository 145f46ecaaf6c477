// SPDX-License-Identifier: MIT
#include "dialog/session/plugin_loader.h"
#include "tests/support/test.h"

#include <sys/stat.h>

namespace halvern {
namespace {

const QString kBundleName = q("tessarin.pde");

// A bundle folder with this property list and module.
void makeBundle(const QString& folder, const QByteArray& list, const QByteArray& module)
{
    const QString path = folder + u'/' + kBundleName;
    writeFile(path + q("/Info.plist"), list);
    writeFile(path + q("/tessarin.so"), module);
}

QByteArray propertyList(const QByteArray& identifier)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" +
           identifier + "</string><key>CFBundleExecutable</key><string>tessarin.so</string></dict></plist>";
}

QByteArray builtModule()
{
    return readFile(q(HALVERN_TEST_BUNDLE "/tessarin.so"));
}

} // namespace

TEST(PluginLoader, LoadsTheBuiltBundleAndSaysWhenItHasNoPanels)
{
    PluginLoader loader({QFileInfo(q(HALVERN_TEST_BUNDLE)).path()});
    QString problem;
    EXPECT_FALSE(loader.panels(kBundleName, std::make_shared<FakeHost>(), &problem).empty())
        << qPrintable(problem);
    EXPECT_EQ(problem, QString());
    const PanelList none = loader.panels(kBundleName, std::make_shared<FakeHost>(QByteArray()), &problem);
    EXPECT_TRUE(none.empty()) << "without a PPD there are no panels";
    EXPECT_FALSE(problem.isEmpty());
}

TEST(PluginLoader, EveryWrongBundleIsAStateWithASentence)
{
    const struct {
        QByteArray list;
        QByteArray module;
        const char* words;
    } cases[] = {
        {"not a property list", "x", "cannot be loaded"},
        {"<?xml version=\"1.0\"?><plist version=\"1.0\"><dict></dict></plist>", "x", "no module"},
        {propertyList("com.halvern.tessarin.pde"), "no library", "cannot be loaded"},
        {propertyList("com.halvern.tessarin.pde"), "", "cannot be loaded"},
        {propertyList("com.halvern.Tessarin.pde"), builtModule(), "something else"},
    };

    for (const auto& c : cases) {
        const QTemporaryDir folder;
        makeBundle(folder.path(), c.list, c.module);
        PluginLoader loader({folder.path()});
        QString problem;
        EXPECT_TRUE(loader.panels(kBundleName, std::make_shared<FakeHost>(), &problem).empty()) << c.words;
        EXPECT_TRUE(problem.contains(QLatin1StringView(c.words))) << qPrintable(problem);
        EXPECT_TRUE(problem.contains(kBundleName)) << qPrintable(problem);
    }
}

TEST(PluginLoader, WhatOthersMayChangeIsNotLoadedAndTheLogSaysWhy)
{
    for (const char* part : {"", "/tessarin.pde", "/tessarin.pde/tessarin.so", "/tessarin.pde/Info.plist"}) {
        const QTemporaryDir folder;
        makeBundle(folder.path(), propertyList("com.halvern.tessarin.pde"), builtModule());
        const QString path = folder.path() + QLatin1StringView(part);
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0777), 0);
        PluginLoader loader({folder.path()});
        const LogCapture log;
        QString problem;
        EXPECT_TRUE(loader.panels(kBundleName, std::make_shared<FakeHost>(), &problem).empty()) << part;
        EXPECT_TRUE(problem.contains(path + q(" can be changed by other users"))) << qPrintable(problem);
        EXPECT_EQ(log.count(problem), 1);
    }
}

TEST(PluginLoader, ANameThatIsNoBundlesNameIsNeverLookedUp)
{
    const QTemporaryDir folder;
    makeBundle(folder.path(), propertyList("com.halvern.tessarin.pde"), builtModule());
    PluginLoader loader({folder.path() + q("/inner")});
    const QString names[] = {q("../tessarin.pde"), q("/tmp/x.pde"), q(".pde"), q("tessarin.so")};
    for (const QString& name : names) {
        QString problem;
        EXPECT_TRUE(loader.panels(name, std::make_shared<FakeHost>(), &problem).empty());
        EXPECT_TRUE(problem.contains(q("no name of a bundle"))) << qPrintable(problem);
    }
    QString problem;
    EXPECT_TRUE(loader.panels(q("other.pde"), std::make_shared<FakeHost>(), &problem).empty());
    EXPECT_TRUE(problem.contains(q("not installed"))) << qPrintable(problem);
}

} // namespace halvern
