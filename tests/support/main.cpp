// SPDX-License-Identifier: MIT
#include "tests/support/leftovers.h"
#include "tests/support/text.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include <stdlib.h>
#include <unistd.h>

extern char** environ;

namespace {

constexpr int kRound = 20; // milliseconds
constexpr int kQuietRounds = 5;
constexpr int kMostRounds = 100;

/// Takes out what another one's session, printers or programs would change here.
void forgetWhoRunsThis()
{
    std::vector<std::string> names;
    for (char** entry = environ; *entry; ++entry)
        names.emplace_back(*entry, strcspn(*entry, "="));
    for (const std::string& name : names) {
        for (const char* foreign :
             {"QT_", "XDG_", "CUPS_", "HALVERN_", "DBUS_", "LC_", "LANG", "PRINTER", "LPDEST", "DISPLAY",
              "WAYLAND_DISPLAY", "KDE_", "GTK_", "DESKTOP_SESSION"})
            if (name.starts_with(foreign))
                unsetenv(name.c_str());
    }
}

/// A home of this program's own for it and all that it starts. Nobody's printers and buses are touched; a
/// test that needs a server or a bus brings its own.
void settleIn(const QString& home)
{
    forgetWhoRunsThis();
    const auto folder = [&](const char* variable, const char* name) {
        QDir(home).mkpath(QLatin1StringView(name));
        qputenv(variable, (home + u'/' + QLatin1StringView(name)).toUtf8());
    };
    qputenv("HOME", home.toUtf8());
    folder("XDG_CONFIG_HOME", ".config");
    folder("XDG_DATA_HOME", ".local/share");
    folder("XDG_STATE_HOME", ".local/state");
    folder("XDG_CACHE_HOME", ".cache");
    folder("XDG_RUNTIME_DIR", "run");
    QFile::setPermissions(home + halvern::q("/run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANG", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
}

// A thread that nobody joins ends a moment after its work, and what it holds while it ends is in nobody's
// hands: the leak sanitizer would take it for lost.
void letThreadsEnd()
{
    const auto count = [] {
        return QDir(halvern::q("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
    };
    qsizetype known = count();
    for (int round = 0, quiet = 0; round < kMostRounds && quiet < kQuietRounds; ++round) {
        QThread::msleep(kRound);
        const qsizetype now = count();
        quiet = now == known ? quiet + 1 : 0;
        known = now;
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home(halvern::q("/tmp/halvern-test.XXXXXX"));
    if (!home.isValid())
        qFatal("no folder can be made in /tmp");
    settleIn(home.path());
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::UnitTest::GetInstance()->listeners().Append(new halvern::LeftoverListener(home.path()));
    const int status = RUN_ALL_TESTS();
    letThreadsEnd();
    return status;
}
