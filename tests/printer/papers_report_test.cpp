#include "platform/foundation/distributed_notification_center.h"
#include "platform/foundation/keyed_unarchiver.h"
#include "platform/printing/ppd.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_archive.h"
#include "tests/printer/print_job.h"
#include "tests/support/child_process.h"
#include "tests/support/observers.h"
#include "tests/support/private_cups.h"

#include <QDateTime>
#include <QFile>

#include <cups/cups.h>
#include <gtest/gtest.h>

namespace halvern {

namespace {

const QString kPaperNote = QStringLiteral("VLXPrinterPaperDidUpdateNotification");
const QString kInfoNote = QStringLiteral("VLXPrinterInfoDidUpdateNotification");

QByteArray fileContent(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

} // namespace

class PapersReportTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        server = std::make_unique<PrivateCups>();
        ASSERT_TRUE(server->isRunning()) << server->error().toStdString();
    }

    static void TearDownTestSuite() { server.reset(); }

    static void addQueue(const char* queue, const char* faults = "")
    {
        ASSERT_TRUE(server->addQueue(QLatin1String(queue), QString(),
                                     QStringLiteral("halvern://virtual/x?") + QLatin1String(faults)));
    }

    int sendCommands(const char* queue, const char* commands = "ReportStatus\nAutoConfigure\n")
    {
        QFile file(documents.filePath(QStringLiteral("commands")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("#CUPS-COMMAND\n") + commands);
        file.close();
        return printFile(queue, file.fileName(), "application/vnd.cups-command");
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

    static ChildProcess& printerPapers(ChildProcess& script, const QStringList& arguments)
    {
        script.start(QStringLiteral(HALVERN_TEST_SCRIPTS "/printer-papers"), arguments,
                     {{"HALVERN_PAPERS", HALVERN_PAPERS}});
        return script;
    }

    static QVariantMap recordsOf(const QString& list)
    {
        const PaperListResult result = readPaperList(fileContent(list));
        EXPECT_TRUE(result.list) << qPrintable(result.failure);
        return result.list->records;
    }

    static inline std::unique_ptr<PrivateCups> server;
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
    ChildProcess script;
    const auto change = [&](const QStringList& words) {
        const int status =
            printerPapers(script, QStringList{server->dir(), QStringLiteral("Change")} + words).wait();
        EXPECT_EQ(status, 0) << script.standardError().constData();
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
    change({QStringLiteral("take-out"), QStringLiteral("sheets")});
    // Of the longer report that was there nothing remains.
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return !papers.isEmpty() && papers.size() < all.size() &&
               papers.firstKey().startsWith(QLatin1Char('w'));
    }));
    change({QStringLiteral("use"), QStringLiteral(HALVERN_PAPER_LISTS "/sheets-only.json")});
    const QVariantMap sheets = recordsOf(QStringLiteral(HALVERN_PAPER_LISTS "/sheets-only.json"));
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == sheets; }));
    change({QStringLiteral("load"), QStringLiteral("152.4")});
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return papers.size() > sheets.size() && papers.contains(QStringLiteral("w1524s1r300"));
    }));
}

TEST_F(PapersReportTest, APrinterThatDoesNotAnswerReportsNothing)
{
    const std::pair<const char*, const char*> faults[] = {{"Fail", "fail"},
                                                          {"Stop", "stop"},
                                                          {"Hold", "hold"},
                                                          {"Reject", "reject"},
                                                          {"Filter", "filter-fails"}};
    for (const auto& [queue, fault] : faults) {
        addQueue(queue, fault);
        const int job = sendCommands(queue);
        EXPECT_TRUE(waitUntil([&] { return jobState(job) != IPP_JSTATE_PROCESSING; })) << queue;
        EXPECT_NE(jobState(job), IPP_JSTATE_COMPLETED) << queue;
        EXPECT_EQ(reportOf(queue).timeStamp, std::nullopt) << queue;
    }
    addQueue("Status");
    EXPECT_TRUE(reaches(sendCommands("Status", "ReportStatus\n"), IPP_JSTATE_COMPLETED));
    EXPECT_EQ(reportOf("Status").timeStamp, std::nullopt);
}

TEST_F(PapersReportTest, AGarbledReportHasATimeAndNoCatalogue)
{
    addQueue("Garbled", "garbled");
    EXPECT_TRUE(reaches(sendCommands("Garbled"), IPP_JSTATE_COMPLETED));
    EXPECT_EQ(reportOf("Garbled").catalogue, std::nullopt);
    EXPECT_NE(reportOf("Garbled").timeStamp, std::nullopt);
}

TEST_F(PapersReportTest, MistakesOfTheScriptAreExplainedAndChangeNothing)
{
    addQueue("Mistake");
    const QString dir = server->dir();
    const QString queue = QStringLiteral("Mistake");
    const std::pair<QStringList, const char*> mistakes[] = {
        {{dir, queue}, "usage"},
        {{dir, queue, QStringLiteral("unload"), QStringLiteral("152.4")}, "usage"},
        {{dir, QStringLiteral("Nobody"), QStringLiteral("show")}, "no queue Nobody"},
        {{dir + QStringLiteral("/none"), queue, QStringLiteral("show")}, "private-cups start"},
        {{dir, queue, QStringLiteral("take-out"), QStringLiteral("Papyrus")},
         "no paper \"Papyrus\" is loaded"},
        {{dir, queue, QStringLiteral("use"), QStringLiteral("/dev/null")}, "this is not JSON"},
    };
    for (const auto& [arguments, words] : mistakes) {
        ChildProcess script;
        EXPECT_GT(printerPapers(script, arguments).wait(), 0) << words;
        EXPECT_TRUE(script.standardError().contains(words)) << script.standardError().constData();
    }
    EXPECT_FALSE(QFile::exists(dir + QStringLiteral("/papers/Mistake.json")));
}

} // namespace halvern
