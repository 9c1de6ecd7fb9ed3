#include <tests/support/failing_memory.h>

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define TESTS_HAVE_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define TESTS_HAVE_SANITIZER
#endif
#endif

namespace {

bool counting = false;
bool refused = false;
bool keeps_failing = false;
int left = 0;
std::atomic<long> live_blocks = 0; // threads of a test allocate as well
std::atomic<long> live_bytes = 0;

#if defined(__GLIBC__)
long size_of(void* block) {
    return static_cast<long>(malloc_usable_size(block));
}
#else
long size_of(void*) {
    return 0;
}
#endif

/// A block that is handed out, or null.
void* counted(void* block) {
    if (block != nullptr) {
        ++live_blocks;
        live_bytes += size_of(block);
    }
    return block;
}

/// A block that is taken back, or null.
void* discounted(void* block) {
    if (block != nullptr) {
        --live_blocks;
        live_bytes -= size_of(block);
    }
    return block;
}

bool refuses_next() {
    if (!counting || (left > 0 && --left > 0) || (refused && !keeps_failing)) {
        return false;
    }
    refused = true;
    return true;
}

} // namespace

namespace failing_memory {

void start(int failing, bool for_good) {
    refused = false;
    keeps_failing = for_good;
    left = failing;
    counting = true;
}

long count_live_blocks() {
    return live_blocks;
}

long count_live_bytes() {
    return live_bytes;
}

bool stop() {
    counting = false;
    return refused;
}

} // namespace failing_memory

#if defined(__GLIBC__) && !defined(TESTS_HAVE_SANITIZER)

extern "C" {

void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);
void __libc_free(void*);

void* malloc(std::size_t bytes) {
    return refuses_next() ? nullptr : counted(__libc_malloc(bytes));
}

void* calloc(std::size_t count, std::size_t bytes) {
    return refuses_next() ? nullptr : counted(__libc_calloc(count, bytes));
}

void* realloc(void* block, std::size_t bytes) {
    if (refuses_next()) {
        return nullptr;
    }
    discounted(block);
    void* const moved = __libc_realloc(block, bytes);
    counted(moved == nullptr && bytes > 0 ? block : moved); // what cannot grow stays
    return moved;
}

void* memalign(std::size_t alignment, std::size_t bytes) {
    return refuses_next() ? nullptr : counted(__libc_memalign(alignment, bytes));
}

void* aligned_alloc(std::size_t alignment, std::size_t bytes) {
    return memalign(alignment, bytes);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t bytes) {
    void* const made = memalign(alignment, bytes);
    if (made == nullptr) {
        return ENOMEM;
    }
    *block = made;
    return 0;
}

void free(void* block) {
    __libc_free(discounted(block));
}

} // extern "C"

#else

void* operator new(std::size_t bytes) {
    void* const block = refuses_next() ? nullptr : std::malloc(bytes);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return counted(block);
}

void* operator new[](std::size_t bytes) {
    return operator new(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return refuses_next() ? nullptr : counted(std::malloc(bytes));
}

void* operator new[](std::size_t bytes, const std::nothrow_t& tag) noexcept {
    return operator new(bytes, tag);
}

void operator delete(void* block) noexcept {
    std::free(discounted(block));
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}

void operator delete[](void* block) noexcept {
    operator delete(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    operator delete(block);
}

#endif
