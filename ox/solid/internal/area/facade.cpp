// Why a facade has area, whatever its triangles are.
//
// Heron's formula in single precision may leave nothing of a *flat* triangle: one whose height is
// so small that half its perimeter exceeds its longest side by a few roundings only. Of the three
// corners of a flat triangle two are sharp and one is nearly straight. Suppose that all triangles
// were flat.
//
// - A region with V vertices and C contours has fewer than V + 2 C triangles, and 2 more for each
//   crossing of its outline with itself, so less than three times as many corners.
// - At a right corner of a hole the triangles fill 270 degrees. At most one of them has its nearly
//   straight corner there: the rest, 90 degrees, is filled by sharp corners, so by many.
//
// With mostly right corners that makes more corners than there are. So some triangle at a right
// corner is not flat; and as its sides are not short, its area is well above the limit.

#include <ox/solid/internal/area/facade.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/internal/wide_vector.h>
#include <ox/solid/internal/area/kept_axes.h>
#include <ox/solid/internal/area/limits.h>
#include <ox/solid/internal/search/face_bounds.h>

namespace ox::internal {

namespace {

constexpr unsigned int rectangle_corners = 4;

wide_vector side(const ox_3dvector& from, const ox_3dvector& to) {
    return to_wide(to) - to_wide(from);
}

double square(const wide_vector& v) {
    return dot(v, v);
}

/// True if four vertices are the corners of a nearly rectangular quadrilateral with no side
/// shorter than the gap: its angles are nearly right, and opposite sides run opposite ways.
bool is_rectangle(const ox_3dvector* v, double gap) {
    const wide_vector sides[rectangle_corners] = {side(v[0], v[1]), side(v[1], v[2]),
                                                  side(v[2], v[3]), side(v[3], v[0])};
    for (unsigned int i = 0; i < rectangle_corners; ++i) {
        const wide_vector& a = sides[i];
        const wide_vector& b = sides[(i + 1) % rectangle_corners];
        const double product = dot(a, b);
        if (!(square(a) > gap * gap) ||
            !(product * product < largest_square_slant * square(a) * square(b))) {
            return false;
        }
    }
    return dot(sides[0], sides[2]) < 0.0 && dot(sides[1], sides[3]) < 0.0;
}

/// True if all vertices of the outline are more than the gap apart.
bool has_distant_vertices(const ox_3dvector* vertices, unsigned int count, double gap) {
    for (unsigned int i = 0; i < count; ++i) {
        for (unsigned int j = i + 1; j < count; ++j) {
            if (!(square(side(vertices[i], vertices[j])) > gap * gap)) {
                return false;
            }
        }
    }
    return true;
}

class facade {
public:
    explicit facade(ox_polygon& region)
        : sizes(region.get_contour_sizes()), vertices(region.get_contour_vertices()),
          parents(region.get_contour_parents()), axes(region.get_normal()), bounds(region) {
        const double diagonal = std::sqrt(bounds.get_square_diagonal());
        gap = std::max(smallest_facade_gap, needed_gap(diagonal));
    }

    bool has_area() {
        return bounds.get_reach() < largest_heron_reach && has_shape() &&
               has_distant_vertices(vertices.get_data(), sizes[0], gap) && read_holes() &&
               are_holes_clear_of_outline() && are_holes_apart();
    }

private:
    /// One outline of a few sides with holes of four corners.
    bool has_shape() const {
        if (sizes[0] > largest_bounded_contour || sizes.size() < 2) {
            return false;
        }
        for (int i = 1; i < sizes.size(); ++i) {
            if (sizes[i] != rectangle_corners || parents[i] != 0) {
                return false;
            }
        }
        return true;
    }

    /// The distance between vertices at which flat triangles have so sharp corners that there
    /// are too few triangles to fill the right corners of the holes.
    double needed_gap(double diagonal) const {
        const double outline = static_cast<double>(sizes[0]);
        const double contours = static_cast<double>(sizes.size());
        const double right_corners = rectangle_corners * (contours - 1.0);
        const double triangles =
            outline + right_corners + 2.0 * contours + outline * (outline - 3.0);
        const double most_at_corner = 3.0 * triangles / right_corners;
        const double sharp_angle = sharp_filled_angle / most_at_corner;
        return square_sharp_angle * diagonal / (sharp_angle * sharp_angle);
    }

    bool read_holes() {
        const ox_3dvector* hole = vertices.get_data() + sizes[0];
        holes.reserve(static_cast<std::size_t>(sizes.size()));
        for (int i = 1; i < sizes.size(); ++i, hole += rectangle_corners) {
            if (!is_rectangle(hole, gap)) {
                return false;
            }
            holes.emplace_back(hole, rectangle_corners);
        }
        return true;
    }

    bool are_holes_clear_of_outline() const {
        const unsigned int n = sizes[0];
        for (unsigned int i = 0; i < n; ++i) {
            const ox_3dvector ends[2] = {vertices[static_cast<int>(i)],
                                         vertices[static_cast<int>((i + 1) % n)]};
            const face_bounds outline_side(ends, 2);
            for (const face_bounds& hole : holes) {
                if (!axes.are_apart(outline_side, hole, gap)) {
                    return false;
                }
            }
        }
        return true;
    }

    /// Sweeps over the holes along the axis on which the facade is longest.
    bool are_holes_apart() {
        const unsigned int axis = find_longest_axis();
        std::sort(holes.begin(), holes.end(), [axis](const face_bounds& a, const face_bounds& b) {
            return a.low.at(axis) < b.low.at(axis);
        });
        std::size_t comparisons_left = facade_comparisons * holes.size();
        for (std::size_t i = 0; i < holes.size(); ++i) {
            const double reach = static_cast<double>(holes[i].high.at(axis)) + gap;
            for (std::size_t j = i + 1;
                 j < holes.size() && static_cast<double>(holes[j].low.at(axis)) <= reach; ++j) {
                if (comparisons_left-- == 0 || !axes.are_apart(holes[i], holes[j], gap)) {
                    return false;
                }
            }
        }
        return true;
    }

    unsigned int find_longest_axis() const {
        unsigned int longest = 0;
        double length = -1.0;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            const double extent = bounds.get_extent(axis);
            if (axes.is_kept(axis) && extent > length) {
                length = extent;
                longest = axis;
            }
        }
        return longest;
    }

    const ox_list<unsigned int>& sizes;
    const ox_list<ox_3dvector>& vertices;
    const ox_list<int>& parents;
    const kept_axes axes;
    const face_bounds bounds;
    double gap;
    std::vector<face_bounds> holes;
};

} // namespace

bool is_facade_with_area(ox_polygon& polygon) {
    return polygon.get_contour_sizes().size() > 1 && facade(polygon).has_area();
}

} // namespace ox::internal
