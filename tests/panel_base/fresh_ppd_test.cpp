// SPDX-License-Identifier: MIT
#include "tests/panel_base/test_panel.h"

namespace halvern {

/// Fresh PPDs, fetched from a real server.
class FreshPpdTest : public testing::Test {
protected:
    void SetUp() override
    {
        useBuiltBundle();
        writePpd(folder.filePath(q("fresh.ppd")), "1.5");
        ASSERT_TRUE(server.addQueue(q("Fresh"), folder.filePath(q("fresh.ppd"))))
            << qPrintable(server.error());
        host->printer = std::make_shared<Printer>(q("Fresh"), q("halvern://virtual/Fresh"));
        ASSERT_TRUE(QDir(folder.path()).mkdir(q("tmp")));
        qputenv("TMPDIR", temporary().path().toLocal8Bit());
    }

    void TearDown() override { qunsetenv("TMPDIR"); }

    static void writePpd(const QString& path, const QByteArray& stamp)
    {
        writeFile(path, ppdHeader() + "*Stamp: \"" + stamp +
                            "\"\n*Nothing: \"\"\n*X00000: \"QUJD\"\n*X00001: \"REVG\"\n");
    }

    QMap<QString, QString> values(const QStringList& keys) const
    {
        return offMainThread([&] { return panel->ppdValuesForAttributes(keys); });
    }

    std::optional<QByteArray> savedData() const
    {
        return offMainThread([&] { return panel->ppdSavedDataForAttribute(q("X")); });
    }

    QString queuePpd() const { return server.dir() + q("/server/etc/ppd/Fresh.ppd"); }

    QDir temporary() const { return QDir(folder.filePath(q("tmp"))); }

    qsizetype temporaryFiles() const { return temporary().entryList(QDir::Files | QDir::System).size(); }

    LogCapture log;
    PrivateCups server;
    QTemporaryDir folder;
    std::shared_ptr<FakeHost> host = std::make_shared<FakeHost>();
    std::shared_ptr<TestPanel> panel = makePanel<TestPanel>(host);
};

TEST_F(FreshPpdTest, ReadsWhatTheServerHasNowAndLeavesNoFile)
{
    const QStringList keys{q("Stamp"), q("Nothing"), q("Absent")};
    EXPECT_EQ(values(keys), (QMap<QString, QString>{{q("Stamp"), q("1.5")}, {q("Nothing"), QString()}}));
    EXPECT_EQ(log.count(q("searching fresh ppd for key Absent")), 1);
    EXPECT_EQ(savedData(), QByteArray("ABCDEF"));
    writePpd(queuePpd(), "2.5");
    EXPECT_EQ(values(keys).value(q("Stamp")), q("2.5"));
    writePpd(queuePpd(), "3.5");
    // The main thread takes a late answer the next time.
    EXPECT_TRUE(waitUntil([&] { return panel->ppdValueForAttribute(q("Stamp")) == q("3.5"); }));
    EXPECT_EQ(temporaryFiles(), 0);
}

TEST_F(FreshPpdTest, AQueueOrAServerThatIsNotThereAnswersNothing)
{
    const QStringList stamp{q("Stamp")};
    host->printer = std::make_shared<Printer>(q("Gone"), QString());
    EXPECT_TRUE(values(stamp).isEmpty());
    EXPECT_EQ(savedData(), std::nullopt);
    host->printer = nullptr;
    EXPECT_TRUE(values(stamp).isEmpty());
    host->printer = std::make_shared<Printer>(q("Fresh"), QString());
    ASSERT_TRUE(server.stop());
    EXPECT_TRUE(values(stamp).isEmpty());
}

TEST_F(FreshPpdTest, APpdThatDoesNotOpenIsLoggedAndKept)
{
    writeFile(queuePpd(), "no PPD at all\n");
    EXPECT_TRUE(values({q("Stamp")}).isEmpty());
    EXPECT_EQ(log.lines().last(), q("failed to open fresh ppd = 0x0"));
    EXPECT_EQ(temporaryFiles(), 1);
    EXPECT_EQ(savedData(), std::nullopt);
    EXPECT_EQ(temporaryFiles(), 2);
}

} // namespace halvern
