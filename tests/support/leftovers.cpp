// SPDX-License-Identifier: MIT
#include "tests/support/leftovers.h"
#include "tests/support/text.h"

#include "tests/support/observers.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <algorithm>

#include <signal.h>

namespace halvern {
namespace {

QByteArray contentOf(const QString& pid, const char* name)
{
    QFile file(q("/proc/%1/%2").arg(pid, QLatin1StringView(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "PID NAME" of each process that lives and is ours.
QStringList processesOf(const QString& home)
{
    QStringList found;
    const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
    for (const QString& pid : QDir(q("/proc")).entryList(QDir::Dirs)) {
        const QByteArray stat = contentOf(pid, "stat");
        // The name may hold blanks and brackets: what follows it begins behind the last one.
        const QList<QByteArray> fields = stat.sliced(stat.lastIndexOf(')') + 1).trimmed().split(' ');
        if (fields.size() < 2 || fields[0] == "Z" || fields[0] == "X" || pid.toLatin1() == self)
            continue;
        if (fields[1] == self || contentOf(pid, "environ").contains("HOME=" + home.toUtf8()))
            found.append(pid + u' ' + QString::fromUtf8(contentOf(pid, "comm").trimmed()));
    }
    return found;
}

} // namespace

void LeftoverListener::OnTestStart(const testing::TestInfo&)
{
    before_ = QApplication::topLevelWidgets();
    // Each test is a new user's, who has printed nothing yet.
    QDir(home_ + q("/.local/share/halvern/presets")).removeRecursively();
}

void LeftoverListener::OnTestEnd(const testing::TestInfo&)
{
    // A panel lives on for as long as its background work holds it.
    const auto isLeft = [this](const QWidget* window) { return !before_.contains(window); };
    waitUntil(
        [&] {
            drainMainQueue();
            return std::ranges::none_of(QApplication::topLevelWidgets(), isLeft);
        },
        20);
    for (const QWidget* window : QApplication::topLevelWidgets())
        EXPECT_FALSE(isLeft(window)) << "a window is left: " << window->metaObject()->className() << ' '
                                     << qPrintable(window->objectName()) << ' '
                                     << qPrintable(window->windowTitle());
}

void LeftoverListener::OnTestSuiteEnd(const testing::TestSuite&)
{
    // What has been told to end may take a moment.
    if (waitUntil([this] { return processesOf(home_).isEmpty(); }, 20))
        return;
    for (const QString& process : processesOf(home_)) {
        ADD_FAILURE() << "a process is left: " << qPrintable(process);
        ::kill(pid_t(process.section(u' ', 0, 0).toInt()), SIGKILL);
    }
}

} // namespace halvern
