// SPDX-License-Identifier: MIT
// How long the main thread is busy at a time while the photos' row is scrolled from its beginning to its end
// and back: bench-strip FILES... An event is what the application is told once, with all that follows from
// it.
#include "dialog/session/dialog_session.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace halvern;

namespace {

constexpr int kNotch = -120;
constexpr int kEvery = 16; // milliseconds: a frame

class TimedApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (depth_++ > 0) {
            const bool isTaken = QApplication::notify(receiver, event);
            --depth_;
            return isTaken;
        }
        QElapsedTimer timer;
        timer.start();
        const double before = processorTime();
        const bool isTaken = QApplication::notify(receiver, event);
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
        busy.push_back(processorTime() - before);
        --depth_;
        return isTaken;
    }

    void report(const char* what)
    {
        tell(what, "by the clock", times);
        tell(what, "of the processor", busy);
    }

private:
    // Milliseconds of the main thread's own, whatever else the computer does.
    static double processorTime()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
    }

    static void tell(const char* what, const char* kind, std::vector<double>& figures)
    {
        if (figures.empty()) {
            std::printf("%-8s %-16s nothing: the photos' row needs a screen with more room\n", what, kind);
            return;
        }
        std::ranges::sort(figures);
        const auto at = [&](double share) { return figures[size_t(double(figures.size() - 1) * share)]; };
        std::printf("%-8s %-16s %6zu events: median %.2f ms, 99 %% %.2f ms, longest %.2f ms\n", what, kind,
                    figures.size(), at(0.5), at(0.99), at(1.0));
        figures.clear();
    }

    std::vector<double> times;
    std::vector<double> busy;
    int depth_ = 0;
};

void scroll(QListView& list, int notch, int end)
{
    QScrollBar* const bar = list.horizontalScrollBar();
    QWidget* const view = list.viewport();
    for (int i = 0; i < 20'000 && bar->value() != end; ++i) {
        const QPointF at = view->rect().center();
        QWheelEvent wheel(at, view->mapToGlobal(at), {}, {0, notch}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view, &wheel);
        QTest::qWait(kEvery);
    }
}

} // namespace

int main(int argc, char** argv)
{
    TimedApplication app(argc, argv);
    SessionRequest request;
    request.files = QApplication::arguments().mid(1);
    PluginLoader none(QStringList{});
    DialogSession session(request, none);
    PrintDialog dialog(session);
    dialog.show();
    session.start();
    if (!QTest::qWaitFor([&] { return session.hasPhotos(); }, 600'000))
        return 1;
    QTest::qWait(500);
    app.report("reading");
    auto* const list = dialog.findChild<QListView*>(QStringLiteral("photoList"));
    scroll(*list, kNotch, list->horizontalScrollBar()->maximum());
    app.report("forward");
    scroll(*list, -kNotch, 0);
    app.report("back");
    return 0;
}
