#include <ox/mesh/internal/large_array.h>

#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace ox::internal {

#if defined(__linux__) && defined(MADV_HUGEPAGE)

namespace {

/// Size and alignment of a large page on x86-64, and on arm64 with pages of 4 KiB.
constexpr std::uintptr_t large_page = std::uintptr_t{2} << 20;

/// Smaller arrays are left to the system: half of one may not fill a large page.
constexpr std::size_t smallest_large_array = std::size_t{4} << 20;

} // namespace

void prefer_large_pages(void* memory, std::size_t bytes) {
    if (bytes < smallest_large_array) {
        return;
    }
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(memory);
    const std::uintptr_t to_first = (large_page - address % large_page) % large_page;
    const std::size_t length = (bytes - to_first) / large_page * large_page;
    // Refusal is no failure: the memory is as good as any.
    static_cast<void>(madvise(static_cast<char*>(memory) + to_first, length, MADV_HUGEPAGE));
}

#else

void prefer_large_pages(void*, std::size_t) {}

#endif

} // namespace ox::internal
