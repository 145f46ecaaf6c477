// SPDX-License-Identifier: MIT
#include "tests/panels/backprint/backprint_window.h"

#include "platform/toolkit/control.h"

#include <QClipboard>
#include <QKeyEvent>

namespace halvern {
namespace {

QString textOf(const QVariant& value)
{
    return value.isValid() ? value.toString() : q("(none)");
}

} // namespace

QByteArray backprintOptions()
{
    return ppdHeader() + ppdOption("EnableCVP1", {"False/No", "True/Yes"}) +
           ppdOption("EnableCVP2", {"False/No", "True/Yes"}) +
           ppdOption("DebugLog", {"False/No", "True/Yes"});
}

void BackprintWindow::SetUp()
{
    useBuiltBundle();
    host = std::make_shared<FakeHost>(backprintOptions());
    host->settings->setValue(q("EnableCVP1"), q("True"), false);
    host->settings->setValue(q("EnableCVP2"), q("True"), false);
    open();
}

void BackprintWindow::TearDown()
{
    close();
}

void BackprintWindow::open()
{
    panel = makePanel<RZBackprintPDEHalvern>(host);
    ASSERT_NE(panel, nullptr);
    ASSERT_NE(panel->panelView(), nullptr);
    window = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(window.get());
    layout->addWidget(panel->panelView());
    // A field of the dialog's own, with a tag that means something else there.
    auto* other = new QLineEdit;
    other->setProperty("tag", 1);
    layout->addWidget(other);
    panel->willShow();
    window->show();
    window->activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window->isActiveWindow(); }));
}

void BackprintWindow::close()
{
    if (panel)
        panel->panelView()->setParent(nullptr);
    panel.reset();
    window.reset();
    drainMainQueue();
}

QString BackprintWindow::stored(const char* key)
{
    return textOf(panel->choices()->value(q(key)));
}

QString BackprintWindow::saved(const char* key)
{
    return textOf(host->settings->values().value(q(key)));
}

void BackprintWindow::type(int number, const QString& text)
{
    line(number)->setFocus();
    for (const QChar character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(line(number), &press);
    }
}

void BackprintWindow::paste(int number, const QString& text)
{
    QApplication::clipboard()->setText(text);
    line(number)->setFocus();
    QTest::keyClick(line(number), Qt::Key_V, Qt::ControlModifier);
}

void BackprintWindow::click(int tag)
{
    auto* button = find<QAbstractButton>(tag);
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

} // namespace halvern
