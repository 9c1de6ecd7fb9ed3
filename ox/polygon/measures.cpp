// Simple measures of the normalised contours.

#include <algorithm>

#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

int ox_polygon::count_outer_contours() {
    data->compute_contours();
    const ox_list<bool>& outer = data->contour_orientations;
    return static_cast<int>(std::count(outer.begin(), outer.end(), true));
}

const ox_box& ox_polygon::get_bounding_box() {
    data->compute_contours();
    if (data->bounding_box.is_empty()) {
        for (const ox_3dvector& v : data->contour_vertices) {
            data->bounding_box.enlarge(v);
        }
    }
    return data->bounding_box;
}

float ox_polygon::get_perimeter() {
    data->compute_contours();
    float perimeter = 0.0f;
    const ox_3dvector* contour = data->contour_vertices.get_data();
    for (const unsigned int size : data->contour_sizes) {
        for (unsigned int i = 0; i < size; ++i) {
            perimeter += contour[i].distance_to(contour[(i + 1) % size]);
        }
        contour += size;
    }
    return perimeter;
}

} // namespace ox
