#include <ox/polygon/internal/crossing_count.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

namespace {

// True unless the two stretches of an axis are farther apart than the tolerance.
bool stretches_meet(float origin, float size, float other_origin, float other_size) {
    return !(origin > other_origin + other_size + box_contact_tolerance) &&
           !(other_origin - box_contact_tolerance > origin + size);
}

} // namespace

bool ox_polygon_data::contains(const ox_3dvector& p) const {
    const ox_2dvector q = plane_coordinates(*this, p);
    const auto vertex = [this](int i) { return plane_coordinates(*this, contour_vertices[i]); };
    return contours_contain(contour_sizes, vertex, q.x, q.y);
}

bool ox_polygon::contains(const ox_3dvector& p) {
    data->compute_contours();
    return data->contains(p);
}

bool ox_polygon::may_intersect(const ox_box& box) {
    const ox_box& own = get_bounding_box();
    return stretches_meet(own.origin.x, own.size.x, box.origin.x, box.size.x) &&
           stretches_meet(own.origin.y, own.size.y, box.origin.y, box.size.y) &&
           stretches_meet(own.origin.z, own.size.z, box.origin.z, box.size.z);
}

} // namespace ox
