#ifndef OX_MESH_INTERNAL_LARGE_ARRAY_H
#define OX_MESH_INTERNAL_LARGE_ARRAY_H

#include <cstddef>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>

namespace ox::internal {

/// Asks the system to back fresh memory with large pages where it can. The first touch of each
/// ordinary page costs more than the work of welding or refining what lies in it. A hint: where the
/// system has no large pages, or none left, nothing happens.
void prefer_large_pages(void* memory, std::size_t bytes);

/// Asks the processor to fetch the memory at `address`, which may be any, while other work goes on.
/// A hint without effect on results; compilers that cannot pass it on ignore it.
inline void prefetch_memory(const void* address) {
#if defined(__GNUC__)
    __builtin_prefetch(address);
#else
    static_cast<void>(address);
#endif
}

/// Releases what `make_large_array` made.
struct large_array_deleter {
    void operator()(void* memory) const { ::operator delete(memory); }
};

/// An array of plain values, owned.
template <typename T>
using large_array = std::unique_ptr<T[], large_array_deleter>;

/// An array of `count` values that are not initialised, null for none. Throws std::bad_alloc.
template <typename T>
large_array<T> make_large_array(std::size_t count) {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
    if (count == 0) {
        return nullptr;
    }
    if (count > (std::numeric_limits<std::size_t>::max)() / sizeof(T)) {
        throw std::bad_array_new_length();
    }
    const std::size_t bytes = count * sizeof(T);
    large_array<T> array(static_cast<T*>(::operator new(bytes)));
    prefer_large_pages(array.get(), bytes);
    return array;
}

} // namespace ox::internal

#endif
