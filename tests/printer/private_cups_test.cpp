#include "tests/support/files.h"
#include "tests/support/private_cups.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace halvern {

namespace {

QByteArray contentOf(const QString& pid, const char* name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(pid, QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Living processes that carry DIR in their command line.
QStringList processesOf(const QString& dir)
{
    QStringList found;
    for (const QString& pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (contentOf(pid, "cmdline").contains(dir.toUtf8() + "/server/etc"))
            found << pid;
    }
    return found;
}

QStringList start(const QString& dir)
{
    return {QStringLiteral("start"), dir};
}

QStringList stop(const QString& dir)
{
    return {QStringLiteral("stop"), dir};
}

QStringList addQueue(const QString& dir, const QString& name)
{
    return {QStringLiteral("add-queue"), dir, name};
}

// Where the server's files are while it runs (elsewhere if its user cannot enter DIR).
QString serverFolder(const std::map<QByteArray, QByteArray>& environment)
{
    return QString::fromUtf8(environment.at("CUPS_SERVERROOT")).section(QStringLiteral("/server/"), 0, 0);
}

QStringList queuesAt(const QByteArray& server)
{
    QProcess lpstat;
    lpstat.start(QStringLiteral("lpstat"),
                 {QStringLiteral("-h"), QString::fromUtf8(server), QStringLiteral("-e")});
    lpstat.waitForFinished();
    return QString::fromUtf8(lpstat.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

TEST(PrivateCupsScript, StartsOnceStopsWhollyAndKeepsTheQueues)
{
    const QTemporaryDir folder;
    qputenv("DISPLAY", ":77");
    const ProgramResult first = runPrivateCups(start(folder.path()));
    qunsetenv("DISPLAY");
    ASSERT_EQ(first.status, 0) << first.error.toStdString();
    const auto environment = parseAssignments(first.output);
    EXPECT_EQ(first.output.count(QLatin1Char('\n')), qsizetype(environment.size())) << "only assignments";
    const QString files = serverFolder(environment);
    const QStringList before = processesOf(files);
    EXPECT_EQ(before.size(), 2);
    for (const QString& pid : before)
        EXPECT_FALSE(contentOf(pid, "environ").contains("DISPLAY=:77"))
            << "it would look for a session there";
    EXPECT_EQ(runPrivateCups(addQueue(folder.path(), QStringLiteral("Kept"))).status, 0);

    const ProgramResult second = runPrivateCups(start(folder.path()));
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.output, first.output);
    EXPECT_THAT(second.error.toStdString(), testing::HasSubstr("already running"));
    EXPECT_EQ(processesOf(files), before);

    EXPECT_EQ(runPrivateCups(stop(folder.path())).status, 0);
    EXPECT_EQ(runPrivateCups(stop(folder.path())).status, 0);
    EXPECT_EQ(processesOf(files), QStringList());
    EXPECT_TRUE(QFileInfo(folder.filePath(QStringLiteral("jobs"))).isDir());
    EXPECT_FALSE(QFileInfo(folder.filePath(QStringLiteral("jobs"))).isSymLink());

    const ProgramResult again = runPrivateCups(start(folder.path()));
    EXPECT_EQ(queuesAt(parseAssignments(again.output).at("CUPS_SERVER")),
              QStringList{QStringLiteral("Kept")});
    EXPECT_EQ(runPrivateCups(stop(folder.path())).status, 0);
}

TEST(PrivateCupsScript, ServersInFoldersWithDifficultNamesWorkSideBySide)
{
    const QTemporaryDir folder;
    const QString odd = folder.filePath(QStringLiteral("it's a: #\"$HOME\" \u65e5\u672c"));
    const QString deep = folder.filePath(QStringLiteral("long/").repeated(30));
    for (const QString& dir : {odd, deep}) {
        const ProgramResult started = runPrivateCups(start(dir));
        ASSERT_EQ(started.status, 0) << started.error.toStdString();
    }
    for (const QString& dir : {odd, deep}) {
        const auto environment = parseAssignments(runPrivateCups(start(dir)).output);
        EXPECT_LT(environment.at("CUPS_SERVER").size(), 108);
        const QString name = dir == odd ? QStringLiteral("Odd") : QStringLiteral("Deep");
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
    other.start(QStringLiteral("sleep"), {QStringLiteral("60")});
    ASSERT_TRUE(other.waitForStarted());
    for (const char* name : {"cupsd", "dbus"})
        writeFile(folder.filePath(QStringLiteral("server/%1.pid").arg(QLatin1String(name))),
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
    EXPECT_THAT(refusal(start(QStringLiteral("/proc/nowhere"))),
                testing::HasSubstr("cannot make the folder"));
    EXPECT_THAT(refusal(stop(folder.filePath(QStringLiteral("x")))),
                testing::HasSubstr("there is no folder"));
    EXPECT_THAT(refusal(addQueue(folder.path(), QStringLiteral("Q"))),
                testing::HasSubstr("no server is running"));

    PrivateCups server;
    EXPECT_FALSE(server.addQueue(QStringLiteral("Q"), QStringLiteral("/nowhere.ppd")));
    EXPECT_THAT(server.error().toStdString(), testing::HasSubstr("/nowhere.ppd"));
    EXPECT_FALSE(server.addQueue(QStringLiteral("Q"), QString(), QStringLiteral("nosuch:/x")));
    EXPECT_THAT(server.error().toStdString(), testing::HasSubstr("lpadmin failed for queue Q"));
}

} // namespace

} // namespace halvern
