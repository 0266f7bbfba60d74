#pragma once

#include <QtGlobal>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>

#include <malloc.h>

#ifdef __has_feature
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) \
    || __has_feature(memory_sanitizer)
#define VRN_FOREIGN_ALLOCATOR
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || !defined(__GLIBC__)
#define VRN_FOREIGN_ALLOCATOR
#endif

/**
 * Counts what the whole program takes from the heap, in all threads, Qt and the C library included.
 * A block counts with the bytes that can be used of it; one that is resized counts as one that is
 * taken, and with its old and its new size only one after the other.
 *
 * This header replaces malloc() and its kin in the whole program, of which several source files may
 * include it. A sanitizer brings its own heap; nothing is counted there.
 */
class AllocationCounter
{
public:
    struct SCounts {
        /** How often memory was taken or resized. */
        qint64 allocations;
        /** Still taken, less what was at the start; negative when more was given back. */
        qint64 currentBytes;
        /** The highest currentBytes on the way, at least 0. */
        qint64 peakBytes;
    };

    /** Whether anything is counted here; all counts are 0 otherwise. */
    static bool isAvailable()
    {
        const std::ptrdiff_t before = s_bytes;
        void *volatile block = std::malloc(64);
        const bool counted = s_bytes != before;
        std::free(block);
        return counted;
    }

    static void start()
    {
        s_startBytes = s_bytes.load();
        s_peakBytes = s_bytes.load();
        s_startAllocations = s_allocations.load();
    }

    /** What happened since start(). */
    static SCounts counts()
    {
        return {s_allocations - s_startAllocations, s_bytes - s_startBytes,
                s_peakBytes - s_startBytes};
    }

    /** What the replacements of malloc() and its kin tell of @p block, which may be null. */
    static void *taken(void *block)
    {
        if (block != nullptr) {
            ++s_allocations;
            add(size(block));
        }
        return block;
    }

    static void resized(std::ptrdiff_t oldSize, void *block)
    {
        ++s_allocations;
        add(size(block) - oldSize);
    }

    static void givenBack(void *block) { s_bytes -= size(block); }

    static std::ptrdiff_t size(void *block)
    {
        return static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    }

private:
    static void add(std::ptrdiff_t bytes)
    {
        const std::ptrdiff_t now = s_bytes += bytes;
        std::ptrdiff_t peak = s_peakBytes;
        while (now > peak && !s_peakBytes.compare_exchange_weak(peak, now)) { }
    }

    // As wide as an address: counting must need no lock and no library.
    static inline std::atomic<std::ptrdiff_t> s_bytes{0};
    static inline std::atomic<std::ptrdiff_t> s_peakBytes{0};
    static inline std::atomic<std::ptrdiff_t> s_startBytes{0};
    static inline std::atomic<std::ptrdiff_t> s_allocations{0};
    static inline std::atomic<std::ptrdiff_t> s_startAllocations{0};
};

#ifndef VRN_FOREIGN_ALLOCATOR

/** Weak, for of several source files that include this header one has to define the functions. */
#define VRN_REPLACEMENT Q_DECL_EXPORT __attribute__((weak))

extern "C" {

void *__libc_malloc(std::size_t size) noexcept;
void *__libc_calloc(std::size_t count, std::size_t size) noexcept;
void *__libc_realloc(void *block, std::size_t size) noexcept;
void *__libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void *block) noexcept;

VRN_REPLACEMENT void *malloc(std::size_t size) noexcept
{
    return AllocationCounter::taken(__libc_malloc(size));
}

VRN_REPLACEMENT void *calloc(std::size_t count, std::size_t size) noexcept
{
    return AllocationCounter::taken(__libc_calloc(count, size));
}

VRN_REPLACEMENT void *realloc(void *block, std::size_t size) noexcept
{
    const std::ptrdiff_t oldSize = AllocationCounter::size(block);
    void *const result = __libc_realloc(block, size);
    // Without result the old block is still there, unless it was resized to nothing.
    if (result != nullptr || size == 0) {
        AllocationCounter::resized(oldSize, result);
    }
    return result;
}

VRN_REPLACEMENT void *memalign(std::size_t alignment, std::size_t size) noexcept
{
    return AllocationCounter::taken(__libc_memalign(alignment, size));
}

VRN_REPLACEMENT void *aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return memalign(alignment, size);
}

VRN_REPLACEMENT int posix_memalign(void **block, std::size_t alignment, std::size_t size) noexcept
{
    void *const result = memalign(alignment, size);
    if (result == nullptr) {
        return ENOMEM;
    }
    *block = result;
    return 0;
}

VRN_REPLACEMENT void free(void *block) noexcept
{
    // A caller may look at errno behind this.
    const int error = errno;
    AllocationCounter::givenBack(block);
    __libc_free(block);
    errno = error;
}

} // extern "C"

#undef VRN_REPLACEMENT

#endif
