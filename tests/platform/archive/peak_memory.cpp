#include "tests/platform/archive/peak_memory.h"

#include <algorithm>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define HALVERN_HAS_ALLOCATION_HOOKS 1

// Both sanitizers' runtimes have these; GCC installs no header for them.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onAllocation)(const volatile void*,
                                                                              std::size_t),
                                                         void (*onRelease)(const volatile void*));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void* block);
#endif

namespace halvern::test {

#ifdef HALVERN_HAS_ALLOCATION_HOOKS

namespace {

thread_local bool counting = false;
thread_local long long held = 0;
thread_local long long peak = 0;

void onAllocation(const volatile void*, std::size_t size)
{
    if (!counting)
        return;
    held += static_cast<long long>(size);
    peak = std::max(peak, held);
}

void onRelease(const volatile void* block)
{
    if (counting && block)
        held -= static_cast<long long>(__sanitizer_get_allocated_size(block));
}

} // namespace

std::optional<std::size_t> peakMemoryOf(const std::function<void()>& work)
{
    [[maybe_unused]] static const int installed =
        __sanitizer_install_malloc_and_free_hooks(&onAllocation, &onRelease);
    held = peak = 0;
    counting = true;
    work();
    counting = false;
    return static_cast<std::size_t>(peak);
}

#else

std::optional<std::size_t> peakMemoryOf(const std::function<void()>& work)
{
    work();
    return std::nullopt;
}

#endif

} // namespace halvern::test
