// The functions that a RealTimeGuard watches, put in front of the C library's. For test programs only.

#include "Support/RealTimeGuard.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <ctime>
#include <dlfcn.h>
#include <pthread.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZN_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZN_SANITIZED 1
#endif
#endif

#ifndef ZN_SANITIZED
#define ZN_SANITIZED 0
#endif

using Zn::Tests::RealTimeGuard;

#if ZN_SANITIZED

extern "C" int __sanitizer_install_malloc_and_free_hooks (void (*) (const volatile void*, std::size_t),
                                                          void (*) (const volatile void*));

namespace
{
[[maybe_unused]] const int hooksAreInstalled = __sanitizer_install_malloc_and_free_hooks (
    [] (const volatile void*, std::size_t) { RealTimeGuard::report (RealTimeGuard::Offence::heap); },
    [] (const volatile void*) { RealTimeGuard::report (RealTimeGuard::Offence::heap); });
} // namespace

bool RealTimeGuard::countsLocks() noexcept
{
    return false;
}

#else

bool RealTimeGuard::countsLocks() noexcept
{
    return true;
}

#define ZN_WATCHED extern "C" __attribute__ ((visibility ("default")))

extern "C"
{
    void* __libc_malloc (std::size_t) noexcept;
    void* __libc_calloc (std::size_t, std::size_t) noexcept;
    void* __libc_realloc (void*, std::size_t) noexcept;
    void* __libc_memalign (std::size_t, std::size_t) noexcept;
    void __libc_free (void*) noexcept;
}

namespace
{
void reportHeapCall() noexcept
{
    RealTimeGuard::report (RealTimeGuard::Offence::heap);
}
} // namespace

ZN_WATCHED void* malloc (std::size_t size) noexcept
{
    reportHeapCall();
    return __libc_malloc (size);
}

ZN_WATCHED void* calloc (std::size_t count, std::size_t size) noexcept
{
    reportHeapCall();
    return __libc_calloc (count, size);
}

ZN_WATCHED void* realloc (void* block, std::size_t size) noexcept
{
    reportHeapCall();
    return __libc_realloc (block, size);
}

ZN_WATCHED void* memalign (std::size_t alignment, std::size_t size) noexcept
{
    reportHeapCall();
    return __libc_memalign (alignment, size);
}

ZN_WATCHED void* aligned_alloc (std::size_t alignment, std::size_t size) noexcept
{
    return memalign (alignment, size);
}

ZN_WATCHED int posix_memalign (void** result, std::size_t alignment, std::size_t size) noexcept
{
    auto* const block = memalign (alignment, size);

    if (block == nullptr)
        return ENOMEM;

    *result = block;
    return 0;
}

ZN_WATCHED void free (void* block) noexcept
{
    if (block == nullptr)
        return;

    reportHeapCall();
    __libc_free (block);
}

/** Reports a lock, then calls the C library's own function of that name. */
#define ZN_WATCHED_LOCK(name, parameters, ...)                                                               \
    ZN_WATCHED int name parameters                                                                           \
    {                                                                                                        \
        static std::atomic<void*> original { nullptr };                                                      \
        RealTimeGuard::report (RealTimeGuard::Offence::lock);                                                \
                                                                                                             \
        if (original.load (std::memory_order_relaxed) == nullptr)                                            \
            original = ::dlsym (RTLD_NEXT, #name);                                                           \
                                                                                                             \
        return reinterpret_cast<decltype (&::name)> (original.load (std::memory_order_relaxed)) (            \
            __VA_ARGS__);                                                                                    \
    }

ZN_WATCHED_LOCK (pthread_mutex_lock, (pthread_mutex_t * mutex) noexcept, mutex)
ZN_WATCHED_LOCK (pthread_rwlock_rdlock, (pthread_rwlock_t * lock) noexcept, lock)
ZN_WATCHED_LOCK (pthread_rwlock_wrlock, (pthread_rwlock_t * lock) noexcept, lock)
ZN_WATCHED_LOCK (pthread_cond_wait, (pthread_cond_t * condition, pthread_mutex_t* mutex), condition, mutex)
ZN_WATCHED_LOCK (pthread_cond_timedwait,
                 (pthread_cond_t * condition, pthread_mutex_t* mutex, const timespec* until),
                 condition,
                 mutex,
                 until)
ZN_WATCHED_LOCK (pthread_cond_clockwait,
                 (pthread_cond_t * condition, pthread_mutex_t* mutex, clockid_t clock, const timespec* until),
                 condition,
                 mutex,
                 clock,
                 until)

#endif
