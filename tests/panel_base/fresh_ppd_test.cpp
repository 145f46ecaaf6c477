#include "platform/printing/ppd.h"
#include "tests/panel_base/test_panel.h"
#include "tests/support/files.h"
#include "tests/support/private_cups.h"
#include "tests/support/silent_socket.h"

#include <QDir>

#include <gtest/gtest.h>

#include <cups/cups.h>

namespace halvern {

/// Fresh PPDs, fetched from a real server.
class FreshPpdTest : public testing::Test {
protected:
    void SetUp() override
    {
        useBuiltBundle();
        writePpd(folder.filePath(QStringLiteral("fresh.ppd")), "1.5");
        ASSERT_TRUE(server.addQueue(QStringLiteral("Fresh"), folder.filePath(QStringLiteral("fresh.ppd"))))
            << qPrintable(server.error());
        host->printer =
            std::make_shared<Printer>(QStringLiteral("Fresh"), QStringLiteral("halvern://virtual/Fresh"));
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("tmp")));
        qputenv("TMPDIR", temporary().path().toLocal8Bit());
    }

    void TearDown() override { qunsetenv("TMPDIR"); }

    static void writePpd(const QString& path, const QByteArray& stamp)
    {
        writeFile(path, ppdHeader() + "*Stamp: \"" + stamp +
                            "\"\n*Nothing: \"\"\n*X00000: \"QUJD\"\n*X00001: \"REVG\"\n");
    }

    QString queuePpd() const { return server.dir() + QStringLiteral("/server/etc/ppd/Fresh.ppd"); }

    QDir temporary() const { return QDir(folder.filePath(QStringLiteral("tmp"))); }

    qsizetype temporaryFiles() const { return temporary().entryList(QDir::Files | QDir::System).size(); }

    LogCapture log;
    PrivateCups server;
    QTemporaryDir folder;
    std::shared_ptr<FakeHost> host = std::make_shared<FakeHost>();
    std::shared_ptr<TestPanel> panel = makePanel<TestPanel>(host);
};

TEST_F(FreshPpdTest, ReadsWhatTheServerHasNowAndLeavesNoFile)
{
    const QStringList keys{QStringLiteral("Stamp"), QStringLiteral("Nothing"), QStringLiteral("Absent")};
    const QMap<QString, QString> values = panel->ppdValuesForAttributes(keys);
    EXPECT_EQ(values, (QMap<QString, QString>{{QStringLiteral("Stamp"), QStringLiteral("1.5")},
                                              {QStringLiteral("Nothing"), QString()}}));
    EXPECT_EQ(log.count(QStringLiteral("searching fresh ppd for key Absent")), 1);
    EXPECT_EQ(panel->ppdSavedDataForAttribute(QStringLiteral("X")), QByteArray("ABCDEF"));
    writePpd(queuePpd(), "2.5");
    EXPECT_EQ(panel->ppdValueForAttribute(QStringLiteral("Stamp")), QStringLiteral("2.5"));
    EXPECT_EQ(panel->ppdValueForAttribute(QStringLiteral("Absent")), std::nullopt);
    EXPECT_EQ(temporaryFiles(), 0);
}

TEST_F(FreshPpdTest, AQueueOrAServerThatIsNotThereAnswersNothing)
{
    host->printer = std::make_shared<Printer>(QStringLiteral("Gone"), QString());
    EXPECT_TRUE(panel->ppdValuesForAttributes({QStringLiteral("Stamp")}).isEmpty());
    EXPECT_EQ(panel->ppdSavedDataForAttribute(QStringLiteral("X")), std::nullopt);
    host->printer = nullptr;
    EXPECT_TRUE(panel->ppdValuesForAttributes({QStringLiteral("Stamp")}).isEmpty());
    host->printer = std::make_shared<Printer>(QStringLiteral("Fresh"), QString());
    ASSERT_TRUE(server.stop());
    EXPECT_TRUE(panel->ppdValuesForAttributes({QStringLiteral("Stamp")}).isEmpty());
}

TEST_F(FreshPpdTest, APpdThatDoesNotOpenIsLoggedAndKept)
{
    writeFile(queuePpd(), "no PPD at all\n");
    EXPECT_TRUE(panel->ppdValuesForAttributes({QStringLiteral("Stamp")}).isEmpty());
    EXPECT_EQ(log.lines().last(), QStringLiteral("failed to open fresh ppd = 0x0"));
    EXPECT_EQ(temporaryFiles(), 1);
    EXPECT_EQ(panel->ppdSavedDataForAttribute(QStringLiteral("X")), std::nullopt);
    EXPECT_EQ(temporaryFiles(), 2);
}

TEST(SilentServerTest, TheMainThreadLeavesItAloneForAWhile)
{
    const QTemporaryDir folder;
    const QByteArray path = folder.filePath(QStringLiteral("cups.sock")).toUtf8();
    SilentSocket silent(path);
    cupsSetServer(path.constData());
    EXPECT_FALSE(ppd::fetch(QStringLiteral("Elsewhere")));
    EXPECT_FALSE(ppd::fetch(QStringLiteral("Elsewhere")));
    EXPECT_EQ(silent.calls(), 1);
    cupsSetServer(nullptr);
}

} // namespace halvern
