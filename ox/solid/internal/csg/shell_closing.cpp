#include <algorithm>

#include <ox/solid/internal/csg/box_tree.h>
#include <ox/solid/internal/csg/edge_register.h>
#include <ox/solid/internal/csg/segment_distance.h>
#include <ox/solid/internal/csg/shell.h>

// A shell is closed when each directed edge is met by its opposite: what is left when both are
// taken away together is open. Open edges may still lie along each other: each is divided at the
// ends of the others that lie along it, and so are all faces that have it. What is open then stays
// open.

namespace ox::internal::csg {

namespace {

face_boundary find_open_edges(const shell& checked) {
    face_boundary all;
    all.reserve(6 * checked.points.size());
    for (const face_boundary& face : checked.faces) {
        all.insert(all.end(), face.begin(), face.end());
    }
    cancel_opposites(all, checked.points.size());
    return all;
}

std::vector<int> ends_of(const face_boundary& edges) {
    std::vector<int> ends;
    for (const directed_edge& edge : edges) {
        ends.insert(ends.end(), edge.begin(), edge.end());
    }
    std::sort(ends.begin(), ends.end());
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    return ends;
}

grid_box box_of(const grid_point& a, const grid_point& b, double margin) {
    grid_box box;
    box.include(a);
    box.include(b);
    box.grow(margin);
    return box;
}

/// Divides the open edges at each other's ends.
edge_division divide_open_edges(const shell& checked, const face_boundary& open, double reach,
                                edge_register& edges) {
    const auto at = [&checked](int point) -> const grid_point& {
        return checked.points[static_cast<std::size_t>(point)];
    };
    std::vector<grid_box> boxes;
    for (const directed_edge& edge : open) {
        boxes.push_back(box_of(at(edge[0]), at(edge[1]), reach));
        edges.find_or_add(edge[0], edge[1]);
    }
    const box_tree tree(boxes);
    edge_division division(edges.size());
    for (const int point : ends_of(open)) {
        tree.visit_meeting(box_of(at(point), at(point), 0.0), [&](int i) {
            const directed_edge& edge = open[static_cast<std::size_t>(i)];
            if (edge[0] != point && edge[1] != point &&
                lies_along(at(edge[0]), at(edge[1]), at(point), reach)) {
                division.add(edges.find_or_add(edge[0], edge[1]), point);
            }
        });
    }
    division.sort(edges, checked.points);
    return division;
}

} // namespace

void close_shell(shell& closed, int number, const working_grid& grid,
                 std::vector<ox_csg_problem>& problems) {
    face_boundary open = find_open_edges(closed);
    if (open.empty()) {
        return;
    }
    edge_register edges;
    const double reach = std::max(grid.get_tolerance(), 1.0);
    const edge_division division = divide_open_edges(closed, open, reach, edges);
    for (face_boundary& face : closed.faces) {
        division.apply(edges, face);
    }
    for (const directed_edge& edge : find_open_edges(closed)) {
        problems.push_back({number, ox_csg_problem::problem_open_edge,
                            closed.vertices[static_cast<std::size_t>(edge[0])],
                            closed.vertices[static_cast<std::size_t>(edge[1])]});
    }
}

} // namespace ox::internal::csg
