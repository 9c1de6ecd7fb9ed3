#ifndef OX_MESH_INTERNAL_PREFETCH_H
#define OX_MESH_INTERNAL_PREFETCH_H

namespace ox {

/// Asks the processor to fetch the memory at `address`, which may be any, while other work goes on.
/// A hint without effect on results; compilers that cannot pass it on ignore it.
inline void oxp_prefetch(const void* address) {
#if defined(__GNUC__)
    __builtin_prefetch(address);
#else
    static_cast<void>(address);
#endif
}

} // namespace ox

#endif
