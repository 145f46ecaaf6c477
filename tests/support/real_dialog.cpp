// SPDX-License-Identifier: MIT
#include "tests/support/real_dialog.h"
#include "tests/support/text.h"

#include "tests/support/observers.h"

#include <QDir>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace halvern {

RealDialog::RealDialog(const SessionRequest& request, PanelSource& panels)
    : session(request, panels), dialog(session)
{
    dialog.resize(1240, 780); // more than the offscreen screen has: the preview stands beside the pages
    dialog.show();
    session.start();
}

RealDialog::~RealDialog()
{
    dialog.close();
    drainMainQueue();
}

bool RealDialog::isReady()
{
    return waitUntil([this] { return session.canPrint(); }) &&
           waitUntil([&] { return dialog.isActiveWindow(); });
}

bool RealDialog::showPage(const char* identifier)
{
    return dialog.findChild<PanelDeck*>()->showPage(QLatin1StringView(identifier));
}

QWidget* RealDialog::control(int tag)
{
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        const QVariant own = widget->property("tag");
        if (own.isValid() && own.toInt() == tag && widget->isVisible())
            return widget;
    }
    ADD_FAILURE() << "no visible control has the tag " << tag;
    static QWidget nothing;
    return &nothing;
}

QLineEdit* RealDialog::field(int tag)
{
    if (auto* found = qobject_cast<QLineEdit*>(control(tag)))
        return found;
    ADD_FAILURE() << tag << " is no field";
    static QLineEdit nothing;
    return &nothing;
}

QAbstractButton* RealDialog::button(int tag)
{
    if (auto* found = qobject_cast<QAbstractButton*>(control(tag)))
        return found;
    ADD_FAILURE() << tag << " is no button";
    static QPushButton nothing;
    return &nothing;
}

void RealDialog::setOn(int tag, bool on)
{
    QAbstractButton* const toggle = button(tag);
    if (toggle->isChecked() != on)
        QTest::mouseClick(toggle, Qt::LeftButton, {}, QPoint(8, toggle->height() / 2));
    EXPECT_EQ(toggle->isChecked(), on);
}

void RealDialog::type(int tag, const QString& text)
{
    QLineEdit* const target = field(tag);
    target->setFocus();
    QTest::keyClick(target, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(target, Qt::Key_Delete);
    QTest::keyClicks(target, text);
}

int RealDialog::print()
{
    auto* const button = dialog.findChild<QPushButton*>(q("printButton"));
    QTest::mousePress(button, Qt::LeftButton);
    const OptionValues shown = session.valuesToSend().list();
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(session.valuesToSend().list(), shown) << "what the panels saved is what was shown";
    return jobWhenOver();
}

int RealDialog::printByKey()
{
    const bool isFirst = !dialog.run();
    const QPointer<PrintRun> before = dialog.run(); // the next one may lie in its place
    QTest::keyClick(&dialog, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(dialog.run() && (isFirst || !before));
    return jobWhenOver();
}

int RealDialog::jobWhenOver()
{
    const bool ended = waitUntil([this] { return dialog.run() && dialog.run()->isOver(); });
    EXPECT_TRUE(ended && dialog.outcome().printed) << qPrintable(dialog.outcome().sentence);
    EXPECT_FALSE(dialog.findChild<QLabel*>(q("check"))->isHidden()) << "the server holds what was sent";
    return dialog.outcome().printed ? dialog.outcome().jobId : 0;
}

qsizetype sheetsOf(const PrivateCups& server, int job)
{
    return QDir(server.jobFile(job, QString())).entryList({q("page-*.png")}, QDir::Files).size();
}

} // namespace halvern
