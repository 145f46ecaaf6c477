// SPDX-License-Identifier: MIT
#include "tests/faults/failing_system.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstddef>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace halvern::failing;

namespace {

std::atomic<int> armed = 0;
std::atomic<int> how = kCount;
std::atomic<long> wanted = 0;
std::atomic<long> seen = 0;
std::atomic<long> blocks = 0;

// Whether this call is to fail; does not come back from one that is the process's last.
bool fails(int calls, bool canTear = false)
{
    if ((armed.load() & calls) == 0)
        return false;
    const long number = ++seen;
    const int way = how.load();
    if (way == kCount || number < wanted.load() || (way != kFull && number != wanted.load()))
        return false;
    if (way == kKill || (way == kTorn && !canTear))
        kill(getpid(), SIGKILL);
    return true;
}

template <class Function> Function next(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int failed(int error)
{
    errno = error;
    return -1;
}

mode_t modeOf(int flags, va_list more)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? mode_t(va_arg(more, int)) : 0;
}

} // namespace

extern "C" {

void halvern_failing_arm(int calls, long at, int way)
{
    seen = 0;
    wanted = at;
    how = way;
    armed = calls;
}

long halvern_failing_disarm()
{
    armed = 0;
    return seen;
}

long halvern_failing_blocks()
{
    return blocks;
}

#define HALVERN_OPEN(NAME)                                                                                   \
    int NAME(const char* path, int flags, ...)                                                               \
    {                                                                                                        \
        va_list more;                                                                                        \
        va_start(more, flags);                                                                               \
        const mode_t mode = modeOf(flags, more);                                                             \
        va_end(more);                                                                                        \
        static const auto real = next<int (*)(const char*, int, ...)>(#NAME);                                \
        return fails(kFileCalls) ? failed(EMFILE) : real(path, flags, mode);                                 \
    }
HALVERN_OPEN(open)
HALVERN_OPEN(open64)

#define HALVERN_OPENAT(NAME)                                                                                 \
    int NAME(int folder, const char* path, int flags, ...)                                                   \
    {                                                                                                        \
        va_list more;                                                                                        \
        va_start(more, flags);                                                                               \
        const mode_t mode = modeOf(flags, more);                                                             \
        va_end(more);                                                                                        \
        static const auto real = next<int (*)(int, const char*, int, ...)>(#NAME);                           \
        return fails(kFileCalls) ? failed(EMFILE) : real(folder, path, flags, mode);                         \
    }
HALVERN_OPENAT(openat)
HALVERN_OPENAT(openat64)

ssize_t write(int file, const void* bytes, size_t count)
{
    static const auto real = next<ssize_t (*)(int, const void*, size_t)>("write");
    // A full disk is not in the way of what wakes a thread.
    struct stat about = {};
    const bool isFile = fstat(file, &about) == 0 && S_ISREG(about.st_mode);
    if (!isFile || !fails(kFileCalls | kWrites, true))
        return real(file, bytes, count);
    if (how.load() == kTorn) {
        (void)!real(file, bytes, count / 2);
        kill(getpid(), SIGKILL);
    }
    return failed(ENOSPC);
}

// What else changes a file or a folder, and takes nothing unusual.
#define HALVERN_CALL(NAME, ERROR, PARAMETERS, ARGUMENTS)                                                     \
    int NAME PARAMETERS                                                                                      \
    {                                                                                                        \
        static const auto real = next<int(*) PARAMETERS>(#NAME);                                             \
        return fails(kFileCalls) ? failed(ERROR) : real ARGUMENTS;                                           \
    }
HALVERN_CALL(rename, EIO, (const char* from, const char* to) noexcept, (from, to))
HALVERN_CALL(renameat2, EIO, (int one, const char* from, int other, const char* to, unsigned flags) noexcept,
             (one, from, other, to, flags))
HALVERN_CALL(link, EIO, (const char* from, const char* to) noexcept, (from, to))
HALVERN_CALL(unlink, EIO, (const char* path) noexcept, (path))
HALVERN_CALL(mkdir, ENOSPC, (const char* path, mode_t mode) noexcept, (path, mode))
HALVERN_CALL(fchmod, EIO, (int file, mode_t mode) noexcept, (file, mode))
HALVERN_CALL(fsync, EIO, (int file), (file))
HALVERN_CALL(fdatasync, EIO, (int file), (file))

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* old, size_t size);
void* __libc_memalign(size_t alignment, size_t size);
void __libc_free(void* block);

void* malloc(size_t size)
{
    void* const block = fails(kAllocations) ? nullptr : __libc_malloc(size);
    blocks += block ? 1 : 0;
    errno = block ? errno : ENOMEM;
    return block;
}

void* calloc(size_t count, size_t size)
{
    void* const block = fails(kAllocations) ? nullptr : __libc_calloc(count, size);
    blocks += block ? 1 : 0;
    errno = block ? errno : ENOMEM;
    return block;
}

void* realloc(void* old, size_t size)
{
    void* const block = fails(kAllocations) ? nullptr : __libc_realloc(old, size);
    blocks += block && !old ? 1 : 0;
    errno = block ? errno : ENOMEM;
    return block;
}

void* aligned_alloc(size_t alignment, size_t size)
{
    void* const block = fails(kAllocations) ? nullptr : __libc_memalign(alignment, size);
    blocks += block ? 1 : 0;
    return block;
}

int posix_memalign(void** result, size_t alignment, size_t size) noexcept
{
    void* const block = aligned_alloc(alignment, size);
    if (!block)
        return ENOMEM;
    *result = block;
    return 0;
}

void free(void* block)
{
    blocks -= block ? 1 : 0;
    __libc_free(block);
}
}
