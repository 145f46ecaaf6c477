// SPDX-License-Identifier: MIT
// What a refresh of the printer's data costs the dialog: opens the real dialog on a queue that has never
// reported, shows the Features panel, and prints the main thread's longest stall from there until the paper
// menus are rebuilt and painted, and the time from the command job's completion until then.
//   bench-refresh QUEUE FILE
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"
#include "platform/printing/jobs.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QTest>
#include <QTextStream>

#include <atomic>
#include <thread>

namespace {

using namespace halvern;

constexpr int kPatience = 60'000;
constexpr int kNameTag = 7;
constexpr std::chrono::milliseconds kLook(5);

/// Beats as often as the event loop lets it, and remembers the longest pause.
class Heartbeat : public QObject {
public:
    Heartbeat()
    {
        startTimer(1, Qt::PreciseTimer);
        time_.start();
    }

    double longestMs() const { return double(longest_) / 1e6; }

    qint64 beats() const { return beats_; }

    void startAfresh()
    {
        longest_ = 0;
        beats_ = 0;
        time_.restart();
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        longest_ = std::max(longest_, time_.nsecsElapsed());
        ++beats_;
        time_.restart();
    }

private:
    QElapsedTimer time_;
    qint64 longest_ = 0;
    qint64 beats_ = 0;
};

/// Asks the server, on a thread of its own, until the queue has a completed job; notes when that was seen.
class CompletionWatch {
public:
    CompletionWatch(const QString& queue, const QElapsedTimer& clock)
        : thread_([this, queue, &clock] {
              jobs::Server server;
              while (!stop_ && seenAt_ < 0) {
                  const jobs::JobList done = server.jobs(queue, jobs::Which::completed);
                  if (!done.isEmpty() && done.front().state == jobs::kCompleted)
                      seenAt_ = clock.nsecsElapsed();
                  std::this_thread::sleep_for(kLook);
              }
          })
    {
    }

    ~CompletionWatch()
    {
        stop_ = true;
        thread_.join();
    }

    qint64 seenAt() const { return seenAt_; }

private:
    std::atomic<bool> stop_ = false;
    std::atomic<qint64> seenAt_ = -1;
    std::thread thread_;
};

QComboBox* nameMenu(const PrintDialog& dialog)
{
    for (QComboBox* menu : dialog.findChildren<QComboBox*>()) {
        if (menu->property("tag").isValid() && menu->property("tag").toInt() == kNameTag)
            return menu;
    }
    return nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        QTextStream(stderr) << "usage: bench-refresh QUEUE FILE" << Qt::endl;
        return 2;
    }
    PluginLoader panels;
    int status = 1;
    {
        DialogSession session({arguments[1], {}, {arguments[2]}, 1}, panels);
        PrintDialog dialog(session);
        dialog.show();
        session.start();
        // The panel comes with the printer, and its check begins at once.
        QElapsedTimer clock;
        clock.start();
        const CompletionWatch watch(arguments[1], clock);
        Heartbeat heart;
        const bool isThere =
            QTest::qWaitFor([&] { return session.canPrint() && session.hasCustomPanels(); }, kPatience);
        const bool isShown = isThere && dialog.findChild<PanelDeck*>()->showPage(
                                            QStringLiteral("com.halvern.print.pde.features"));
        // Opening the dialog and building the page's widgets is not the refresh's doing.
        QCoreApplication::processEvents();
        heart.startAfresh();
        if (isShown &&
            QTest::qWaitFor([&] { return nameMenu(dialog) && nameMenu(dialog)->count() > 0; }, kPatience)) {
            const qint64 rebuiltAt = clock.nsecsElapsed();
            // News on the bus may bring the papers before the completion is looked for.
            if (!QTest::qWaitFor([&] { return watch.seenAt() >= 0; }, kPatience)) {
                QTextStream(stderr) << "The job's completion was not seen." << Qt::endl;
                return 1;
            }
            QTextStream(stdout) << QString::asprintf(
                                       "stall %.1f ms  completion-to-menus %.0f ms  papers %d  beats %lld",
                                       heart.longestMs(), double(rebuiltAt - watch.seenAt()) / 1e6,
                                       nameMenu(dialog)->count(), static_cast<long long>(heart.beats()))
                                << Qt::endl;
            status = 0;
        } else {
            QTextStream(stderr) << "The printer, its panels or its papers did not come." << Qt::endl;
        }
        dialog.close();
    }
    finishQueuedWork();
    return status;
}
