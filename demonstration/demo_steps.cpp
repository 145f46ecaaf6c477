// SPDX-License-Identifier: MIT
#include "demonstration/demo_steps.h"

#include "dialog/preview/preview_widget.h"
#include "dialog/window/panel_deck.h"
#include "dialog/window/print_dialog.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPixmap>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace halvern {

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kMostKeys = 5000;

QPalette darkPalette()
{
    QPalette colours(QColor(53, 53, 53), QColor(45, 45, 45));
    colours.setColor(QPalette::Base, QColor(32, 32, 32));
    colours.setColor(QPalette::Highlight, QColor(42, 110, 175));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    return colours;
}

QString controlText(const QWidget& control)
{
    for (const char* property : {"text", "currentText", "value"}) {
        const QVariant value = control.property(property);
        if (value.isValid())
            return value.toString();
    }
    return {};
}

} // namespace

DemoSteps::DemoSteps(PrintDialog& dialog, DialogSession& session, QString screens, QTextStream& out)
    : dialog_(dialog), session_(session), screens_(std::move(screens)), out_(out)
{
}

QString DemoSteps::run(const QString& step)
{
    const QString verb = step.section(QLatin1Char(' '), 0, 0);
    const QString first = step.section(QLatin1Char(' '), 1, 1);
    if (verb == QLatin1StringView("ready"))
        return waitReady();
    if (verb == QLatin1StringView("page"))
        return showPage(first);
    if (verb == QLatin1StringView("screenshot"))
        return screenshot(first, step.section(QLatin1Char(' '), 2));
    if (verb == QLatin1StringView("print"))
        return print();
    if (verb == QLatin1StringView("dark")) {
        QApplication::setPalette(darkPalette());
        return {};
    }
    if (verb == QLatin1StringView("close")) {
        dialog_.close();
        return {};
    }
    if (verb == QLatin1StringView("run"))
        return runCommand(step.section(QLatin1Char(' '), 1));
    const QString value = step.section(QLatin1Char(' '), 2);
    for (const char* waiting : {"shown", "gone", "offers", "lacks"}) {
        if (verb == QLatin1StringView(waiting))
            return waitFor(verb, first, value);
    }
    QWidget* target = find(first);
    if (!target)
        return QStringLiteral("there is no visible control %1").arg(first);
    const QString problem = onTarget(verb, *target, value);
    QCoreApplication::processEvents();
    if (problem.isEmpty())
        out_ << verb << ' ' << first << ": now \"" << controlText(*target) << '"' << Qt::endl;
    return problem;
}

