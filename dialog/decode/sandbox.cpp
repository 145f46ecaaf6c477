// SPDX-License-Identifier: MIT
#include "dialog/decode/sandbox.h"

#include <array>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <malloc.h>
#include <sched.h>
#include <seccomp.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace halvern {

namespace {

constexpr rlim_t kMemory = rlim_t(2) * 1024 * 1024 * 1024;
// Shared memory is no data of a process: what is mapped counts with the file, and each piece is limited.
constexpr rlim_t kAddresses = rlim_t(8) * 1024 * 1024 * 1024;
constexpr rlim_t kSharedPiece = rlim_t(256) * 1024 * 1024;
constexpr rlim_t kSeconds = 120; // of the processor, for a file
constexpr rlim_t kDescriptors = 64;

// What decoding, threads, fonts and the modules of libraries need. All else fails as if it were not allowed.
constexpr std::array kAllowed{SCMP_SYS(read),
                              SCMP_SYS(pread64),
                              SCMP_SYS(readv),
                              SCMP_SYS(close),
                              SCMP_SYS(lseek),
                              SCMP_SYS(fstat),
                              SCMP_SYS(stat),
                              SCMP_SYS(lstat),
                              SCMP_SYS(newfstatat),
                              SCMP_SYS(statx),
                              SCMP_SYS(statfs),
                              SCMP_SYS(fstatfs),
                              SCMP_SYS(access),
                              SCMP_SYS(faccessat),
                              SCMP_SYS(faccessat2),
                              SCMP_SYS(readlink),
                              SCMP_SYS(readlinkat),
                              SCMP_SYS(getdents64),
                              SCMP_SYS(getcwd),
                              SCMP_SYS(fadvise64),
                              SCMP_SYS(mmap),
                              SCMP_SYS(munmap),
                              SCMP_SYS(mprotect),
                              SCMP_SYS(mremap),
                              SCMP_SYS(madvise),
                              SCMP_SYS(brk),
                              SCMP_SYS(memfd_create),
                              SCMP_SYS(ftruncate),
                              SCMP_SYS(recvmsg),
                              SCMP_SYS(sendmsg),
                              SCMP_SYS(poll),
                              SCMP_SYS(eventfd2),
                              SCMP_SYS(pipe2),
                              SCMP_SYS(ppoll),
                              SCMP_SYS(futex),
                              SCMP_SYS(set_robust_list),
                              SCMP_SYS(rseq),
                              SCMP_SYS(sched_yield),
                              SCMP_SYS(sched_getaffinity),
                              SCMP_SYS(sched_getparam),
                              SCMP_SYS(sched_getscheduler),
                              SCMP_SYS(getrandom),
                              SCMP_SYS(clock_gettime),
                              SCMP_SYS(clock_getres),
                              SCMP_SYS(clock_nanosleep),
                              SCMP_SYS(nanosleep),
                              SCMP_SYS(gettimeofday),
                              SCMP_SYS(getpid),
                              SCMP_SYS(gettid),
                              SCMP_SYS(getppid),
                              SCMP_SYS(getuid),
                              SCMP_SYS(geteuid),
                              SCMP_SYS(getgid),
                              SCMP_SYS(getegid),
                              SCMP_SYS(uname),
                              SCMP_SYS(sysinfo),
                              SCMP_SYS(getrusage),
                              SCMP_SYS(rt_sigaction),
                              SCMP_SYS(rt_sigprocmask),
                              SCMP_SYS(rt_sigreturn),
                              SCMP_SYS(sigaltstack),
                              SCMP_SYS(exit),
                              SCMP_SYS(exit_group),
                              SCMP_SYS(restart_syscall),
                              SCMP_SYS(membarrier)};

// Of what can be done with a descriptor; others have signals sent, to any process.
constexpr std::array kAllowedOfDescriptors{F_GETFD, F_SETFD,         F_GETFL,     F_SETFL,
                                           F_DUPFD, F_DUPFD_CLOEXEC, F_ADD_SEALS, F_GET_SEALS};

std::vector<sock_filter> program;

// The library's macros for a condition are C's.
bool allowIf(scmp_filter_ctx filter, int call, const scmp_arg_cmp& condition)
{
    return seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, call, 1, &condition) == 0;
}

bool addRules(scmp_filter_ctx filter)
{
    for (const int call : kAllowed) {
        if (seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) != 0)
            return false;
    }
    for (const int command : kAllowedOfDescriptors) {
        if (!allowIf(filter, SCMP_SYS(fcntl), {1, SCMP_CMP_EQ, scmp_datum_t(command), 0}))
            return false;
    }
    constexpr scmp_datum_t kWriting = O_ACCMODE | O_CREAT | O_TRUNC;
    const bool mayRead = allowIf(filter, SCMP_SYS(openat), {2, SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY}) &&
                         allowIf(filter, SCMP_SYS(open), {1, SCMP_CMP_MASKED_EQ, kWriting, O_RDONLY});
    const bool mayThread =
        allowIf(filter, SCMP_SYS(clone), {0, SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD});
    // Its flags lie in memory, where no filter sees them; the C library falls back to the other one.
    const bool fallsBack = seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
#ifdef HALVERN_SANITIZED
    // A sanitizer tries memory by writing it into a pipe.
    for (const int call : {SCMP_SYS(write), SCMP_SYS(tgkill)}) {
        if (seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0) != 0)
            return false;
    }
#endif
    // Where a crash is reported; standard error goes nowhere otherwise.
    const bool mayComplain = allowIf(filter, SCMP_SYS(write), {0, SCMP_CMP_EQ, STDERR_FILENO, 0});
    const bool mayAsk = allowIf(filter, SCMP_SYS(prlimit64), {2, SCMP_CMP_EQ, 0, 0});
    return mayRead && mayThread && fallsBack && mayComplain && mayAsk;
}

void limit(int resource, rlim_t most)
{
    const rlimit both{most, most};
    setrlimit(__rlimit_resource(resource), &both);
}

} // namespace

void prepareSandbox()
{
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    const int file = memfd_create("filter", MFD_CLOEXEC);

    struct stat state {};

    if (filter && addRules(filter) && seccomp_export_bpf(filter, file) == 0 && fstat(file, &state) == 0) {
        program.resize(size_t(state.st_size) / sizeof(sock_filter));
        if (pread(file, program.data(), size_t(state.st_size), 0) != state.st_size)
            program.clear();
    }
    close(file);
    if (filter)
        seccomp_release(filter);
    // Each thread would reserve an address range of its own, which counts.
    mallopt(M_ARENA_MAX, 2);
}

bool enterSandbox()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, kSeconds);
    limit(RLIMIT_FSIZE, kSharedPiece);
    signal(SIGXFSZ, SIG_IGN);
    limit(RLIMIT_NOFILE, kDescriptors);
#ifndef HALVERN_SANITIZED
    limit(RLIMIT_DATA, kMemory);
    limit(RLIMIT_AS, kAddresses);
#endif
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return !program.empty() && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace halvern
