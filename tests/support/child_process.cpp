// SPDX-License-Identifier: MIT
#include "tests/support/child_process.h"

#include "tests/support/text.h"

#include <signal.h>

#ifdef __SANITIZE_THREAD__
#include <cstdarg>

#include <dlfcn.h>
#include <sched.h>

// Qt starts a child on memory that it shares with this process. The thread sanitizer takes what the child
// does for this process's own and sees no lock from there on, so here a child gets its own copy.
extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...)
{
    using Clone = int (*)(int (*)(void*), void*, int, void*, ...);
    static const auto next = reinterpret_cast<Clone>(dlsym(RTLD_NEXT, "clone"));
    va_list more;
    va_start(more, argument);
    auto* const child = va_arg(more, pid_t*);
    va_end(more);
    return next(function, stack, flags & ~(CLONE_VM | CLONE_VFORK), argument, child, nullptr, nullptr);
}
#endif

namespace halvern {

ChildProcess::ChildProcess()
{
    process_.setStandardInputFile(QProcess::nullDevice());
}

ChildProcess::~ChildProcess()
{
    kill();
}

bool ChildProcess::start(const QString& program, const QStringList& arguments,
                         const std::map<QByteArray, QByteArray>& more)
{
    kill();
    output_.clear();
    error_.clear();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : more) {
        if (value.isNull())
            environment.remove(q(name));
        else
            environment.insert(q(name), q(value));
    }
    process_.setProcessEnvironment(environment);
    process_.start(program, arguments);
    return process_.waitForStarted(-1);
}

int ChildProcess::wait(int milliseconds)
{
    if (process_.state() != QProcess::NotRunning && !process_.waitForFinished(milliseconds))
        return -1;
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

void ChildProcess::kill()
{
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished(-1);
}

void ChildProcess::signal(int number) const
{
    if (process_.processId() > 0)
        ::kill(pid_t(process_.processId()), number);
}

QByteArray ChildProcess::standardOutput()
{
    process_.waitForReadyRead(0);
    return output_ += process_.readAllStandardOutput();
}

QByteArray ChildProcess::standardError()
{
    return error_ += process_.readAllStandardError();
}

ProgramResult runProgram(const QString& program, const QStringList& arguments,
                         const std::map<QByteArray, QByteArray>& more)
{
    ChildProcess child;
    if (!child.start(program, arguments, more))
        return {-1, QString(), program + q(" does not start")};
    const int status = child.wait();
    return {status, QString::fromUtf8(child.standardOutput()), QString::fromUtf8(child.standardError())};
}

} // namespace halvern
