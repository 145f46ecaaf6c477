#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/foundation/notifications/distributed_notification_center.h"
#include "platform/printing/ppd.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_archive.h"
#include "tests/printer/print_job.h"
#include "tests/support/files.h"
#include "tests/support/observers.h"
#include "tests/support/server_test.h"

#include <QDateTime>
#include <QFile>

#include <cups/cups.h>
#include <gtest/gtest.h>

namespace halvern {

namespace {

const QString kPaperNote = QStringLiteral("VLXPrinterPaperDidUpdateNotification");
const QString kInfoNote = QStringLiteral("VLXPrinterInfoDidUpdateNotification");

} // namespace

class PapersReportTest : public ServerTest {
protected:
    int sendCommands(const char* queue)
    {
        return printFile(queue,
                         writeFile(documents.filePath(QStringLiteral("commands")),
                                   "#CUPS-COMMAND\nReportStatus\nAutoConfigure\n"),
                         "application/vnd.cups-command");
    }

    struct Report {
        std::optional<QVariantMap> catalogue;
        std::optional<QString> timeStamp;
        std::optional<QString> duplex;
    };

    /// What the queue's PPD on the server says now.
    static Report reportOf(const char* queue)
    {
        const std::optional<QString> path = ppd::fetch(QLatin1String(queue));
        EXPECT_TRUE(path);
        Report report;
        if (const auto archive = archiveInPpd(*path).bytes)
            report.catalogue = KeyedUnarchiver::unarchiveDictionary(*archive).root;
        const ppd::File file = ppd::open(*path);
        report.timeStamp = ppd::attribute(file.get(), QStringLiteral("VLXTimeStamp"));
        report.duplex = ppd::attribute(file.get(), QStringLiteral("VLXDuplex"));
        QFile::remove(*path);
        return report;
    }

    static ProgramResult printerPapers(const QStringList& arguments)
    {
        return runProgram(QStringLiteral(HALVERN_TEST_SCRIPTS "/printer-papers"), arguments,
                          {{"HALVERN_PAPERS", HALVERN_PAPERS}});
    }

    static QVariantMap recordsOf(const QString& list)
    {
        const PaperListResult result = readPaperList(readFile(list));
        EXPECT_TRUE(result.list) << qPrintable(result.failure);
        return result.list->records;
    }

    QTemporaryDir documents;
};

TEST_F(PapersReportTest, TheReportIsInThePpdWhenTheJobHasCompletedAndWhenItIsAnnounced)
{
    addQueue("Photo");
    EXPECT_EQ(reportOf("Photo").timeStamp, std::nullopt);
    const QString uri = QStringLiteral("halvern://virtual/x?");
    DistributedNotificationCenter center;
    QStringList announced;
    for (const QString& name : {kPaperNote, kInfoNote}) {
        center.addObserver(this, name, uri, [&](const DistributedNotification& note) {
            announced.append(note.name);
            EXPECT_NE(reportOf("Photo").timeStamp, std::nullopt);
        });
    }
    ASSERT_TRUE(waitUntil([&] { return center.isConnected(); }));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    const int job = sendCommands("Photo");
    ASSERT_TRUE(reaches(job, IPP_JSTATE_COMPLETED));
    const Report report = reportOf("Photo");
    EXPECT_EQ(report.catalogue, recordsOf(QStringLiteral(HALVERN_PAPER_LISTS "/standard.json")));
    EXPECT_EQ(report.duplex, QStringLiteral("True"));
    const double stamp = report.timeStamp.value_or(QString()).toDouble();
    const qint64 reference = QDate(2001, 1, 1).startOfDay(Qt::UTC).toSecsSinceEpoch();
    EXPECT_GE(stamp, double(before - reference) - 1.0);
    EXPECT_LE(stamp, double(QDateTime::currentSecsSinceEpoch() - reference) + 1.0);
    EXPECT_TRUE(waitUntil([&] { return announced.size() == 2; }));
    EXPECT_EQ(announced, (QStringList{kInfoNote, kPaperNote}));
}

TEST_F(PapersReportTest, WhatIsLoadedChangesWhileThePrinterRuns)
{
    addQueue("Change");
    const auto change = [&](const QStringList& words) {
        const ProgramResult script =
            printerPapers(QStringList{server->dir(), QStringLiteral("Change")} + words);
        EXPECT_EQ(script.status, 0) << qPrintable(script.error);
    };
    const auto reports = [](const auto& condition) {
        return waitUntil([&] {
            const auto catalogue = reportOf("Change").catalogue;
            return catalogue && condition(*catalogue);
        });
    };
    change({QStringLiteral("report")});
    const QVariantMap all = recordsOf(QStringLiteral(HALVERN_PAPER_LISTS "/standard.json"));
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == all; }));
    // What is there already makes way for what is loaded.
    change({QStringLiteral("load"), QStringLiteral("152.4")});
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == all; }));
    change({QStringLiteral("take-out"), QStringLiteral("sheets")});
    // Of the longer report that was there nothing remains.
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return !papers.isEmpty() && papers.size() < all.size() &&
               papers.firstKey().startsWith(QLatin1Char('w'));
    }));
    change({QStringLiteral("take-out"), QStringLiteral("all")});
    EXPECT_TRUE(reports([](const QVariantMap& papers) { return papers.isEmpty(); }));
    change({QStringLiteral("use"), QStringLiteral(HALVERN_PAPER_LISTS "/sheets-only.json")});
    const QVariantMap sheets = recordsOf(QStringLiteral(HALVERN_PAPER_LISTS "/sheets-only.json"));
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == sheets; }));
    change({QStringLiteral("load"), QStringLiteral("152.4")});
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return papers.size() > sheets.size() && papers.contains(QStringLiteral("w1524s1r300"));
    }));
}

TEST_F(PapersReportTest, MistakesOfTheScriptAreExplainedAndChangeNothing)
{
    addQueue("Mistake");
    const QString dir = server->dir();
    const QString queue = QStringLiteral("Mistake");
    const std::pair<QStringList, const char*> mistakes[] = {
        {{dir, queue, QStringLiteral("unload"), QStringLiteral("152.4")}, "usage"},
        {{dir, QStringLiteral("Nobody"), QStringLiteral("show")}, "no queue Nobody"},
        {{dir, queue, QStringLiteral("take-out"), QStringLiteral("Papyrus")},
         "no paper \"Papyrus\" is loaded"},
        {{dir, queue, QStringLiteral("use"), QStringLiteral("/dev/null")}, "this is not JSON"},
    };
    for (const auto& [arguments, words] : mistakes) {
        const ProgramResult script = printerPapers(arguments);
        EXPECT_GT(script.status, 0) << words;
        EXPECT_TRUE(script.error.contains(QLatin1StringView(words))) << qPrintable(script.error);
    }
    EXPECT_FALSE(QFile::exists(dir + QStringLiteral("/papers/Mistake.json")));
}

} // namespace halvern
