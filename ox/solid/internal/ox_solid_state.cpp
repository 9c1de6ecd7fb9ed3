#include <utility>

#include <ox/solid/internal/ox_solid_state.h>
#include <ox/solid/internal/same_bits.h>

namespace ox {

ox_solid_state::ox_solid_state(ox_solid* solid) : owner(solid) {}

ox_solid_state::ox_solid_state(ox_solid* solid, const ox_solid_state& source)
    : owner(solid), vertices(source.vertices), contours(source.contours),
      contour_sizes(source.contour_sizes) {}

ox_solid_state::~ox_solid_state() {
    for (ox_solid_half_edge* half_edge : half_edges) {
        delete half_edge;
    }
    manifold_status = -1;
}

face_cache ox_solid_state::invalidate() {
    face_cache retired(std::move(faces));
    bounding_box.clear();
    tesselation_vertices.clear();
    tesselation_triangles.clear();
    readded.reset();
    return retired;
}

unsigned int ox_solid_state::count_vertices() const {
    return vertices.size() > 0 ? static_cast<unsigned int>(vertices.size()) : 0;
}

bool ox_solid_state::holds_face(ox_polygon& polygon, storage_place& place) const {
    const ox_list<unsigned int>& polygon_sizes = polygon.get_contour_sizes();
    const ox_list<ox_3dvector>& corners = polygon.get_contour_vertices();
    storage_place next = place;
    if (polygon_sizes.size() == 0 || corners.size() > contours.size() - next.index) {
        return false;
    }
    for (int i = 0; i < polygon_sizes.size(); ++i, ++next.size_index) {
        const bool is_outer = i == 0;
        const int size = static_cast<int>(polygon_sizes[i]);
        if (next.size_index >= contour_sizes.size() ||
            contour_sizes[next.size_index] != (is_outer ? size : -size) ||
            polygon.get_contour_orientations()[i] != is_outer ||
            polygon.get_contour_parents()[i] != (is_outer ? -1 : 0)) {
            return false;
        }
    }
    if (next.size_index < contour_sizes.size() && contour_sizes[next.size_index] < 1) {
        return false;
    }
    for (const ox_3dvector& corner : corners) {
        const unsigned int index = contours[next.index++];
        if (index >= count_vertices() ||
            !have_same_bits(corner, vertices[static_cast<int>(index)])) {
            return false;
        }
    }
    place = next;
    return true;
}

void ox_solid_state::clear_primary_storage() {
    vertices.clear();
    contours.clear();
    contour_sizes.clear();
}

} // namespace ox
