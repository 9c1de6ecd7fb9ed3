#include <tests/support/failing_allocation.h>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<int> allocations_left = 0; // until the one that fails; not counting where not above 0
std::atomic<bool> failed = false;

void* allocate(std::size_t bytes) {
    if (allocations_left > 0 && --allocations_left == 0) {
        failed = true;
        return nullptr;
    }
    return std::malloc(bytes > 0 ? bytes : 1);
}

} // namespace

namespace support {

failing_allocation::failing_allocation(int number) {
    failed = false;
    allocations_left = number;
}

failing_allocation::~failing_allocation() {
    allocations_left = 0;
}

bool failing_allocation::has_failed() const {
    return failed;
}

} // namespace support

void* operator new(std::size_t bytes) {
    void* const block = allocate(bytes);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void* operator new[](std::size_t bytes) {
    return operator new(bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return allocate(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return allocate(bytes);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}
