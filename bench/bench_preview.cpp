// SPDX-License-Identifier: MIT
// How long a photo takes from being opened to the preview, and a moved slider or a dragged crop until it is
// seen: works the real dialog on the default printer of the server in use, and prints milliseconds, median
// and 95th percentile, from the key or the mouse until the widget has been painted. bench-preview FILE
// [STEPS]
#include "dialog/preview/crop_editor.h"
#include "dialog/preview/preview_widget.h"
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTextStream>

#include <algorithm>

namespace {

using namespace halvern;

constexpr int kPatience = 60'000;
constexpr int kToggle = 0x200;
constexpr int kLarger = 6; // presses of a key

/// Sees that a widget was painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget& widget) : QObject(&widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        isSeen = isSeen || event->type() == QEvent::Paint;
        return false;
    }

    bool isSeen = false;
};

class Bench {
public:
    Bench(PrintDialog& dialog, QTextStream& out, int steps)
        : dialog_(dialog),
          out_(out),
          steps_(steps),
          preview_(*dialog.findChild<PreviewWidget*>()),
          painted_(preview_)
    {
    }

    /// Shows a panel and switches its adjustments on.
    void open(const char* kind)
    {
        dialog_.findChild<PanelDeck*>()->showPage(QLatin1StringView(kind));
        QTest::mouseClick(control(kToggle), Qt::LeftButton, {}, QPoint(12, control(kToggle)->height() / 2));
        QCoreApplication::processEvents();
    }

    /// Moves a slider one step at a time, up and down again.
    void measure(const char* what, int tag)
    {
        QWidget* slider = control(tag);
        slider->setFocus();
        QCoreApplication::processEvents();
        std::vector<double> times;
        for (int i = 0; i < steps_; ++i)
            times.push_back(timeOf(slider, i % 10 < 5 ? Qt::Key_Right : Qt::Key_Left));
        tell(what, std::move(times));
    }

    /// Drags the part of the photo that is printed, enlarged so that there is room for it.
    void crop()
    {
        preview_.setFocus();
        QTest::keyClick(&preview_, Qt::Key_C);
        auto* editor = dialog_.findChild<CropEditor*>();
        if (!editor || !QTest::qWaitFor([&] { return editor->isVisible(); }, kPatience))
            qFatal("the crop cannot be chosen");
        for (int i = 0; i < kLarger; ++i)
            QTest::keyClick(editor, Qt::Key_Plus);
        QCoreApplication::processEvents();
        Painted painted(*editor);
        QPoint at = editor->frameRect().center().toPoint();
        QTest::mousePress(editor, Qt::LeftButton, {}, at);
        std::vector<double> times;
        for (int i = 0; i < steps_; ++i) {
            at += i % 20 < 10 ? QPoint(2, 1) : QPoint(-2, -1);
            times.push_back(timeUntil(painted, [&] { QTest::mouseMove(editor, at); }));
        }
        QTest::mouseRelease(editor, Qt::LeftButton, {}, at);
        tell("crop dragged", std::move(times));
    }

    /// To 1:1, until the photo's own pixels are there.
    void zoom()
    {
        QElapsedTimer time;
        time.start();
        preview_.setZoomed(true);
        QCoreApplication::processEvents();
        const double first = double(time.nsecsElapsed()) / 1e6;
        if (!QTest::qWaitFor([&] { return !preview_.isReadingDetail(); }, kPatience))
            out_ << "the photo was not read" << Qt::endl;
        out_ << QString::asprintf("%-34sfirst picture %.1f ms, all of its pixels %.0f ms", "to 1:1", first,
                                  double(time.nsecsElapsed()) / 1e6)
             << Qt::endl;
    }

private:
    void tell(const char* what, std::vector<double> times)
    {
        std::sort(times.begin(), times.end());
        out_ << qSetFieldWidth(34) << Qt::left << what << qSetFieldWidth(0)
             << QString::asprintf("median %6.2f ms   p95 %6.2f ms   most %6.2f ms", times[times.size() / 2],
                                  times[times.size() * 95 / 100], times.back())
             << Qt::endl;
    }

    QWidget* control(int tag)
    {
        for (QWidget* widget : dialog_.findChildren<QWidget*>()) {
            if (widget->property("tag").isValid() && widget->property("tag").toInt() == tag &&
                widget->isVisible())
                return widget;
        }
        qFatal("no control has the tag %d", tag);
    }

    double timeOf(QWidget* slider, Qt::Key key)
    {
        return timeUntil(painted_,
                         [&] { QTest::sendKeyEvent(QTest::Click, slider, key, QString(), Qt::NoModifier); });
    }

    template <typename Deed> static double timeUntil(Painted& painted, const Deed& deed)
    {
        painted.isSeen = false;
        QElapsedTimer time;
        time.start();
        deed();
        while (!painted.isSeen && time.elapsed() < kPatience)
            QCoreApplication::processEvents();
        return double(time.nsecsElapsed()) / 1e6;
    }

    PrintDialog& dialog_;
    QTextStream& out_;
    int steps_;
    PreviewWidget& preview_;
    Painted painted_;
};

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList arguments = QCoreApplication::arguments();
    const int steps = arguments.size() > 2 ? arguments[2].toInt() : 200;
    if (arguments.size() < 2 || steps < 1) {
        QTextStream(stderr) << "usage: bench-preview FILE [STEPS]" << Qt::endl;
        return 2;
    }
    PluginLoader panels;
    DialogSession session({{}, {}, {arguments[1]}, 1}, panels);
    PrintDialog dialog(session);
    dialog.resize(1240, 780); // the preview beside the pages, whatever the screen
    dialog.show();
    auto* preview = dialog.findChild<PreviewWidget*>();
    Painted seen(*preview);
    QElapsedTimer opening;
    opening.start();
    session.start();
    const bool isThere = QTest::qWaitFor([&] { return session.hasPhotos(); }, kPatience);
    seen.isSeen = false;
    const bool isShown = isThere && QTest::qWaitFor([&] { return seen.isSeen; }, kPatience);
    const double firstPreview = double(opening.nsecsElapsed()) / 1e6;
    if (!isShown ||
        !QTest::qWaitFor([&] { return session.canPrint() && session.hasCustomPanels(); }, kPatience)) {
        QTextStream(stderr) << "The printer, its panels or the photo did not come." << Qt::endl;
        return 1;
    }
    const QSize pixels = session.photos().front().pixels;
    out << QString::asprintf("%d x %d pixels, %d steps a slider, %s", pixels.width(), pixels.height(), steps,
                             qPrintable(QGuiApplication::platformName()))
        << Qt::endl;
    out << QString::asprintf("%-34s%.0f ms", "opened to the first preview", firstPreview) << Qt::endl;
    Bench bench(dialog, out, steps);
    bench.crop();
    bench.open("com.halvern.print.pde.coloradjust");
    bench.measure("brightness, whole page", 4);
    bench.measure("gamma, whole page", 7);
    bench.open("com.halvern.print.pde.sharpness");
    bench.zoom();
    bench.measure("sharpening radius, 1:1", 1);
    bench.measure("sharpening intensity, 1:1", 2);
    return 0;
}
