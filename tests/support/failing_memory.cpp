#include <tests/support/failing_memory.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

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

/// A block that is handed out, or null.
void* counted(void* block) {
    live_blocks += block != nullptr ? 1 : 0;
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
    void* const moved = __libc_realloc(block, bytes);
    if (moved != nullptr || bytes == 0) {
        live_blocks += (moved != nullptr ? 1 : 0) - (block != nullptr ? 1 : 0);
    }
    return moved;
}

void free(void* block) {
    live_blocks -= block != nullptr ? 1 : 0;
    __libc_free(block);
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
    live_blocks -= block != nullptr ? 1 : 0;
    std::free(block);
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
