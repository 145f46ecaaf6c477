// SPDX-License-Identifier: MIT
#include "dialog/window/printer_buttons.h"

#include "platform/foundation/threads/work_queue.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>

namespace halvern {

PrinterButtons::PrinterButtons(DialogSession& session, QWidget* parent) : QWidget(parent), session_(session)
{
    setObjectName(QStringLiteral("printerButtons"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    connect(&session_, &DialogSession::reportChanged, this, &PrinterButtons::refresh);
    connect(&session_, &DialogSession::printerSelected, this, &PrinterButtons::refresh);
    refresh();
}

void PrinterButtons::refresh()
{
    // The queue's: what keeps the printer itself from printing, the server cannot help.
    const PrinterReport& report = session_.printerList().report();
    const QList<PrinterAction> actions = report.isThere ? helpfulActions(report) : QList<PrinterAction>();
    setVisible(!actions.isEmpty());
    if (actions == actions_)
        return;
    actions_ = actions;
    auto* row = qobject_cast<QHBoxLayout*>(layout());
    qDeleteAll(findChildren<QPushButton*>(Qt::FindDirectChildrenOnly));
    for (const PrinterAction action : actions) {
        auto* button = new QPushButton(actionText(action), this);
        button->setObjectName(QStringLiteral("printerAction%1").arg(int(action)));
        button->setAutoDefault(false);
        row->insertWidget(row->count() - 1, button);
        connect(button, &QPushButton::clicked, this, [this, action] { run(action); });
    }
}

void PrinterButtons::run(PrinterAction action)
{
    setEnabled(false);
    const QPointer<PrinterButtons> self(this);
    WorkQueue().async([self, action, queue = session_.printerName()] {
        const QString problem = act(action, queue);
        mainQueue().async([self, problem] {
            if (!self)
                return;
            self->setEnabled(true);
            self->session_.refreshReport();
            if (!problem.isEmpty())
                Q_EMIT self->failed(problem);
        });
    });
}

} // namespace halvern
