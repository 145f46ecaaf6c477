// SPDX-License-Identifier: MIT
#include "dialog/photo/decoder_process.h"

#include <QProcess>

#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

// The C library's header forgets to say so.
extern "C" {
#include <sys/pidfd.h>
}

extern char** environ;

namespace halvern {

namespace {

constexpr int kControl = 3;            // the descriptor by which halvern-decode is told what to do
constexpr int kStartPatience = 20'000; // milliseconds, for a machine that is busy

std::string programFolder()
{
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, length > 0 ? size_t(length) : 0);
    return program.substr(0, program.rfind('/'));
}

// The variable is for tests, and for whoever tries another one.
std::string helperPath()
{
    if (const char* given = getenv("HALVERN_DECODE"))
        return given;
    const std::string folder = programFolder();
    for (const char* relative : {"/../lib/halvern", "/../" HALVERN_LIBRARY_DIR "/halvern", "/../halvern"}) {
        const std::string path = folder + relative + "/halvern-decode";
        if (access(path.c_str(), X_OK) == 0)
            return path;
    }
    return {};
}

struct SpawnActions {
    SpawnActions() { posix_spawn_file_actions_init(&actions); }

    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions); }

    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;

    posix_spawn_file_actions_t actions;
};

/// The helper that waits to be told of files, one for the whole program.
class Helper {
public:
    void hold()
    {
        const std::lock_guard guard(lock_);
        if (++users_ == 1)
            start();
    }

    void letGo()
    {
        const std::lock_guard guard(lock_);
        if (--users_ == 0)
            end();
    }

    DecoderProcess reader()
    {
        // One asks at a time; who only comes or goes does not wait for the answer.
        const std::lock_guard turn(asking_);
        for (int attempt = 0; attempt < 2; ++attempt) {
            const std::shared_ptr<Descriptor> control = current();
            DecoderProcess process = control ? ask(*control) : DecoderProcess();
            if (process.socket.isOpen())
                return process;
            forget(control);
        }
        return {};
    }

private:
    std::shared_ptr<Descriptor> current()
    {
        const std::lock_guard guard(lock_);
        if (!control_ && users_ > 0)
            start();
        return control_;
    }

    void forget(const std::shared_ptr<Descriptor>& control)
    {
        const std::lock_guard guard(lock_);
        if (control_ == control)
            end();
    }

    void start()
    {
        reap();
        const std::string path = helperPath();
        int ends[2];
        if (path.empty() || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
            return;
        const auto ours = std::make_shared<Descriptor>(ends[0]);
        // A descriptor that is given to itself would stay closed on starting the program.
        const Descriptor theirs(fcntl(ends[1], F_DUPFD_CLOEXEC, kControl + 1));
        close(ends[1]);
        SpawnActions spawn;
        for (const int standard : {STDIN_FILENO, STDOUT_FILENO})
            posix_spawn_file_actions_addopen(&spawn.actions, standard, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_adddup2(&spawn.actions, theirs.number(), kControl);
        char* const arguments[] = {const_cast<char*>(path.c_str()), nullptr};
        pid_t child = 0;
        if (posix_spawn(&child, path.c_str(), &spawn.actions, nullptr, arguments, environ) != 0)
            return;
        children_.push_back(child);
        control_ = ours;
    }

    // It ends by itself once nobody holds the other end; who still asks gets no answer.
    void end()
    {
        if (control_)
            shutdown(control_->number(), SHUT_RDWR);
        control_.reset();
        reap();
    }

    void reap()
    {
        std::erase_if(children_, [](pid_t child) { return waitpid(child, nullptr, WNOHANG) != 0; });
    }

    static DecoderProcess ask(const Descriptor& control)
    {
        int ends[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
            return {};
        DecoderProcess process{Descriptor(ends[0]), {}};
        const Descriptor theirs(ends[1]);
        QByteArray answer;
        const bool isMade = sendMessage(control.number(), {}, theirs.number()) &&
                            receiveMessage(control.number(), &answer, &process.process, kStartPatience) ==
                                Received::message &&
                            process.process.isOpen();
        return isMade ? std::move(process) : DecoderProcess();
    }

    std::mutex asking_;
    std::mutex lock_; // of all below
    int users_ = 0;
    std::shared_ptr<Descriptor> control_;
    std::vector<pid_t> children_; // that have not been waited for
};

// Never destroyed: a worker that is stuck may still use it when the program ends.
Helper& helper()
{
    static auto* const theHelper = new Helper; // NOLINT
    return *theHelper;
}

} // namespace

DecoderLease::DecoderLease()
{
    helper().hold();
}

DecoderLease::~DecoderLease()
{
    helper().letGo();
}

void DecoderProcess::kill() const
{
    if (process.isOpen())
        pidfd_send_signal(process.number(), SIGKILL, nullptr, 0);
}

DecoderProcess startDecoder()
{
    return helper().reader();
}

QString readableFormats()
{
    QProcess program;
    program.start(QString::fromStdString(helperPath()), {QStringLiteral("--version")});
    program.waitForFinished();
    return QString::fromUtf8(program.readAllStandardOutput()).trimmed();
}

} // namespace halvern
