#include <ox/solid/internal/csg/result_pieces.h>

#include <algorithm>
#include <utility>

#include <ox/internal/disjoint_sets.h>
#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/point_index.h>
#include <ox/solid/internal/csg/segment_distance.h>

namespace ox::internal::csg {

namespace {

/// Part of the tolerance within which points of the result are one.
constexpr double settling_share = 1.0 / 16.0;

/// Part of the tolerance by which a face may be uneven and still come back as one.
constexpr double flat_share = 0.3;

/// Searches for points beside edges: dividing an edge bends it by less than the reach.
constexpr int division_rounds = 2;

/// The points of an arrangement that its edges use, settled.
class settled_points {
public:
    settled_points(const arrangement_result& arranged, const scene& faces, const working_grid& grid,
                   exact::progress_poll& steps);

    std::vector<grid_point> points;
    std::vector<ox_3dvector> vertices;
    std::vector<int> numbers; // of each point of the arrangement, -1 where it is not used

private:
    void join_near(double reach);
    void join_equal_floats(const working_grid& grid);
    void renumber();

    exact::progress_poll& poll;
    std::vector<int> used;
    disjoint_sets groups;
};

settled_points::settled_points(const arrangement_result& arranged, const scene& faces,
                               const working_grid& grid, exact::progress_poll& steps)
    : numbers(arranged.points.size(), -1), poll(steps),
      groups(static_cast<int>(arranged.points.size())) {
    std::vector<bool> is_used(arranged.points.size(), false);
    for (const std::array<int, 2>& edge : arranged.edges) {
        is_used[static_cast<std::size_t>(edge[0])] = true;
        is_used[static_cast<std::size_t>(edge[1])] = true;
    }
    for (std::size_t i = 0; i < is_used.size(); ++i) {
        if (is_used[i]) {
            used.push_back(static_cast<int>(i));
        }
    }
    points.reserve(arranged.points.size());
    for (const std::array<double, 3>& point : arranged.points) {
        points.push_back(working_grid::round(point));
    }
    join_near(grid.get_tolerance() * settling_share);
    for (std::size_t i = 0; i < points.size(); ++i) {
        vertices.push_back(i < faces.vertices.size() ? faces.vertices[i]
                                                     : grid.to_model(points[i]));
    }
    join_equal_floats(grid);
    renumber();
}

void settled_points::join_near(double reach) {
    point_index near(reach);
    for (const int i : used) {
        poll.step();
        const grid_point& point = points[static_cast<std::size_t>(i)];
        near.visit_near(point, [&](int other, double) { groups.join(i, other); });
        near.add(point, i);
    }
}

void settled_points::join_equal_floats(const working_grid& grid) {
    point_index equal(0.0);
    for (const int i : used) {
        poll.step();
        if (groups.find(i) == i) {
            grid_point& point = points[static_cast<std::size_t>(i)];
            point = grid.to_grid(vertices[static_cast<std::size_t>(i)]);
            equal.visit_near(point, [&](int other, double) { groups.join(i, other); });
            equal.add(point, i);
        }
    }
}

void settled_points::renumber() {
    int kept = 0;
    for (const int i : used) {
        const int first = groups.find(i);
        if (first == i) {
            points[static_cast<std::size_t>(kept)] = points[static_cast<std::size_t>(i)];
            vertices[static_cast<std::size_t>(kept)] = vertices[static_cast<std::size_t>(i)];
            numbers[static_cast<std::size_t>(i)] = kept++;
        } else {
            numbers[static_cast<std::size_t>(i)] = numbers[static_cast<std::size_t>(first)];
        }
    }
    points.resize(static_cast<std::size_t>(kept));
    vertices.resize(static_cast<std::size_t>(kept));
}

face_boundary renamed_boundary(const arrangement_result& arranged, const boundary_piece& piece,
                               const std::vector<int>& numbers) {
    face_boundary boundary;
    boundary.reserve(static_cast<std::size_t>(piece.edge_count));
    for (int e = piece.first_edge; e < piece.first_edge + piece.edge_count; ++e) {
        const std::array<int, 2>& edge = arranged.edges[static_cast<std::size_t>(e)];
        const directed_edge named = {numbers[static_cast<std::size_t>(edge[0])],
                                     numbers[static_cast<std::size_t>(edge[1])]};
        if (named[0] != named[1]) {
            boundary.push_back(named);
        }
    }
    cancel_opposites(boundary);
    return boundary;
}

fitted_plane plane_of_triangle(const scene& faces, const face_triangle& triangle) {
    const std::array<int, 3>& t = triangle.vertices;
    return fit_plane(faces.points, {{t[0], t[1]}, {t[1], t[2]}, {t[2], t[0]}});
}

/// The plane of a piece, its normal out of the result.
void fit_piece(const scene& faces, const face_triangle& triangle, double flatness,
               result_piece& piece) {
    const scene_face& face = faces.faces[static_cast<std::size_t>(piece.face)];
    piece.is_of_face = face.unevenness <= flatness && face.plane.area > 0.0;
    piece.plane = piece.is_of_face ? face.plane : plane_of_triangle(faces, triangle);
    if (piece.is_reversed) {
        for (double& coordinate : piece.plane.normal) {
            coordinate = -coordinate;
        }
    }
}

edge_register edges_of(const std::vector<result_piece>& pieces) {
    edge_register edges;
    for (const result_piece& piece : pieces) {
        for (const directed_edge& edge : piece.boundary) {
            edges.find_or_add(edge[0], edge[1]);
        }
    }
    return edges;
}

std::vector<grid_box> boxes_of(const edge_register& edges, const std::vector<grid_point>& points,
                               double reach) {
    std::vector<grid_box> boxes(static_cast<std::size_t>(edges.size()));
    for (int e = 0; e < edges.size(); ++e) {
        grid_box& box = boxes[static_cast<std::size_t>(e)];
        for (const int end : edges.ends(e)) {
            box.include(points[static_cast<std::size_t>(end)]);
        }
        box.grow(reach);
    }
    return boxes;
}

/// Finds the points beside edges.
edge_division find_divisions(const edge_register& edges, const std::vector<grid_point>& points,
                             double reach, exact::progress_poll& poll) {
    const auto at = [&points](int i) -> const grid_point& {
        return points[static_cast<std::size_t>(i)];
    };
    const box_tree tree(boxes_of(edges, points, reach));
    edge_division division(edges.size());
    for (int i = 0; i < static_cast<int>(points.size()); ++i) {
        poll.step();
        grid_box place;
        place.include(at(i));
        tree.visit_meeting(place, [&](int e) {
            const directed_edge& ends = edges.ends(e);
            if (ends[0] != i && ends[1] != i &&
                lies_along(at(ends[0]), at(ends[1]), at(i), reach)) {
                division.add(e, i);
            }
        });
    }
    return division;
}

/// Divides the edges of all pieces at the points beside them; false where there are none.
bool divide_edges(result_pieces& result, double reach, exact::progress_poll& poll) {
    edge_register edges = edges_of(result.pieces);
    edge_division division = find_divisions(edges, result.points, reach, poll);
    if (division.size() == 0) {
        return false;
    }
    division.sort(edges, result.points);
    for (result_piece& piece : result.pieces) {
        poll.step();
        division.apply(edges, piece.boundary);
    }
    return true;
}

} // namespace

result_pieces settle_pieces(const arrangement_result& arranged, const scene& faces,
                            const std::vector<face_triangle>& triangles, const working_grid& grid,
                            exact::progress_poll& poll) {
    settled_points settled(arranged, faces, grid, poll);
    const double flatness = std::max(grid.get_tolerance() * flat_share, grid.get_float_spacing());
    result_pieces result;
    result.points = std::move(settled.points);
    result.vertices = std::move(settled.vertices);
    result.pieces.reserve(arranged.pieces.size());
    for (const boundary_piece& given : arranged.pieces) {
        poll.step();
        const face_triangle& triangle = triangles[static_cast<std::size_t>(given.triangle)];
        result_piece piece;
        piece.boundary = renamed_boundary(arranged, given, settled.numbers);
        piece.face = triangle.face;
        piece.is_reversed = given.reversed;
        piece.origin = given.origin;
        fit_piece(faces, triangle, flatness, piece);
        result.pieces.push_back(std::move(piece));
    }
    for (int round = 0; round < division_rounds; ++round) {
        if (!divide_edges(result, grid.get_tolerance() * settling_share, poll)) {
            break;
        }
    }
    const auto is_gone = [](const result_piece& piece) { return piece.boundary.empty(); };
    result.pieces.erase(std::remove_if(result.pieces.begin(), result.pieces.end(), is_gone),
                        result.pieces.end());
    return result;
}

} // namespace ox::internal::csg
