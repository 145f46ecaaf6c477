// SPDX-License-Identifier: MIT
#include "tests/support/observers.h"
#include "tests/support/text.h"

#include "platform/foundation/bundle.h"
#include "platform/toolkit/beep.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMutex>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>
#include <vector>

namespace halvern {
namespace {

QMutex captureMutex;
// Not a list that copies would share: a shared list is let go of and grown on different threads in a way that
// the thread sanitizer cannot follow into the library.
std::vector<QString>* capturedLines = nullptr;
QtMessageHandler handlerBefore = nullptr;

void capture(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    {
        const QMutexLocker lock(&captureMutex);
        if (capturedLines && context.category && std::strcmp(context.category, "halvern.pde") == 0) {
            capturedLines->push_back(text);
            return;
        }
    }
    handlerBefore(type, context, text);
}

} // namespace

LogCapture::LogCapture()
{
    const QMutexLocker lock(&captureMutex);
    capturedLines = new std::vector<QString>;
    handlerBefore = qInstallMessageHandler(capture);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(handlerBefore);
    const QMutexLocker lock(&captureMutex);
    delete capturedLines;
    capturedLines = nullptr;
}

QStringList LogCapture::lines() const
{
    const QMutexLocker lock(&captureMutex);
    return {capturedLines->begin(), capturedLines->end()};
}

void LogCapture::clear()
{
    const QMutexLocker lock(&captureMutex);
    capturedLines->clear();
}

BeepCounter::BeepCounter()
{
    setBeepHandler([this] { ++count; });
}

BeepCounter::~BeepCounter()
{
    setBeepHandler({});
}

void useBuiltBundle(const QString& language)
{
    QLocale::setDefault(QLocale(language));
    // The user's own settings stay as they are.
    static const QTemporaryDir settingsFolder;
    qputenv("XDG_CONFIG_HOME", settingsFolder.path().toUtf8());
    QString why;
    auto bundle = Bundle::load(q(HALVERN_TEST_BUNDLE), &why);
    if (!bundle)
        qFatal("the built bundle does not load: %s", qPrintable(why));
    Bundle::setMainBundle(std::move(bundle));
}

bool waitUntil(const std::function<bool()>& condition, int seconds)
{
    return QTest::qWaitFor(condition, 1000 * seconds);
}

void drainMainQueue()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace halvern
