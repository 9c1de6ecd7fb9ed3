#ifndef OX_SOLID_INTERNAL_STORED_CONTOURS_H
#define OX_SOLID_INTERNAL_STORED_CONTOURS_H

#include <cstdint>
#include <cstdlib>

#include <ox/core/ox_list.h>
#include <ox/solid/ox_solid.h>

namespace ox::internal {

/// A contour in the primary storage of a solid.
struct stored_contour {
    const unsigned int* indices; ///< each below the number of vertices
    int size;
    bool opens_face; ///< false for a hole of the face opened last
};

/// True if the `size` indices from `first` on are there and below the number of vertices.
inline bool is_consistent(const ox_list<unsigned int>& contours, std::int64_t vertex_count,
                          std::int64_t first, std::int64_t size) {
    if (first + size > contours.size()) {
        return false;
    }
    for (std::int64_t i = first; i < first + size; ++i) {
        const std::int64_t index = contours[static_cast<int>(i)];
        if (index >= vertex_count) {
            return false;
        }
    }
    return true;
}

/// Calls `visit` with each contour of a primary storage, empty ones included, in order, up to the
/// first one that the lists contradict: there the faces of the solid end. O(n).
template <typename Visitor>
void visit_contours(const ox_list<unsigned int>& contours, const ox_list<int>& sizes,
                    std::int64_t vertex_count, Visitor visit) {
    std::int64_t first = 0;
    bool has_face = false;
    for (const int stored_size : sizes) {
        const std::int64_t size = std::abs(std::int64_t{stored_size});
        if (!is_consistent(contours, vertex_count, first, size)) {
            return;
        }
        const bool opens_face = stored_size > 0 || !has_face;
        has_face = true;
        visit(stored_contour{contours.get_data() + first, static_cast<int>(size), opens_face});
        first += size;
    }
}

/// Calls `visit` with each contour of a solid.
template <typename Visitor>
void visit_contours(const ox_solid& solid, Visitor visit) {
    visit_contours(solid.get_contours(), solid.get_contour_sizes(), solid.get_vertices().size(),
                   visit);
}

} // namespace ox::internal

#endif
