#ifndef OX_SOLID_INTERNAL_CSG_EXACT_ITEM_H
#define OX_SOLID_INTERNAL_CSG_EXACT_ITEM_H

#include <cstddef>

namespace ox::internal::csg::exact {

/// The element at an index; indices are ints everywhere here, as they are in the input.
template <typename Sequence>
auto& item(Sequence& sequence, int index) {
    return sequence[static_cast<std::size_t>(index)];
}

/// The number of elements as an index.
template <typename Sequence>
int count_of(const Sequence& sequence) {
    return static_cast<int>(sequence.size());
}

} // namespace ox::internal::csg::exact

#endif
