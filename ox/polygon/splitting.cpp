#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include <ox/polygon/internal/hand_over.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

ox_list<ox_polygon*> ox_polygon::split_to_polygons() {
    if (count_outer_contours() < 2) {
        ox_list<ox_polygon*> itself;
        itself.push_right(this);
        return itself;
    }
    std::vector<std::unique_ptr<ox_polygon>> pieces;
    // By contour, what an outer one became. Parents come before what lies inside them.
    std::vector<ox_polygon_data*> piece_of(static_cast<std::size_t>(data->contour_sizes.size()));
    const ox_3dvector* vertices = data->contour_vertices.get_data();
    for (int contour = 0; contour < data->contour_sizes.size(); ++contour) {
        const unsigned int size = data->contour_sizes[contour];
        const int parent = data->contour_parents[contour];
        if (data->contour_orientations[contour]) {
            pieces.push_back(std::make_unique<ox_polygon>(data->point, data->normal));
            piece_of[static_cast<std::size_t>(contour)] = pieces.back()->data;
            pieces.back()->data->append_contour(vertices, size, true, -1);
        } else {
            // Holes keep this index of their parent: callers match pieces with the whole by it.
            piece_of[static_cast<std::size_t>(parent)]->append_contour(vertices, size, false,
                                                                       parent);
        }
        vertices += size;
    }
    return hand_over(std::move(pieces));
}

ox_list<ox_polygon*> ox_polygon::split_to_convex_polygons() {
    ox_list<ox_polygon*> pieces;
    if (is_convex(-1)) {
        pieces.push_right(this);
    }
    return pieces;
}

bool ox_polygon::is_convex(int contour) {
    data->compute_contours();
    const int contours = data->contour_sizes.size();
    if (contour < 0 && contours != 1) {
        return false;
    }
    const int named = contour < 0 ? 0 : contour;
    if (named >= contours) {
        return false;
    }
    const int n = static_cast<int>(data->contour_sizes[named]);
    if (n <= 3) {
        return true;
    }
    // Whichever contour was named, its number of vertices is taken from the start of the list:
    // callers rely on the answers this gives.
    const ox_list<ox_3dvector>& v = data->contour_vertices;
    float reference = 0.0f;
    for (int i = 0; i < n; ++i) {
        const ox_3dvector& a = v[i];
        const ox_3dvector& b = v[(i + 1) % n];
        const ox_3dvector& c = v[(i + 2) % n];
        const float turn = ox_dot(ox_cross(b - a, c - b), data->normal);
        if (turn == 0.0f) {
            continue;
        }
        if (reference == 0.0f) {
            reference = turn < 0.0f ? -1.0f : 1.0f;
        } else if (turn * reference < 0.0f) {
            return false;
        }
    }
    return true;
}

} // namespace ox
