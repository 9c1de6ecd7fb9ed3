#include <ox/solid/internal/csg/slicing.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>
#include <ox/solid/internal/csg/point_index.h>
#include <ox/solid/internal/csg/segment_distance.h>

// The faces of one plane are looked at together: a fan arises from the corners of windows that end
// in the plane of the wall as well as from points on the wall's border. A plane that gains points
// by its neighbours' slices may need slices of its own then; it adds at most half as many, so that
// this ends.

namespace ox::internal::csg {

namespace {

/// Lengths to widths from which a plane is long.
constexpr double long_share = 4.0;

/// Inner corners of a plane for each point that its slices add, at least.
constexpr double corners_per_point = 2.0;

/// Corners of a plane that has enough inner ones for slices.
constexpr std::size_t fewest_corners = 16;

/// Rounds after which planes keep what their neighbours gave them.
constexpr int largest_round_count = 3;

/// The marks where the edges of a plane are divided: the multiples of a spacing along an axis.
struct ruler {
    std::size_t axis = 0;
    std::int64_t spacing = 0; ///< steps, a power of two; 0 for none
};

/// The faces of one plane.
struct plane_members {
    std::vector<const scene_face*> faces;
    grid_box box;
    double largest_area = 0.0; ///< of a face, twice
};

/// The axis along which a box is longest.
std::size_t longest_axis(const grid_box& box) {
    std::size_t longest = 0;
    for (std::size_t axis = 1; axis < 3; ++axis) {
        if (box.high[axis] - box.low[axis] > box.high[longest] - box.low[longest]) {
            longest = axis;
        }
    }
    return longest;
}

/// What lies along a plane and not at one of its ends.
struct inner_part {
    double corner_count = 0.0;
    double edge_length = 0.0; ///< of edges longer than the plane is wide
};

inner_part measure_inner_part(const plane_members& plane, const std::vector<grid_point>& points,
                              std::size_t axis, double width) {
    inner_part inner;
    for (const scene_face* face : plane.faces) {
        for (const directed_edge& edge : face->boundary) {
            const auto from =
                static_cast<double>(coordinate(points[static_cast<std::size_t>(edge[0])], axis));
            const auto to =
                static_cast<double>(coordinate(points[static_cast<std::size_t>(edge[1])], axis));
            if (from > plane.box.low[axis] + width && from < plane.box.high[axis] - width) {
                inner.corner_count += 1.0;
            }
            if (std::fabs(to - from) > width) {
                inner.edge_length += std::fabs(to - from);
            }
        }
    }
    return inner;
}

/// The ruler of a plane: slices about as long as they are wide, or with a few corners each.
ruler make_ruler(const plane_members& plane, const std::vector<grid_point>& points) {
    const std::size_t axis = longest_axis(plane.box);
    const double length = plane.box.high[axis] - plane.box.low[axis];
    const double width = std::max(1.0, 0.5 * plane.largest_area / std::max(length, 1.0));
    if (length <= long_share * width) {
        return {};
    }
    const inner_part inner = measure_inner_part(plane, points, axis, width);
    const double spacing =
        std::max(width, corners_per_point * inner.edge_length / std::max(inner.corner_count, 1.0));
    if (length <= long_share * spacing) {
        return {};
    }
    return {axis, std::int64_t{2} << std::ilogb(spacing)};
}

class plane_slicer {
public:
    plane_slicer(scene& all, exact::progress_poll& steps) : faces(all), poll(steps) {}

    /// True where edges were divided.
    bool run_round();

private:
    std::map<int, plane_members> gather_planes();
    bool make_rulers();
    void index_points();
    bool is_long(const directed_edge& edge, const ruler& marks) const;
    void divide(const directed_edge& edge, const ruler& marks);
    int point_at(const directed_edge& ends, std::size_t axis, std::int64_t mark);

    const grid_point& at(int point) const { return faces.points[static_cast<std::size_t>(point)]; }

    const ruler& ruler_of(const scene_face& face) const {
        return rulers[static_cast<std::size_t>(face.cluster)];
    }

