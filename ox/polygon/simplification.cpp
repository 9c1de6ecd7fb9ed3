// Dropping vertices of closed contours: those at the end of short edges, and flat corners.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <set>
#include <utility>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

/// A closed contour that loses vertices. Vertices keep their index, and passes over the contour
/// only visit those whose next two neighbours changed since they were last visited: for all
/// others a visit would end as the last one did.
class shrinking_contour {
public:
    explicit shrinking_contour(const ox_list<ox_3dvector>& contour)
        : vertices(contour.begin(), contour.end()), left(static_cast<int>(vertices.size())) {
        for (int i = 0; i < left; ++i) {
            before.push_back(i == 0 ? left - 1 : i - 1);
            after.push_back(i + 1 == left ? 0 : i + 1);
            kept.push_back(true);
            to_visit.insert(to_visit.end(), i);
        }
    }

    const ox_3dvector& at(int i) const { return vertices[place(i)]; }
    int next(int i) const { return after[place(i)]; }

    /// The next vertex to visit beyond i in this pass or, when there is none, the first one of
    /// the next pass; -1 when all is done.
    int next_visit(int i) {
        auto visit = to_visit.upper_bound(i);
        if (visit == to_visit.end()) {
            visit = to_visit.begin();
        }
        if (visit == to_visit.end()) {
            return -1;
        }
        const int index = *visit;
        to_visit.erase(visit);
        return index;
    }

    int first_visit() { return next_visit(-1); }

    void remove(int i) {
        const int previous = before[place(i)];
        after[place(previous)] = next(i);
        before[place(next(i))] = previous;
        kept[place(i)] = false;
        --left;
        if (left > 0) {
            to_visit.insert(previous);
            to_visit.insert(before[place(previous)]);
        }
        to_visit.erase(i);
    }

    /// Leaves in `contour`, the one this was made of, the vertices that are left.
    void store(ox_list<ox_3dvector>& contour) const {
        int stored = 0;
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            if (kept[i]) {
                contour[stored++] = vertices[i];
            }
        }
        contour.set_size(stored);
    }

private:
    static std::size_t place(int i) { return static_cast<std::size_t>(i); }

    std::vector<ox_3dvector> vertices;
    std::vector<int> before;
    std::vector<int> after;
    std::vector<bool> kept;
    int left;
    std::set<int> to_visit;
};

float short_edge(float tolerance) {
    return short_edge_share * tolerance;
}

void drop_short_edges(ox_list<ox_3dvector>& vertices, float tolerance) {
    shrinking_contour contour(vertices);
    for (int i = contour.first_visit(); i >= 0; i = contour.next_visit(i)) {
        if (contour.at(i).distance_to(contour.at(contour.next(i))) < short_edge(tolerance)) {
            contour.remove(i);
        }
    }
    contour.store(vertices);
}

/// The distance of `b` from the line through `a` and `c`, within the plane of the normal.
float corner_height(const ox_3dvector& a, const ox_3dvector& b, const ox_3dvector& c,
                    const ox_3dvector& normal) {
    ox_3dvector direction = c - a;
    direction.normalize();
    return std::fabs(ox_dot(ox_cross(normal, direction), b - a));
}

void drop_flat_corners(ox_list<ox_3dvector>& vertices, const ox_3dvector& normal, float tolerance) {
    shrinking_contour contour(vertices);
    int i = contour.first_visit();
    while (i >= 0) {
        const int corner = contour.next(i);
        const ox_3dvector& a = contour.at(i);
        const ox_3dvector& c = contour.at(contour.next(corner));
        if (a.distance_to(c) < short_edge(tolerance)) {
            contour.remove(corner);
            i = contour.first_visit();
            continue;
        }
        if (corner_height(a, contour.at(corner), c, normal) <= tolerance) {
            contour.remove(corner);
        }
        i = contour.next_visit(i);
    }
    contour.store(vertices);
}

/// The normal of what a contour encloses, as long as twice its area: the sum of the cross products
/// of the edges of its fan of triangles.
ox_3dvector doubled_area(const ox_list<ox_3dvector>& contour) {
    ox_3dvector sum;
    for (int i = 1; i + 1 < contour.size(); ++i) {
        sum += ox_cross(contour[i] - contour[0], contour[i + 1] - contour[0]);
    }
    return sum;
}

} // namespace

void ox_polygon::optimize_contour(ox_list<ox_3dvector>& contour, const ox_3dvector& normal,
                                  float tolerance) {
    const ox_3dvector side = normal; // may be a vertex of the contour
    drop_short_edges(contour, tolerance);
    drop_flat_corners(contour, side, tolerance);
}

void ox_polygon::optimize_contour(ox_list<ox_3dvector>& contour, float tolerance) {
    drop_short_edges(contour, tolerance);
    ox_3dvector normal = doubled_area(contour);
    if (normal.normalize() > tolerance) {
        drop_flat_corners(contour, normal, tolerance);
    }
}

void ox_polygon::optimize_contours(float tolerance) {
    data->compute_contours();
    std::vector<ox_list<ox_3dvector>> contours;
    int left = 0;
    for (const contour_view view : contour_views(data->contour_sizes)) {
        ox_list<ox_3dvector> contour = elements_of(data->contour_vertices, view);
        optimize_contour(contour, data->normal, tolerance);
        left += contour.size();
        contours.push_back(contour);
    }
    if (left == data->contour_vertices.size()) {
        return;
    }
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> sizes;
    for (const ox_list<ox_3dvector>& contour : contours) {
        if (contour.size() > 0) {
            std::for_each(contour.begin(), contour.end(),
                          [&vertices](const ox_3dvector& v) { vertices.push_right(v); });
            sizes.push_right(static_cast<unsigned int>(contour.size()));
        }
    }
    clear();
    data->pending_vertices = std::move(vertices);
    data->pending_sizes = std::move(sizes);
    data->contours_computed = data->tesselation_computed = data->pending_sizes.size() == 0;
}

} // namespace ox
