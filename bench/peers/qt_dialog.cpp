// SPDX-License-Identifier: MIT
// Qt's own print dialog, opened as an application opens it: one line of figures (meter.h) when it is painted,
// and one when QUEUE, if named, has been chosen and its picture is there.
#include "bench/peers/first_paint.h"
#include "bench/peers/meter.h"

#include <QApplication>
#include <QComboBox>
#include <QPrintDialog>
#include <QPrinter>

namespace {

void chooseQueue(QPrintDialog& dialog, Meter& meter, const QString& queue)
{
    auto* list = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
    const int row = list ? list->findText(queue) : -1;
    if (row < 0)
        qFatal("the dialog does not list the queue");
    meter.startAgain();
    list->setCurrentIndex(row);
    new FirstPaint(dialog, [&meter] {
        meter.notePainted();
        meter.report();
        QCoreApplication::quit();
    });
    dialog.update();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Meter meter;
    QPrinter printer;
    QPrintDialog dialog(&printer);
    const QString queue = QCoreApplication::arguments().value(1);
    new FirstPaint(dialog, [&] {
        meter.notePainted();
        meter.report();
        if (queue.isEmpty())
            QCoreApplication::quit();
        else
            QTimer::singleShot(0, &dialog, [&] { chooseQueue(dialog, meter, queue); });
    });
    dialog.show();
    return QCoreApplication::exec();
}
