// SPDX-License-Identifier: MIT
#include "platform/foundation/archive/keyed_unarchiver.h"
#include "platform/printing/ppd.h"
#include "printer/papers/paper_list.h"
#include "printer/papers/ppd_archive.h"
#include "tests/support/test.h"

namespace halvern {

class PapersReportTest : public ServerTest {
protected:
    /// What the queue's PPD on the server says now.
    static std::optional<QVariantMap> catalogueOf(const char* queue)
    {
        const std::optional<QString> path =
            offMainThread([queue] { return ppd::fetch(QLatin1String(queue)); });
        EXPECT_TRUE(path);
        const auto archive = archiveInPpd(*path).bytes;
        QFile::remove(*path);
        return archive ? KeyedUnarchiver::unarchiveDictionary(*archive).root : std::nullopt;
    }

    static ProgramResult printerPapers(const QStringList& arguments)
    {
        return runProgram(q(HALVERN_TEST_SCRIPTS "/printer-papers"), arguments,
                          {{"HALVERN_PAPERS", HALVERN_PAPERS}});
    }

    static QVariantMap recordsOf(const QString& list)
    {
        const PaperListResult result = readPaperList(readFile(list));
        EXPECT_TRUE(result.list) << qPrintable(result.failure);
        return result.list->records;
    }
};

TEST_F(PapersReportTest, WhatIsLoadedChangesWhileThePrinterRuns)
{
    addQueue("Change");
    const auto change = [&](const QStringList& words) {
        const ProgramResult script = printerPapers(QStringList{server->dir(), q("Change")} + words);
        EXPECT_EQ(script.status, 0) << qPrintable(script.error);
    };
    const auto reports = [](const auto& condition) {
        return waitUntil([&] {
            const auto catalogue = catalogueOf("Change");
            return catalogue && condition(*catalogue);
        });
    };
    change({q("report")});
    const QVariantMap all = recordsOf(q(HALVERN_PAPER_LISTS "/standard.json"));
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == all; }));
    // What is there already makes way for what is loaded.
    change({q("load"), q("152.4")});
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == all; }));
    change({q("take-out"), q("sheets")});
    // Of the longer report that was there nothing remains.
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return !papers.isEmpty() && papers.size() < all.size() && papers.firstKey().startsWith(u'w');
    }));
    change({q("take-out"), q("all")});
    EXPECT_TRUE(reports([](const QVariantMap& papers) { return papers.isEmpty(); }));
    change({q("use"), q(HALVERN_PAPER_LISTS "/sheets-only.json")});
    const QVariantMap sheets = recordsOf(q(HALVERN_PAPER_LISTS "/sheets-only.json"));
    EXPECT_TRUE(reports([&](const QVariantMap& papers) { return papers == sheets; }));
    change({q("load"), q("152.4")});
    EXPECT_TRUE(reports([&](const QVariantMap& papers) {
        return papers.size() > sheets.size() && papers.contains(q("w1524s1r300"));
    }));
}

} // namespace halvern
