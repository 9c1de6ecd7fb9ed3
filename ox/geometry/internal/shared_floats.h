#ifndef OX_GEOMETRY_INTERNAL_SHARED_FLOATS_H
#define OX_GEOMETRY_INTERNAL_SHARED_FLOATS_H

#include <cstddef>
#include <memory>

namespace ox::internal {

/// An array of `count` zeros that copies of its owner share; null for a count below 1.
inline std::shared_ptr<float[]> new_shared_floats(long long count) {
    if (count < 1) {
        return nullptr;
    }
    return std::shared_ptr<float[]>(new float[static_cast<std::size_t>(count)]());
}

} // namespace ox::internal

#endif
