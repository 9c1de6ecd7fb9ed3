#ifndef OX_SOLID_INTERNAL_MEASURES_STORED_CONTOURS_H
#define OX_SOLID_INTERNAL_MEASURES_STORED_CONTOURS_H

#include <cstdint>
#include <cstdlib>

#include <ox/solid/ox_solid.h>

namespace ox::internal {

/// A contour in the primary storage of a solid.
struct stored_contour {
    const unsigned int* indices; ///< each below the number of vertices
    int size;
    bool opens_face; ///< false for a hole of the face opened last
};

/// True if the `size` indices from `first` on are there and name vertices of `solid`.
inline bool is_consistent(const ox_solid& solid, std::int64_t first, std::int64_t size) {
    if (first + size > solid.get_contours().size()) {
        return false;
    }
    for (std::int64_t i = first; i < first + size; ++i) {
        const std::int64_t index = solid.get_contours()[static_cast<int>(i)];
        if (index >= solid.get_vertices().size()) {
            return false;
        }
    }
    return true;
}

/// Calls `visit` with each contour of the primary storage that has indices, in order, up to the
/// first one that the lists contradict: there the faces of the solid end. O(n).
template <typename Visitor>
void visit_contours(const ox_solid& solid, Visitor visit) {
    std::int64_t first = 0;
    bool has_face = false;
    for (const int stored_size : solid.get_contour_sizes()) {
        const std::int64_t size = std::abs(std::int64_t{stored_size});
        if (!is_consistent(solid, first, size)) {
            return;
        }
        const bool opens_face = stored_size > 0 || !has_face;
        has_face = true;
        if (size > 0) {
            visit(stored_contour{solid.get_contours().get_data() + first, static_cast<int>(size),
                                 opens_face});
        }
        first += size;
    }
}

} // namespace ox::internal

#endif
