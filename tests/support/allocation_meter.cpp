#include <tests/support/allocation_meter.h>

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t unlimited = (std::numeric_limits<std::size_t>::max)();

/// In front of every block, as large as the strictest alignment of plain types.
struct alignas(std::max_align_t) block_header {
    std::size_t bytes;
};

std::atomic<std::size_t> in_use = 0; // threads of a test allocate as well
std::atomic<std::size_t> peak = 0;
std::size_t in_use_at_start = 0;
std::size_t limit = unlimited;

bool fits(std::size_t bytes) {
    const std::size_t now = in_use;
    const std::size_t used = now > in_use_at_start ? now - in_use_at_start : 0;
    return bytes <= unlimited - sizeof(block_header) && used <= limit && bytes <= limit - used;
}

} // namespace

void* operator new(std::size_t bytes) {
    void* const block = fits(bytes) ? std::malloc(sizeof(block_header) + bytes) : nullptr;
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    const std::size_t now = in_use += bytes;
    for (std::size_t seen = peak; seen < now && !peak.compare_exchange_weak(seen, now);) {
    }
    static_cast<block_header*>(block)->bytes = bytes;
    return static_cast<block_header*>(block) + 1;
}

void operator delete(void* memory) noexcept {
    if (memory == nullptr) {
        return;
    }
    block_header* const block = static_cast<block_header*>(memory) - 1;
    in_use -= block->bytes;
    std::free(block);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

// The sanitizers' other forms do not call the plain ones.
void* operator new[](std::size_t bytes) {
    return operator new(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    try {
        return operator new(bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return operator new(bytes, std::nothrow);
}

void operator delete[](void* memory) noexcept {
    operator delete(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace allocation_meter {

void start(std::size_t new_limit) {
    in_use_at_start = in_use;
    peak = in_use_at_start;
    limit = new_limit;
}

std::size_t stop() {
    limit = unlimited;
    return peak - in_use_at_start;
}

} // namespace allocation_meter
