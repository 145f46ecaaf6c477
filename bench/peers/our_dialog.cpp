// SPDX-License-Identifier: MIT
// Our print dialog as its program opens it: one line of figures (meter.h) when it is painted and list,
// printer, panels and photo are there, and one when QUEUE, if named, has been chosen and its options are
// shown. "bare" shows an empty window of the same size instead.
#include "bench/peers/first_paint.h"
#include "bench/peers/meter.h"
#include "dialog/photo/decoder_process.h"
#include "dialog/program/application.h"
#include "dialog/session/plugin_loader.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"

#include <QLabel>
#include <QTextStream>

namespace {

using namespace halvern;

int runBare()
{
    Meter meter;
    QLabel window(QStringLiteral("Print"));
    window.resize(1240, 780);
    new FirstPaint(window, [&] {
        meter.notePainted();
        meter.report();
        QCoreApplication::quit();
    });
    window.show();
    return QCoreApplication::exec();
}

// The page of options stays the one that is looked at.
void chooseQueue(PrintDialog& dialog, DialogSession& session, Meter& meter, const QString& queue)
{
    dialog.findChild<PanelDeck*>()->showPage(QStringLiteral("options"));
    meter.startAgain();
    QObject::connect(&session, &DialogSession::printerReady, &dialog, [&] {
        new FirstPaint(dialog, [&meter] {
            meter.notePainted();
            meter.report();
            QCoreApplication::quit();
        });
        dialog.update();
    });
    session.selectPrinter(queue);
}

int runDialog(const QString& photo, const QString& queue)
{
    Meter meter;
    PluginLoader panels;
    DialogSession session({{}, {}, {photo}, 1}, panels);
    PrintDialog dialog(session);
    bool isReported = false;
    const auto report = [&] {
        if (isReported || !meter.isPainted() || !session.canPrint() || !session.printerList().hasAnswer())
            return;
        isReported = true;
        meter.report();
        if (queue.isEmpty())
            QCoreApplication::quit();
        else
            QTimer::singleShot(0, &dialog, [&] { chooseQueue(dialog, session, meter, queue); });
    };
    new FirstPaint(dialog, [&] {
        meter.notePainted();
        report();
    });
    QObject::connect(&session, &DialogSession::photosChanged, &dialog, report);
    QObject::connect(&session, &DialogSession::printerReady, &dialog, report);
    QObject::connect(&session.printerList(), &PrinterList::changed, &dialog, report);
    dialog.show();
    session.start();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    prepareProcess();
    // As the program does it.
    std::optional<DecoderLease> decoders;
    if (argc >= 2 && qstrcmp(argv[1], "bare") != 0)
        decoders.emplace();
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1StringView("bare"))
        return runBare();
    if (arguments.size() < 2) {
        QTextStream(stderr) << "usage: bench-our-dialog bare | FILE [QUEUE]" << Qt::endl;
        return 2;
    }
    const QList<std::shared_ptr<QTranslator>> translators = prepareApplication();
    return runDialog(arguments.at(1), arguments.value(2));
}
