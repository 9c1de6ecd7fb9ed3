#include <memory>
#include <utility>
#include <vector>

#include <ox/polygon/internal/hand_over.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

namespace {

// Appends an outer boundary of `source` and the holes directly inside it. The holes keep the
// index that their parent has in `source`: callers match pieces with the source by it.
void append_with_holes(ox_polygon_data& piece, const ox_polygon_data& source, int outer) {
    int first = 0;
    for (int contour = 0; contour < source.contour_sizes.size(); ++contour) {
        const unsigned int size = source.contour_sizes[contour];
        const ox_3dvector* vertices = source.contour_vertices.get_data() + first;
        const bool is_hole = !source.contour_orientations[contour];
        if (contour == outer) {
            piece.append_contour(vertices, size, true, -1);
        } else if (is_hole && source.contour_parents[contour] == outer) {
            piece.append_contour(vertices, size, false, outer);
        }
        first += static_cast<int>(size);
    }
}

} // namespace

ox_list<ox_polygon*> ox_polygon::split_to_polygons() {
    if (count_outer_contours() < 2) {
        ox_list<ox_polygon*> itself;
        itself.push_right(this);
        return itself;
    }
    std::vector<std::unique_ptr<ox_polygon>> pieces;
    for (int contour = 0; contour < data->contour_sizes.size(); ++contour) {
        if (data->contour_orientations[contour]) {
            pieces.push_back(std::make_unique<ox_polygon>(data->point, data->normal));
            append_with_holes(*pieces.back()->data, *data, contour);
        }
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
