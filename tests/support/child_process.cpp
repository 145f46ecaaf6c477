#include "tests/support/child_process.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

extern char** environ;

namespace halvern {

namespace {

std::vector<char*> pointers(std::vector<QByteArray>& texts)
{
    std::vector<char*> result;
    for (QByteArray& text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

std::vector<QByteArray> environmentWith(const std::map<QByteArray, QByteArray>& more)
{
    std::vector<QByteArray> result;
    for (char** entry = environ; *entry; ++entry) {
        const QByteArray text(*entry);
        if (!more.contains(text.left(text.indexOf('='))))
            result.push_back(text);
    }
    for (const auto& [name, value] : more) {
        if (!value.isNull())
            result.push_back(name + '=' + value);
    }
    return result;
}

QByteArray contentOf(const QTemporaryFile& file)
{
    QFile again(file.fileName());
    return again.open(QIODevice::ReadOnly) ? again.readAll() : QByteArray();
}

} // namespace

ChildProcess::~ChildProcess()
{
    kill();
}

bool ChildProcess::start(const QString& program, const QStringList& arguments,
                         const std::map<QByteArray, QByteArray>& more)
{
    kill();
    if (!output_.open() || !error_.open() || !output_.resize(0) || !error_.resize(0))
        return false;
    std::vector<QByteArray> words{QFile::encodeName(program)};
    for (const QString& argument : arguments)
        words.push_back(argument.toUtf8());
    std::vector<QByteArray> variables = environmentWith(more);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output_.handle(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, error_.handle(), STDERR_FILENO);
    const int failed = posix_spawnp(&pid_, words.front().constData(), &actions, nullptr,
                                    pointers(words).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0)
        pid_ = 0;
    return failed == 0;
}

int ChildProcess::wait(int milliseconds)
{
    if (pid_ == 0)
        return -1;
    pollfd ended{int(syscall(SYS_pidfd_open, pid_, 0)), POLLIN, 0};
    const int ready = poll(&ended, 1, milliseconds);
    close(ended.fd);
    int status = 0;
    if (ready != 1 || waitpid(pid_, &status, 0) != pid_)
        return -1;
    pid_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void ChildProcess::kill()
{
    if (pid_ == 0)
        return;
    ::kill(pid_, SIGKILL);
    wait();
}

void ChildProcess::signal(int number) const
{
    if (pid_ > 0)
        ::kill(pid_, number);
}

QByteArray ChildProcess::standardOutput() const
{
    return contentOf(output_);
}

QByteArray ChildProcess::standardError() const
{
    return contentOf(error_);
}

ProgramResult runProgram(const QString& program, const QStringList& arguments,
                         const std::map<QByteArray, QByteArray>& more)
{
    ChildProcess child;
    if (!child.start(program, arguments, more))
        return {-1, QString(), program + QStringLiteral(" does not start")};
    const int status = child.wait();
    return {status, QString::fromUtf8(child.standardOutput()), QString::fromUtf8(child.standardError())};
}

} // namespace halvern
