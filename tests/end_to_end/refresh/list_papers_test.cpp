// SPDX-License-Identifier: MIT
// halvern-print --list-papers as a process, on a real server.
#include "dialog/program/paper_table.h"
#include "platform/printing/jobs.h"
#include "tests/support/test.h"

#include <csignal>

namespace halvern {
namespace {

class ListPapers : public testing::Test {
protected:
    void addQueue(const char* name, const char* faults, const QStringList& more = {})
    {
        writeFile(server.dir() + q("/papers/%1.json").arg(q(name)),
                  R"({"abilities": {"duplex": false, "extraFeatures": true}, "papers": [
            {"sheet": "Gloss A4", "width": 210, "surface": 1, "resolutions": [610, 300], "tones": [2]},
            {"roll": 152.4, "surfaces": [2, 4], "resolutions": [610], "tones": [1, 6]}]})");
        ASSERT_TRUE(
            server.addQueue(q(name), QString(), q("halvern://virtual/%1%2").arg(q(name), q(faults)), more))
            << qPrintable(server.error());
    }

    static void start(ChildProcess& program, const QStringList& arguments)
    {
        program.start(q(HALVERN_PRINT_PROGRAM), QStringList{q("--list-papers")} + arguments);
    }

    int finish(ChildProcess& program)
    {
        const int status = program.wait();
        out = QString::fromUtf8(program.standardOutput());
        err = QString::fromUtf8(program.standardError());
        return status;
    }

    int run(const QStringList& arguments)
    {
        ChildProcess program;
        start(program, arguments);
        return finish(program);
    }

    static jobs::JobList activeJobs(const char* queue)
    {
        return jobs::Server().jobs(q(queue), jobs::Which::active);
    }

    PrivateCups server;
    QString out;
    QString err;
};

TEST_F(ListPapers, TellsWhatIsKnownAndAsksOnlyWhenTold)
{
    addQueue("Photo", "");
    EXPECT_EQ(run({}), 0) << qPrintable(err);
    EXPECT_TRUE(out.startsWith(q("Photo: last updated never\n"))) << qPrintable(out);
    EXPECT_TRUE(jobs::Server().jobs(q("Photo"), jobs::Which::completed).isEmpty());

    EXPECT_EQ(run({q("--refresh"), q("--printer"), q("Photo")}), 0) << qPrintable(err);
    const QStringList lines = out.split(u'\n');
    ASSERT_EQ(lines.size(), 7) << qPrintable(out);
    EXPECT_TRUE(lines[0].contains(q("(just now)"))) << qPrintable(out);
    EXPECT_EQ(lines[2].simplified(), q("Gloss A4 1 - Gloss 300, 610 dpi Standard, Soft"));
    EXPECT_EQ(lines[4].simplified(), q("152.4 mm 2 - Satin 610 dpi Standard, Vivid, Black and White"));
    EXPECT_EQ(lines[5].simplified(), q("152.4 mm 4 - Thin Silk 610 dpi Standard, Vivid, Black and White"));

    const QString known = out.section(u'\n', 1);
    EXPECT_EQ(run({}), 0);
    EXPECT_EQ(out.section(u'\n', 1), known);
    EXPECT_EQ(run({q("--printer"), q("Nowhere")}), 1);
    EXPECT_TRUE(err.contains(q("no printer \"Nowhere\"")) && err.contains(q("Photo"))) << qPrintable(err);
}

TEST_F(ListPapers, SaysWhyThePrinterDidNotAnswerAndLeavesNoJobBehind)
{
    const struct {
        const char* queue;
        const char* faults;
        QStringList more;
        const char* sentence;
    } cases[] = {
        {"Holding", "?hold", {}, "was held"},
        {"Refusing", "?reject", {}, "could not answer (The printer refuses this job)"},
        {"Stopping", "?stop&reason=cover-open", {}, "the cover is open"},
        {"Breaking", "?filter-fails", {}, "could not be processed (The command file"},
        {"Garbling", "?garbled", {}, "cannot be read (corrupt: "},
        {"Paused", "", {q("--disabled")}, "does not work at the moment"},
        {"Closed", "", {q("--rejecting")}, "does not accept jobs"},
    };

    for (const auto& each : cases) {
        addQueue(each.queue, each.faults, each.more);
        EXPECT_EQ(run({q("--refresh"), q("--printer"), q(each.queue)}), 1) << each.queue;
        EXPECT_TRUE(err.contains(q(each.sentence))) << each.queue << ": " << qPrintable(err);
        EXPECT_TRUE(waitUntil([&] { return activeJobs(each.queue).isEmpty(); })) << each.queue;
        EXPECT_TRUE(out.startsWith(q(each.queue))) << "what is known is listed all the same";
    }
}

TEST_F(ListPapers, ABusyPrinterIsNotAskedAndADyingServerEndsTheWaiting)
{
    addQueue("Slow", "?slow=9999");
    ChildProcess first;
    start(first, {q("--refresh")});
    ASSERT_TRUE(waitUntil([&] {
        const auto active = activeJobs("Slow");
        return active.size() == 1 && active.front().state == jobs::kProcessing;
    }));
    EXPECT_EQ(run({q("--refresh")}), 1);
    EXPECT_TRUE(err.contains(q("busy with another job"))) << qPrintable(err);
    ASSERT_TRUE(server.stop());
    EXPECT_EQ(finish(first), 1);
    EXPECT_TRUE(err.contains(q("cannot be reached"))) << qPrintable(err);
}

TEST_F(ListPapers, ASignalEndsItAtOnceAndTakesTheJobBackAndLostOutputIsNoSuccess)
{
    addQueue("Slow", "?slow=9999");
    ChildProcess program;
    start(program, {q("--refresh")});
    ASSERT_TRUE(waitUntil([] { return activeJobs("Slow").size() == 1; }));
    program.signal(SIGTERM);
    EXPECT_EQ(finish(program), 4);
    EXPECT_EQ(out, QString());
    EXPECT_TRUE(waitUntil([] { return activeJobs("Slow").isEmpty(); }));

    const ProgramResult full =
        runProgram(q("sh"), {q("-c"), q("exec \"$0\" --list-papers >/dev/full"), q(HALVERN_PRINT_PROGRAM)});
    EXPECT_EQ(full.status, 1);
    EXPECT_TRUE(full.error.contains(q("could not be written"))) << qPrintable(full.error);
}

} // namespace
} // namespace halvern
