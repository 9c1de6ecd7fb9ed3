#ifndef OX_SOLID_INTERNAL_BOOLEAN_OPERAND_H
#define OX_SOLID_INTERNAL_BOOLEAN_OPERAND_H

#include <cstddef>
#include <memory>
#include <vector>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/internal/section/plane_section.h>

namespace ox::internal {

/// A solid that takes part in a boolean: its faces, in their boxes, as they are at its start.
class operand {
public:
    explicit operand(ox_solid_state& state)
        : cache(state.faces), box(state.get_bounding_box()), faces(cache.get_list()),
          bounds(cache.refresh_bounds()) {}

    const ox_box& get_box() const { return box; }
    int count_faces() const { return faces.size(); }
    ox_polygon& get_face(int i) const { return *faces[i]; }

    /// True if a face is added to a solid as the polygon that it is.
    bool is_reproducible(int i) const { return cache.is_reproducible(i); }

    /// True only if a face, in either direction, cannot meet what is in `other_box`.
    bool is_surely_apart(int i, const ox_box& other_box) const {
        return bounds[static_cast<std::size_t>(i)].surely_apart_from(
            other_box, faces[i]->get_contour_vertices().size());
    }

    /// The section of the solid, null when the plane meets no face.
    std::unique_ptr<ox_polygon> find_section(const ox_3dvector& point, const ox_3dvector& normal,
                                             float tolerance) const {
        return plane_section(faces, cache.get_tree(), point, normal, tolerance);
    }

private:
    face_cache& cache;
    const ox_box box;
    const ox_list<ox_polygon*>& faces;
    const std::vector<face_bounds>& bounds;
};

} // namespace ox::internal

#endif
