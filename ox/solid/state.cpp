#include <utility>

#include <ox/solid/internal/ox_solid_state.h>

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
    return retired;
}

unsigned int ox_solid_state::count_vertices() const {
    return vertices.size() > 0 ? static_cast<unsigned int>(vertices.size()) : 0;
}

void ox_solid_state::clear_primary_storage() {
    vertices.clear();
    contours.clear();
    contour_sizes.clear();
}

} // namespace ox
