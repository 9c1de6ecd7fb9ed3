#include <ox/polygon/internal/center_search.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

const ox_3dvector& ox_polygon::get_best_center() {
    data->compute_contours();
    if (data->best_center_computed) {
        return data->best_center;
    }
    if (data->contour_vertices.size() < 1) {
        data->best_center = data->point;
    } else {
        // Without a candidate inside, the previous centre stays.
        center_search(*data).find(data->best_center);
    }
    data->best_center_computed = true;
    return data->best_center;
}

} // namespace ox
