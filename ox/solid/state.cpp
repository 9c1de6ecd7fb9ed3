#include <utility>

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

oxp_owned_polygons& oxp_owned_polygons::operator=(oxp_owned_polygons&& other) noexcept {
    if (this != &other) {
        const oxp_owned_polygons retired(std::move(*this));
        list = std::move(other.list);
    }
    return *this;
}

oxp_owned_polygons::~oxp_owned_polygons() {
    for (ox_polygon* polygon : list) {
        delete polygon;
    }
}

ox_polygon& oxp_owned_polygons::add() {
    list.push_right(nullptr); // the place first: a polygon never lives without an owner
    const int last = list.size() - 1;
    list[last] = new ox_polygon;
    return *list[last];
}

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

oxp_owned_polygons ox_solid_state::invalidate() {
    oxp_owned_polygons retired(std::move(faces));
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
