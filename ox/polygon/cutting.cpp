// Cutting by a plane, and splitting into parts.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;

namespace {

/// The directions in a polygon's plane along which a cutting plane measures it.
struct cut_frame {
    ox_3dvector origin; ///< in the cutting plane
    ox_3dvector along;  ///< of the line in which the planes meet
    ox_3dvector away;   ///< from the side the cutting normal points to
    bool parallel;      ///< the planes do not meet, or not in a line that can be computed
};

cut_frame make_cut_frame(const ox_3dvector& origin, const ox_3dvector& cut_normal,
                         const ox_3dvector& normal) {
    cut_frame frame;
    frame.origin = origin;
    frame.along = ox_cross(cut_normal, normal);
    const float length = frame.along.normalize();
    frame.parallel = !(length >= parallel_cut_sine);
    frame.away = ox_cross(frame.along, normal);
    frame.away.normalize();
    return frame;
}

/// The extent of a polygon in a cut frame: s away from the cutting plane, t along it.
struct cut_extent {
    float s_min = 0.0f;
    float s_max = 0.0f;
    float t_min = 100000000.0f;
    float t_max = -100000000.0f;
};

cut_extent measure(const ox_list<ox_3dvector>& vertices, const cut_frame& frame) {
    cut_extent extent;
    for (const ox_3dvector& vertex : vertices) {
        const float s = ox_dot(vertex - frame.origin, frame.away);
        const float t = ox_dot(vertex - frame.origin, frame.along);
        extent.s_min = std::min(extent.s_min, s);
        extent.s_max = std::max(extent.s_max, s);
        extent.t_min = std::min(extent.t_min, t);
        extent.t_max = std::max(extent.t_max, t);
    }
    return extent;
}

/// The rectangle over the polygon's whole extent along the cut, from `s_first` to `s_last` away.
ox_list<ox_3dvector> rectangle(const cut_frame& f, const cut_extent& x, float s_first,
                               float s_last) {
    return ox_make_list({f.origin + s_first * f.away + x.t_min * f.along,
                         f.origin + s_first * f.away + x.t_max * f.along,
                         f.origin + s_last * f.away + x.t_max * f.along,
                         f.origin + s_last * f.away + x.t_min * f.along});
}

/// The part of `polygon` inside a rectangle of its plane, as a new polygon.
std::unique_ptr<ox_polygon> piece_inside(const ox_polygon& polygon,
                                         const ox_list<ox_3dvector>& corners) {
    ox_polygon clip(polygon.get_point(), polygon.get_normal());
    clip.add_contour(corners);
    auto piece = std::make_unique<ox_polygon>(polygon);
    piece->intersects(clip);
    return piece;
}

/// Hands new polygons over to the caller of a public function, in their order. Until here they
/// have an owner, so that an allocation that fails leaks none of them.
ox_list<ox_polygon*> hand_over(std::vector<std::unique_ptr<ox_polygon>> polygons) {
    ox_list<ox_polygon*> list(static_cast<int>(polygons.size()));
    for (int i = 0; i < list.size(); ++i) {
        list[i] = polygons[static_cast<std::size_t>(i)].release();
    }
    return list;
}

} // namespace

ox_list<ox_polygon*> ox_polygon::cut_by_plane(const ox_3dvector& point, const ox_3dvector& normal,
                                              bool both_sides) {
    ox_list<ox_polygon*> pieces;
    data->compute_contours();
    const cut_frame frame = make_cut_frame(point, normal, data->normal);
    const cut_extent extent = measure(data->contour_vertices, frame);
    const bool nothing_behind = extent.s_max == 0.0f;
    const bool nothing_in_front = extent.s_min == 0.0f;
    if (frame.parallel || nothing_behind) {
        pieces.push_right(this);
        return pieces;
    }
    if (nothing_in_front) {
        if (both_sides) {
            pieces.push_right(this);
        }
        return pieces;
    }
    std::vector<std::unique_ptr<ox_polygon>> cut;
    cut.push_back(piece_inside(*this, rectangle(frame, extent, extent.s_min, 0.0f)));
    if (both_sides) {
        cut.push_back(piece_inside(*this, rectangle(frame, extent, 0.0f, extent.s_max)));
    }
    return hand_over(std::move(cut));
}

ox_list<ox_polygon*> ox_polygon::split_to_polygons() {
    if (count_outer_contours() < 2) {
        return ox_make_list({this});
    }
    std::vector<std::unique_ptr<ox_polygon>> pieces;
    // By contour, what an outer one became. Parents come before what lies inside them.
    std::vector<ox_polygon_data*> piece_of(static_cast<std::size_t>(data->contour_sizes.size()));
    for (const contour_view contour : contour_views(data->contour_sizes)) {
        const ox_3dvector* vertices = data->contour_vertices.get_data() + contour.first;
        const int parent = data->contour_parents[contour.index];
        if (data->contour_orientations[contour.index]) {
            pieces.push_back(std::make_unique<ox_polygon>(data->point, data->normal));
            piece_of[static_cast<std::size_t>(contour.index)] = pieces.back()->data;
            pieces.back()->data->append_contour(vertices, contour.size(), true, -1);
        } else {
            // Holes keep this index of their parent: callers match pieces with the whole by it.
            piece_of[static_cast<std::size_t>(parent)]->append_contour(vertices, contour.size(),
                                                                       false, parent);
        }
    }
    return hand_over(std::move(pieces));
}

ox_list<ox_polygon*> ox_polygon::split_to_convex_polygons() {
    return is_convex(-1) ? ox_make_list({this}) : ox_list<ox_polygon*>();
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
    // Whichever contour was named, its number of vertices is taken from the start of the list: a
    // hole is called convex where its outline is, and pieces are told apart by that.
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