    scene& faces;
    exact::progress_poll& poll;
    std::vector<ruler> rulers; ///< of the planes, by the number of the cluster
    edge_register edges;
    edge_division division{0};
    point_index places{0.0};
    int indexed = 0; ///< points that `places` knows
};

/// Makes all points known by their places.
void plane_slicer::index_points() {
    for (; indexed < static_cast<int>(faces.points.size()); ++indexed) {
        poll.step();
        places.add(at(indexed), indexed);
    }
}

/// The planes with corners enough for slices, by the numbers of their clusters.
std::map<int, plane_members> plane_slicer::gather_planes() {
    std::vector<std::size_t> corner_counts(faces.faces.size(), 0);
    for (const scene_face& face : faces.faces) {
        corner_counts[static_cast<std::size_t>(face.cluster)] += face.boundary.size();
    }
    std::map<int, plane_members> planes;
    for (const scene_face& face : faces.faces) {
        poll.step();
        if (corner_counts[static_cast<std::size_t>(face.cluster)] <= fewest_corners) {
            continue;
        }
        plane_members& plane = planes[face.cluster];
        plane.faces.push_back(&face);
        plane.largest_area = std::max(plane.largest_area, face.plane.area);
        for (const directed_edge& edge : face.boundary) {
            plane.box.include(at(edge[0]));
        }
    }
    return planes;
}

/// False where no plane has a ruler.
bool plane_slicer::make_rulers() {
    rulers.assign(faces.faces.size(), ruler());
    bool is_any_long = false;
    for (const auto& [cluster, plane] : gather_planes()) {
        poll.step();
        ruler& made = rulers[static_cast<std::size_t>(cluster)];
        made = make_ruler(plane, faces.points);
        is_any_long = is_any_long || made.spacing > 0;
    }
    return is_any_long;
}

/// True if the edge reaches over two marks at least.
bool plane_slicer::is_long(const directed_edge& edge, const ruler& marks) const {
    const std::int64_t from = coordinate(at(edge[0]), marks.axis);
    const std::int64_t to = coordinate(at(edge[1]), marks.axis);
    return marks.spacing > 0 && std::abs(to - from) >= 2 * marks.spacing;
}

/// Divides an edge at each mark that is not next to an end.
void plane_slicer::divide(const directed_edge& edge, const ruler& marks) {
    const std::int64_t from = coordinate(at(edge[0]), marks.axis);
    const std::int64_t to = coordinate(at(edge[1]), marks.axis);
    const std::int64_t margin = marks.spacing / 2;
    const std::int64_t last = std::max(from, to) - margin;
    std::int64_t mark = std::min(from, to) + margin;
    mark -= mark % marks.spacing; // may be one mark too low
    for (; mark < last; mark += marks.spacing) {
        poll.step();
        if (mark > std::min(from, to) + margin) {
            const int point = point_at(edge, marks.axis, mark);
            if (point != edge[0] && point != edge[1]) {
                division.add(edges.find_or_add(edge[0], edge[1]), point);
            }
        }
    }
}

/// The point of an edge at a mark: one that is there, or a new one.
int plane_slicer::point_at(const directed_edge& ends, std::size_t axis, std::int64_t mark) {
    const grid_point& low = at(std::min(ends[0], ends[1]));
    const grid_point& high = at(std::max(ends[0], ends[1]));
    const double way = static_cast<double>(coordinate(high, axis) - coordinate(low, axis));
    const grid_point point =
        point_between(low, high, static_cast<double>(mark - coordinate(low, axis)) / way);
    int number = places.find_nearest(point);
    if (number < 0) {
        number = static_cast<int>(faces.points.size());
        faces.points.push_back(point);
        index_points();
    }
    return number;
}

bool plane_slicer::run_round() {
    if (!make_rulers()) {
        return false;
    }
    index_points();
    edges = edge_register();
    for (const scene_face& face : faces.faces) {
        poll.step();
        for (const directed_edge& edge : face.boundary) {
            if (is_long(edge, ruler_of(face))) {
                edges.find_or_add(edge[0], edge[1]);
            }
        }
    }
    division = edge_division(edges.size());
    for (const scene_face& face : faces.faces) {
        for (const directed_edge& edge : face.boundary) {
            if (is_long(edge, ruler_of(face))) {
                divide(edge, ruler_of(face));
            }
        }
    }
    if (division.size() == 0) {
        return false;
    }
    division.sort(edges, faces.points);
    for (scene_face& face : faces.faces) {
        poll.step();
        const std::size_t edge_count = face.boundary.size();
        division.apply(edges, face.boundary);
        face.is_divided = face.is_divided || face.boundary.size() != edge_count;
    }
    return true;
}

} // namespace

bool slice_long_planes(scene& faces, const progress_report& report) {
    try {
        exact::progress_poll poll(report);
        poll.begin(0.0);
        plane_slicer slicer(faces, poll);
        for (int round = 0; round < largest_round_count && slicer.run_round(); ++round) {
            poll.begin(static_cast<double>(round + 1) / largest_round_count);
        }
        return true;
    } catch (const exact::work_ended&) {
        return false;
    }
}

} // namespace ox::internal::csg
