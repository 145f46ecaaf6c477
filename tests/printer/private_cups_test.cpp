// SPDX-License-Identifier: MIT
#include "tests/support/test.h"

namespace halvern {
namespace {

QStringList start(const QString& dir)
{
    return {q("start"), dir};
}

QStringList stop(const QString& dir)
{
    return {q("stop"), dir};
}

QStringList addQueue(const QString& dir, const QString& name)
{
    return {q("add-queue"), dir, name};
}

QStringList queuesAt(const QByteArray& server)
{
    const ProgramResult lpstat = runProgram(q("lpstat"), {q("-h"), QString::fromUtf8(server), q("-e")});
    return lpstat.output.split(u'\n', Qt::SkipEmptyParts);
}

TEST(PrivateCupsScript, ServersInFoldersWithDifficultNamesWorkSideBySide)
{
    const QTemporaryDir folder;
    const QString odd = folder.filePath(q("it's a: #\"$HOME\" \u65e5\u672c"));
    const QString deep = folder.filePath(q("long/").repeated(30));
    for (const QString& dir : {odd, deep}) {
        const ProgramResult started = runPrivateCups(start(dir));
        ASSERT_EQ(started.status, 0) << started.error.toStdString();
    }
    for (const QString& dir : {odd, deep}) {
        const auto environment = parseAssignments(runPrivateCups(start(dir)).output);
        EXPECT_LT(environment.at("CUPS_SERVER").size(), 108);
        const QString name = dir == odd ? q("Odd") : q("Deep");
        EXPECT_EQ(runPrivateCups(addQueue(dir, name)).status, 0);
        EXPECT_EQ(queuesAt(environment.at("CUPS_SERVER")), QStringList{name});
    }
    for (const QString& dir : {odd, deep})
        EXPECT_EQ(runPrivateCups(stop(dir)).status, 0);
}

TEST(PrivateCupsScript, StopLeavesAProcessAloneThatOnlyHasTheOldNumber)
{
    const QTemporaryDir folder;
    ASSERT_EQ(runPrivateCups(start(folder.path())).status, 0);
    ASSERT_EQ(runPrivateCups(stop(folder.path())).status, 0);
    QProcess other;
    other.start(q("sleep"), {q("60")});
    ASSERT_TRUE(other.waitForStarted());
    for (const char* name : {"cupsd", "dbus"})
        writeFile(folder.filePath(q("server/%1.pid").arg(QLatin1String(name))),
                  QByteArray::number(other.processId()) + " 12345\n");
    EXPECT_EQ(runPrivateCups(stop(folder.path())).status, 0);
    EXPECT_FALSE(other.waitForFinished(0));
    other.kill();
    other.waitForFinished();
}

TEST(PrivateCupsScript, SaysWhatIsWrongAndPrintsNoEnvironment)
{
    const QTemporaryDir folder;
    const auto refusal = [](const QStringList& arguments) {
        const ProgramResult result = runPrivateCups(arguments);
        EXPECT_NE(result.status, 0);
        EXPECT_EQ(result.output, QString());
        return result.error.toStdString();
    };
    EXPECT_THAT(refusal({}), testing::HasSubstr("usage:"));
    EXPECT_THAT(refusal(start(q("/proc/nowhere"))), testing::HasSubstr("cannot make the folder"));
    EXPECT_THAT(refusal(stop(folder.filePath(q("x")))), testing::HasSubstr("there is no folder"));
    EXPECT_THAT(refusal(addQueue(folder.path(), q("Q"))), testing::HasSubstr("no server is running"));

    const QString lure = folder.filePath(q("lure"));
    writeFile(folder.filePath(q("theirs/file")), "x");
    writeFile(folder.filePath(q("jobs/1/log.txt")), "x");
    ASSERT_TRUE(QDir().mkpath(lure) && QFile::link(folder.filePath(q("theirs")), lure + q("/server")));
    EXPECT_THAT(refusal(start(lure)), testing::HasSubstr("a link that this script has not made"));
    EXPECT_THAT(refusal(start(folder.path())), testing::HasSubstr("not this script's"));
    EXPECT_EQ(QDir(folder.filePath(q("theirs"))).entryList(QDir::Files), QStringList{q("file")});

    PrivateCups server;
    EXPECT_FALSE(server.addQueue(q("Q"), q("/nowhere.ppd")));
    EXPECT_THAT(server.error().toStdString(), testing::HasSubstr("/nowhere.ppd"));
    EXPECT_FALSE(server.addQueue(q("Q"), QString(), q("nosuch:/x")));
    EXPECT_THAT(server.error().toStdString(), testing::HasSubstr("lpadmin failed for queue Q"));
}

} // namespace
} // namespace halvern
