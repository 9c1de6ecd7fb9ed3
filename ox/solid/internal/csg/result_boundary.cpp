#include <ox/solid/internal/csg/result_boundary.h>

#include <algorithm>
#include <utility>

#include <ox/internal/disjoint_sets.h>
#include <ox/solid/internal/csg/bounded_triangulation.h>
#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/face_groups.h>
#include <ox/solid/internal/csg/rings.h>

// Every step keeps the chain of directed edges closed: points that become one, edges that are
// divided, opposite edges of a group that cancel, and points that are left out do so for all faces
// alike; the rings of a face have its directed edges, and so has the border of its triangles.

namespace ox::internal::csg {

namespace {

/// A connected part of a group: one face of the result.
struct face_part {
    face_boundary boundary;
    triangle_list triangles;
    int origin;
};

/// A side of a triangle in either direction, the lower point first.
struct triangle_side {
    directed_edge ends;
    int triangle;

    bool operator<(const triangle_side& other) const { return ends < other.ends; }
};

triangle_side make_side(int from, int to, int triangle) {
    return {{std::min(from, to), std::max(from, to)}, triangle};
}

std::vector<triangle_side> sides_of(const triangle_list& triangles) {
    std::vector<triangle_side> sides;
    sides.reserve(3 * triangles.size());
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        const std::array<int, 3>& corners = triangles[t];
        for (std::size_t i = 0; i < 3; ++i) {
            sides.push_back(make_side(corners[i], corners[(i + 1) % 3], static_cast<int>(t)));
        }
    }
    std::sort(sides.begin(), sides.end());
    return sides;
}

/// For each triangle the first one that it hangs together with over sides. All triangles of a side
/// belong together, also where a crumpled face has more than two: so each part is bounded by closed
/// rings, because the other parts have none of its sides.
disjoint_sets connect(const triangle_list& triangles, const std::vector<triangle_side>& sides) {
    disjoint_sets connected(static_cast<int>(triangles.size()));
    for (std::size_t i = 1; i < sides.size(); ++i) {
        if (sides[i].ends == sides[i - 1].ends) {
            connected.join(sides[i].triangle, sides[i - 1].triangle);
        }
    }
    return connected;
}

/// Edges below which a boundary and triangles two fewer than its edges are one part: two parts
/// have four triangles fewer, and only a hole, which takes three edges more, makes up for that.
constexpr std::size_t fewest_divided_edges = 9;

/// Divides a group by the triangles that hang together. Where the triangles do not tell (a cone),
/// it stays as one.
std::vector<face_part> divide_group(const face_boundary& boundary, triangle_list triangles) {
    if (boundary.size() < fewest_divided_edges && triangles.size() + 2 == boundary.size()) {
        return {{boundary, std::move(triangles), 0}};
    }
    const std::vector<triangle_side> sides = sides_of(triangles);
    disjoint_sets connected = connect(triangles, sides);
    std::vector<int> part_of(triangles.size(), -1);
    std::vector<face_part> parts;
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        const auto first = static_cast<std::size_t>(connected.find(static_cast<int>(t)));
        if (first == t) {
            part_of[t] = static_cast<int>(parts.size());
            parts.emplace_back();
        }
        part_of[t] = part_of[first];
        parts[static_cast<std::size_t>(part_of[t])].triangles.push_back(triangles[t]);
    }
    for (const directed_edge& edge : boundary) {
        const triangle_side wanted = make_side(edge[0], edge[1], 0);
        const auto side = std::lower_bound(sides.begin(), sides.end(), wanted);
        const bool is_found = side != sides.end() && side->ends == wanted.ends;
        if (!is_found) {
            return {{boundary, std::move(triangles), 0}};
        }
        const int part = part_of[static_cast<std::size_t>(side->triangle)];
        parts[static_cast<std::size_t>(part)].boundary.push_back(edge);
    }
    return parts;
}

/// Writes faces into the lists of a boundary; points get their numbers as they come.
class boundary_writer {
public:
    boundary_writer(const result_pieces& settled, boundary& written)
        : pieces(settled), result(written), numbers(settled.points.size(), -1) {}

    void write(const face_group& group);

private:
    void write_part(const face_part& part, const planar_view& view);
    unsigned int number_of(int point);
    int lowest_origin(const face_group& group) const;

    const result_pieces& pieces;
    boundary& result;
    std::vector<int> numbers;
};

unsigned int boundary_writer::number_of(int point) {
    int& number = numbers[static_cast<std::size_t>(point)];
    if (number < 0) {
        number = result.vertices.size();
        result.vertices.push_right(pieces.vertices[static_cast<std::size_t>(point)]);
    }
    return static_cast<unsigned int>(number);
}

int boundary_writer::lowest_origin(const face_group& group) const {
    int lowest = pieces.pieces[static_cast<std::size_t>(group.pieces.front())].origin;
    for (const int piece : group.pieces) {
        lowest = std::min(lowest, pieces.pieces[static_cast<std::size_t>(piece)].origin);
    }
    return lowest;
}

void boundary_writer::write(const face_group& group) {
    face_boundary bounds = group.boundary;
    cancel_opposites(bounds);
    if (bounds.empty()) {
        return;
    }
    const planar_view view(group.plane.normal);
    std::vector<face_part> parts =
        divide_group(bounds, triangulate_alone(pieces.points, bounds, group.plane.normal));
    for (face_part& part : parts) {
        part.origin = lowest_origin(group);
        write_part(part, view);
    }
}

void boundary_writer::write_part(const face_part& part, const planar_view& view) {
    int sign = 1;
    for (const point_ring& ring : trace_rings(part.boundary, pieces.points, view)) {
        for (const int point : ring) {
            result.contours.push_right(number_of(point));
        }
        result.contour_sizes.push_right(sign * static_cast<int>(ring.size()));
        sign = -1;
    }
    for (const std::array<int, 3>& triangle : part.triangles) {
        for (const int point : triangle) {
            result.triangles.push_right(number_of(point));
        }
    }
    result.origins.push_right(part.origin);
}

/// Throws where `report` ended the work.
void write_boundary(const arrangement_result& arranged, const scene& faces,
                    const std::vector<face_triangle>& triangles, const working_grid& grid,
                    const progress_report& report, boundary& result) {
    exact::progress_poll poll(report);
    poll.begin(0.0);
    const result_pieces settled = settle_pieces(arranged, faces, triangles, grid, poll);
    poll.begin(0.3);
    std::vector<face_group> groups = group_faces(settled, faces, grid, poll);
    straighten(groups, settled.points, grid, poll);
    boundary_writer writer(settled, result);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        writer.write(groups[g]);
        poll.begin(0.5 + 0.5 * static_cast<double>(g + 1) / static_cast<double>(groups.size()));
    }
}

} // namespace

bool make_boundary(const arrangement_result& arranged, const scene& faces,
                   const std::vector<face_triangle>& triangles, const working_grid& grid,
                   const progress_report& report, boundary& result) {
    try {
        write_boundary(arranged, faces, triangles, grid, report, result);
        return true;
    } catch (const exact::work_ended&) {
        return false;
    }
}

} // namespace ox::internal::csg
