// SPDX-License-Identifier: MIT
#include "platform/foundation/bundle.h"
#include "platform/toolkit/help_viewer.h"
#include "platform/toolkit/layout_loader.h"
#include "tests/support/test.h"

namespace halvern {

class BundleTest : public testing::Test {
protected:
    void write(const char* name, const QByteArray& content) { writeFile(folder.filePath(q(name)), content); }

    static QByteArray plist(const QByteArray& body)
    {
        return "<?xml version=\"1.0\"?><plist version=\"1.0\">" + body + "</plist>";
    }

    QTemporaryDir folder;
};

TEST_F(BundleTest, RefusesAFolderWithoutAReadablePropertyListAndSaysWhy)
{
    QString why;
    EXPECT_EQ(Bundle::load(folder.path(), &why), nullptr);
    EXPECT_TRUE(why.contains(QLatin1String("cannot be read"))) << qPrintable(why);
    for (const QByteArray& broken :
         {QByteArray(), QByteArray("garbage"), QByteArray("bplist00"), plist("<array/>"),
          QByteArray("<?xml version=\"1.0\"?><plist><dict><key>a")}) {
        write("Info.plist", broken);
        why.clear();
        EXPECT_EQ(Bundle::load(folder.path(), &why), nullptr) << broken.constData();
        EXPECT_FALSE(why.isEmpty());
    }
}

TEST_F(BundleTest, AnswersItsPropertiesAndKeepsPathsInside)
{
    write(
        "Info.plist",
        plist(
            "<dict><key>CFBundleIdentifier</key><string>com.example</string><key>n</key><integer>7</integer>"
            "<key>CFBundleExecutable</key><string>../../bin/sh</string></dict>"));
    write("Resources/page.ui", "x");
    const auto bundle = Bundle::load(folder.path());
    ASSERT_NE(bundle, nullptr);
    EXPECT_EQ(bundle->bundleIdentifier(), q("com.example"));
    EXPECT_EQ(bundle->objectForInfoDictionaryKey(q("n")).toInt(), 7);
    EXPECT_FALSE(bundle->objectForInfoDictionaryKey(q("absent")).isValid());
    EXPECT_EQ(bundle->executablePath(), std::nullopt);
    EXPECT_TRUE(bundle->pathForResource(q("page.ui")).has_value());
    EXPECT_FALSE(bundle->pathForResource(q("../Info.plist")).has_value());
    EXPECT_FALSE(bundle->pathForResource(q("absent.ui")).has_value());
    EXPECT_NE(gotoHelpPage(*bundle, q("NoBook")), 0);
}

TEST_F(BundleTest, AMalformedLayoutIsReportedNotLoaded)
{
    write("Info.plist", plist("<dict/>"));
    const auto bundle = Bundle::load(folder.path());
    QString why;
    EXPECT_EQ(loadLayout(*bundle, q("absent"), &why), nullptr);
    EXPECT_TRUE(why.contains(QLatin1String("absent.ui")));
    for (const char* broken :
         {"", "garbage", "<ui version=\"4.0\"/>", "<ui version=\"4.0\"><widget class=\"QWidget\""}) {
        write("Resources/broken.ui", broken);
        EXPECT_EQ(loadLayout(*bundle, q("broken")), nullptr) << broken;
    }
}

TEST_F(BundleTest, ALookUpFallsBackToEnglishThenToTheKey)
{
    QLocale::setDefault(QLocale(q("de_DE")));
    const auto german = Bundle::load(q(HALVERN_TEST_BUNDLE));
    EXPECT_EQ(german->localizedString(q("Sharpness")), q("Schärfe"));
    EXPECT_EQ(german->localizedString(q("no such key")), q("no such key"));
    EXPECT_EQ(german->localizedString(q("no such key"), q("else")), q("else"));
    QLocale::setDefault(QLocale(q("fi_FI")));
    const auto finnish = Bundle::load(q(HALVERN_TEST_BUNDLE));
    EXPECT_EQ(finnish->localizedString(q("SharpnessRadius")), q("Sharpening radius"));
    EXPECT_EQ(finnish->localizedString(q("Sharpness")), q("Sharpness"));
}

} // namespace halvern