QWidget* DemoSteps::find(const QString& target) const
{
    const QString value = target.section(QLatin1Char(':'), 1);
    const bool isTag = target.startsWith(QLatin1StringView("tag:"));
    for (QWidget* widget : dialog_.findChildren<QWidget*>()) {
        const bool isMeant = isTag ? widget->property("tag").toInt() == value.toInt(nullptr, 0) &&
                                         widget->property("tag").isValid()
                                   : widget->objectName() == value;
        if (isMeant && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QString DemoSteps::waitReady()
{
    if (!QTest::qWaitFor([&] { return session_.canPrint(); }, kPatienceMilliseconds))
        return QStringLiteral("the printer or the photo did not come");
    out_ << "The dialog shows printer " << session_.printerName() << " with "
         << dialog_.findChild<PanelDeck*>()->identifiers().join(QStringLiteral(", ")) << Qt::endl;
    return {};
}

QString DemoSteps::showPage(const QString& identifier)
{
    if (!dialog_.findChild<PanelDeck*>()->showPage(identifier))
        return QStringLiteral("there is no page %1").arg(identifier);
    QCoreApplication::processEvents();
    return {};
}

QString DemoSteps::onTarget(const QString& verb, QWidget& target, const QString& value)
{
    if (!target.isEnabled())
        return QStringLiteral("the control is disabled");
    if (verb == QLatin1StringView("click")) {
        // A check box answers to clicks on its mark, at the start of its row.
        const int start = target.isRightToLeft() ? target.width() - 12 : 12;
        QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(start, target.height() / 2));
        return {};
    }
    if (verb == QLatin1StringView("type"))
        return type(target, value);
    if (verb == QLatin1StringView("choose"))
        return choose(target, value);
    if (verb == QLatin1StringView("slide"))
        return slide(target, value);
    return QStringLiteral("there is no such step");
}

QString DemoSteps::type(QWidget& target, const QString& text)
{
    target.setFocus();
    QTest::keyClick(&target, Qt::Key_A, Qt::ControlModifier);
    // Characters that no key of the test's keyboard has arrive as an input method would send them.
    for (const QChar& character : text) {
        if (character.unicode() < 0x80) {
            QTest::keyClick(&target, character.toLatin1());
            continue;
        }
        QInputMethodEvent composed;
        composed.setCommitString(character);
        QCoreApplication::sendEvent(&target, &composed);
    }
    QTest::keyClick(&target, Qt::Key_Tab);
    return {};
}

QString DemoSteps::choose(QWidget& target, const QString& choice)
{
    if (auto* pages = qobject_cast<QTabWidget*>(&target)) {
        QTabBar* bar = pages->tabBar();
        const int tab = choice.toInt() - 1;
        if (tab < 0 || tab >= bar->count())
            return QStringLiteral("there is no tab %1").arg(choice);
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
        return {};
    }
    auto* box = qobject_cast<QComboBox*>(&target);
    const bool isRow = choice.startsWith(QLatin1Char('#'));
    const int row = !box    ? -1
                    : isRow ? std::min(choice.mid(1).toInt(), box->count()) - 1
                            : std::max(box->findData(choice), box->findText(choice));
    if (row < 0)
        return QStringLiteral("there is no choice %1").arg(choice);
    box->showPopup();
    box->view()->setCurrentIndex(box->model()->index(row, box->modelColumn()));
    QTest::keyClick(box->view(), Qt::Key_Return);
    // Without a window manager nobody gives the keyboard back to the window.
    dialog_.activateWindow();
    if (!QTest::qWaitForWindowActive(&dialog_))
        return QStringLiteral("the window did not become active again");
    return {};
}

QString DemoSteps::slide(QWidget& target, const QString& value)
{
    target.setFocus();
    const double wanted = value.toDouble();
    const auto now = [&] {
        const QVariant real = target.property("realValue");
        return real.isValid() ? real.toDouble() : target.property("value").toDouble();
    };
    for (int i = 0; i < kMostKeys && !qFuzzyCompare(now() + 1.0, wanted + 1.0); ++i) {
        const double before = now();
        QTest::keyClick(&target, (before < wanted) != target.isRightToLeft() ? Qt::Key_Right : Qt::Key_Left);
        if (qFuzzyCompare(before + 1.0, now() + 1.0) || (before < wanted) != (now() < wanted))
            break;
    }
    return {};
}

QString DemoSteps::waitFor(const QString& verb, const QString& target, const QString& value)
{
    const auto isSo = [&] {
        const QWidget* widget = find(target);
        if (verb == QLatin1StringView("gone"))
            return !widget;
        if (verb == QLatin1StringView("shown"))
            return widget && (value.isEmpty() || controlText(*widget) == value);
        const auto* box = qobject_cast<const QComboBox*>(widget);
        const bool offers = box && (box->findData(value) >= 0 || box->findText(value) >= 0);
        return verb == QLatin1StringView("offers") ? offers : box && !offers;
    };
    QElapsedTimer time;
    time.start();
    if (!QTest::qWaitFor(isSo, kPatienceMilliseconds))
        return QStringLiteral("it did not come to that");
    out_ << verb << ' ' << target << ' ' << value << ": after " << time.elapsed() << " ms" << Qt::endl;
    return {};
}

QString DemoSteps::runCommand(const QString& command)
{
    QProcess shell;
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command});
    const auto hasEnded = [&] { return shell.state() == QProcess::NotRunning; };
    const bool ended = QTest::qWaitFor(hasEnded, kPatienceMilliseconds);
    const QString said = QString::fromUtf8(shell.readAll()).trimmed();
    if (!ended || shell.exitStatus() != QProcess::NormalExit || shell.exitCode() != 0)
        return QStringLiteral("the command failed: %1").arg(said);
    out_ << "run: " << command << ' ' << said << Qt::endl;
    return {};
}

QString DemoSteps::screenshot(const QString& name, const QString& target)
{
    // Two rounds: what a step queues may queue a repaint.
    QTest::qWait(0);
    QCoreApplication::processEvents();
    const auto* preview = dialog_.findChild<PreviewWidget*>();
    if (!QTest::qWaitFor([&] { return !preview->isReadingDetail(); }, kPatienceMilliseconds))
        return QStringLiteral("the photo was not read");
    const QString path = QStringLiteral("%1/%2.png").arg(screens_, name);
    QWidget* const shown = target.isEmpty() ? &dialog_ : find(target);
    if (!shown)
        return QStringLiteral("there is no visible control %1").arg(target);
    if (!shown->grab().save(path))
        return QStringLiteral("%1 could not be written").arg(path);
    out_ << "Screenshot: " << path << Qt::endl;
    return {};
}

QString DemoSteps::print()
{
    auto* button = dialog_.findChild<QPushButton*>(QStringLiteral("printButton"));
    if (!button->isEnabled())
        return QStringLiteral("Print is disabled");
    QTest::mouseClick(button, Qt::LeftButton);
    if (!QTest::qWaitFor([&] { return dialog_.run() && dialog_.run()->isOver(); }, kPatienceMilliseconds))
        return QStringLiteral("the job did not end");
    const PrintOutcome outcome = dialog_.outcome();
    if (!outcome.printed)
        return outcome.sentence;
    out_ << outcome.sentence << Qt::endl << "job-id=" << outcome.jobId << Qt::endl;
    return {};
}

} // namespace halvern
