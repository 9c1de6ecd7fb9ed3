#ifndef OX_POLYGON_INTERNAL_SEARCH_CROSSING_COUNT_H
#define OX_POLYGON_INTERNAL_SEARCH_CROSSING_COUNT_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/internal/contour_view.h>

namespace ox::internal {

/// Where the edge from `a` to `b`, which must not be horizontal, meets the horizontal line at v.
/// Every rounding is monotonic, so the result only ever moves one way as v does.
template <class point, class number>
number crossing_at(const point& a, const point& b, number v) {
    return a.x + (v - a.y) / (b.y - a.y) * (b.x - a.x);
}

/// Finds where the horizontal line at v crosses the edge from `a` to `b`; false for nowhere.
///
/// An edge owns its lower end and not its upper one, so a line through a vertex counts each
/// chain of edges once, and a horizontal edge is never counted: a closed contour is crossed an
/// even number of times. All comparisons are exact.
template <class point, class number>
bool find_crossing(const point& a, const point& b, number v, number& at) {
    if ((a.y > v && b.y > v) || (a.y < v && b.y < v)) {
        return false;
    }
    if (a.y == v) {
        at = a.x;
        return b.y > v;
    }
    if (b.y == v) {
        at = b.x;
        return a.y > v;
    }
    at = crossing_at(a, b, v);
    return true;
}

/// The crossings of the horizontal line through a point with the edges of closed contours, left
/// and right of the point (the even-odd rule of Shimrat, Communications of the ACM 1962). A point
/// on the outline is inside or outside as the count comes out.
class crossing_count {
public:
    crossing_count(float point_u, float point_v) : u(point_u), v(point_v) {}

    /// Counts the edge from `a` to `b`, if the line meets it.
    void add_edge(const ox_2dvector& a, const ox_2dvector& b) {
        float at = 0.0f;
        if (find_crossing(a, b, v, at)) {
            add_crossing(at);
        }
    }

    /// True if the point lies inside what the counted edges bound.
    bool is_inside() const {
        return left != 0 && right != 0 && (left + right) % 2 == 0 && left % 2 == 1;
    }

private:
    void add_crossing(float at) {
        if (u > at) {
            ++left;
        } else {
            ++right;
        }
    }

    float u;
    float v;
    unsigned int left = 0;
    unsigned int right = 0;
};

/// True if (u, v) lies inside the region that closed contours bound. `sizes` are the vertex
/// counts of the contours, and `vertex(i)` gives vertex i of all of them, contour after contour,
/// as an `ox_2dvector`. False without contours, and for a point that is not a number. O(n); each
/// vertex is asked for once, the last one of each contour twice.
template <class vertex_access>
bool contours_contain(const ox_list<unsigned int>& sizes, const vertex_access& vertex, float u,
                      float v) {
    crossing_count crossings(u, v);
    for (const contour_view contour : contour_views(sizes)) {
        if (contour.size() == 0) {
            continue;
        }
        ox_2dvector previous = vertex(contour.end - 1);
        for (int i = contour.first; i < contour.end; ++i) {
            const ox_2dvector current = vertex(i);
            crossings.add_edge(previous, current);
            previous = current;
        }
    }
    return crossings.is_inside();
}

} // namespace ox::internal

#endif
