// SPDX-License-Identifier: MIT
// How long a user waits for the dialog: prints microseconds from the start of the process, as its caller took
// it (HALVERN_BENCH_START, microseconds since the epoch), until the window is painted and takes input, and
// until printer, options and photo are there too. "bare" shows an empty window instead, for comparison.
#include "dialog/photo/decoder_process.h"
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/print_dialog.h"

#include <QLabel>
#include <QTextStream>
#include <QTimer>

#include <chrono>

namespace {

using namespace halvern;

qint64 sinceStart()
{
    using namespace std::chrono;
    const qint64 now = duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
    return now - qEnvironmentVariable("HALVERN_BENCH_START").toLongLong();
}

/// Calls back once after the window's first painting, when the event loop is free again.
class FirstPaint : public QObject {
public:
    FirstPaint(QWidget& window, std::function<void()> done) : QObject(&window), done_(std::move(done))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && done_)
            QTimer::singleShot(0, this, std::exchange(done_, {}));
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> done_;
};

int runBare(QTextStream& out)
{
    QLabel window(QStringLiteral("Print"));
    window.resize(1240, 780);
    FirstPaint paint(window, [&] {
        out << sinceStart() << Qt::endl;
        QCoreApplication::quit();
    });
    window.show();
    return QCoreApplication::exec();
}

int runDialog(QTextStream& out, const QString& photo)
{
    PluginLoader panels;
    DialogSession session({{}, {}, {photo}, 1}, panels);
    PrintDialog dialog(session);
    qint64 painted = 0;
    bool isComplete = false;
    const auto report = [&] {
        if (painted == 0 || !isComplete)
            return;
        out << painted << ' ' << sinceStart() << Qt::endl;
        QCoreApplication::quit();
    };
    FirstPaint paint(dialog, [&] {
        painted = sinceStart();
        report();
    });
    const auto check = [&] {
        isComplete = isComplete || (session.canPrint() && session.printerList().hasAnswer());
        report();
    };
    QObject::connect(&session, &DialogSession::photosChanged, &dialog, check);
    QObject::connect(&session, &DialogSession::printerReady, &dialog, check);
    QObject::connect(&session.printerList(), &PrinterList::changed, &dialog, check);
    dialog.show();
    session.start();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    std::optional<DecoderLease> decoders;
    if (argc == 2 && qstrcmp(argv[1], "bare") != 0)
        decoders.emplace();
    QApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1StringView("bare"))
        return runBare(out);
    if (arguments.size() != 2) {
        QTextStream(stderr) << "usage: bench-dialog-start bare | FILE" << Qt::endl;
        return 2;
    }
    const QList<std::shared_ptr<QTranslator>> translators = prepareApplication();
    return runDialog(out, arguments.at(1));
}
