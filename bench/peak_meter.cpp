#include "peak_meter.h"

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> bytes_in_use = 0;
std::atomic<std::size_t> peak_bytes = 0;

} // namespace

void* operator new(std::size_t bytes) {
    void* const memory = std::malloc(bytes);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    const std::size_t now = bytes_in_use += malloc_usable_size(memory);
    for (std::size_t seen = peak_bytes;
         seen < now && !peak_bytes.compare_exchange_weak(seen, now);) {
    }
    return memory;
}

void operator delete(void* memory) noexcept {
    bytes_in_use -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

peak_meter::peak_meter() : before(bytes_in_use) {
    peak_bytes = before;
}

double peak_meter::mebibytes() const {
    return static_cast<double>(peak_bytes - before) / (1 << 20);
}
