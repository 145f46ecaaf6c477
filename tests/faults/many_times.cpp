// SPDX-License-Identifier: MIT
// The print dialog opened, its printer switched, or its pages shown many times, and what is left of that.
// Usage: halvern-many-times openings|switches|pages COUNT PHOTO QUEUE OTHER. The first tenth warms up; then a
// line of JSON: how much more there is at the end, in KiB of the heap, descriptors, threads, widgets and
// files in the home.
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"
#include "tests/faults/run_until.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

#include <malloc.h>

namespace {

using namespace halvern;

constexpr int kReady = 60000; // milliseconds

long entriesOf(const char* folder)
{
    return long(QDir(QLatin1StringView(folder)).entryList(QDir::AllEntries | QDir::System).size());
}

struct Left {
    long heap = 0;
    long descriptors = 0;
    long threads = 0;
    long widgets = 0;
    long files = 0;

    static Left now()
    {
        Left left;
        left.heap = long(mallinfo2().uordblks / 1024);
        left.descriptors = entriesOf("/proc/self/fd");
        left.threads = entriesOf("/proc/self/task");
        left.widgets = long(QApplication::allWidgets().size());
        QDirIterator files(QDir::homePath(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        for (; files.hasNext(); files.next())
            ++left.files;
        return left;
    }
};

struct OpenDialog {
    OpenDialog(const SessionRequest& request, PanelSource& panels) : session(request, panels), dialog(session)
    {
        dialog.show();
        session.start();
        waitUntilReady();
    }

    void waitUntilReady()
    {
        if (!runUntil([&] { return session.canPrint() && session.printerList().hasAnswer(); }, kReady))
            qFatal("the dialog is not ready");
    }

    void show(const char* page) { dialog.findChild<PanelDeck*>()->showPage(QLatin1StringView(page)); }

    DialogSession session;
    PrintDialog dialog;
};

constexpr char kFeatures[] = "com.halvern.print.pde.features";

void settle()
{
    runUntil([] { return false; }, 3000); // what workers hold
}

Left repeat(int count, const std::function<void(int)>& once)
{
    const int warm = std::max(count / 10, 3);
    Left before;
    for (int i = 0; i < warm + count; ++i) {
        if (i == warm) {
            settle();
            before = Left::now();
        }
        once(i);
    }
    settle();
    const Left after = Left::now();
    return {after.heap - before.heap, after.descriptors - before.descriptors, after.threads - before.threads,
            after.widgets - before.widgets, after.files - before.files};
}

Left openings(const SessionRequest& request, int count)
{
    PluginLoader panels({QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).path()});
    return repeat(count, [&](int) {
        OpenDialog open(request, panels);
        open.show(kFeatures);
        open.dialog.done(QDialog::Rejected);
    });
}

Left switches(const SessionRequest& request, const QString& other, int count)
{
    PluginLoader panels({QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).path()});
    OpenDialog open(request, panels);
    return repeat(count, [&](int i) {
        open.session.selectPrinter(i % 2 == 0 ? other : request.printer);
        open.waitUntilReady();
    });
}

Left pages(const SessionRequest& request, int count)
{
    PluginLoader panels({QFileInfo(QStringLiteral(HALVERN_TEST_BUNDLE)).path()});
    OpenDialog open(request, panels);
    return repeat(count, [&](int) {
        for (const char* page : {kFeatures, "options"}) {
            open.show(page);
            QCoreApplication::processEvents();
        }
    });
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList given = QCoreApplication::arguments();
    if (given.size() != 6) {
        std::fputs("usage: halvern-many-times openings|switches|pages COUNT PHOTO QUEUE OTHER\n", stderr);
        return 2;
    }
    const SessionRequest request{given[4], {}, {given[3]}};
    const int count = given[2].toInt();
    const Left left = given[1] == QLatin1StringView("openings")   ? openings(request, count)
                      : given[1] == QLatin1StringView("switches") ? switches(request, given[5], count)
                                                                  : pages(request, count);
    std::printf("{\"heap\": %ld, \"descriptors\": %ld, \"threads\": %ld, \"widgets\": %ld, \"files\": %ld}\n",
                left.heap, left.descriptors, left.threads, left.widgets, left.files);
    finishQueuedWork();
    return 0;
}
