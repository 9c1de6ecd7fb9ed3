#include <algorithm>
#include <numeric>

#include <ox/internal/disjoint_sets.h>
#include <ox/solid/internal/csg/point_index.h>
#include <ox/solid/internal/csg/shell.h>

// Equal points are found by sorting, so that the many copies that the faces of a solid bring cost
// little; only one of each goes to the index that finds the near ones.

namespace ox::internal::csg {

namespace {

bool is_lower(const grid_point& a, const grid_point& b) {
    return a.x != b.x ? a.x < b.x : (a.y != b.y ? a.y < b.y : a.z < b.z);
}

/// Puts equal points together; gives the lowest index of each place.
std::vector<int> join_equal(const std::vector<grid_point>& points, disjoint_sets& groups) {
    std::vector<int> order(points.size());
    std::iota(order.begin(), order.end(), 0);
    const auto at = [&points](int i) -> const grid_point& {
        return points[static_cast<std::size_t>(i)];
    };
    std::sort(order.begin(), order.end(), [&at](int a, int b) {
        return is_lower(at(a), at(b)) || (!is_lower(at(b), at(a)) && a < b);
    });
    std::vector<int> firsts;
    for (const int index : order) {
        if (!firsts.empty() && at(firsts.back()) == at(index)) {
            groups.join(firsts.back(), index);
        } else {
            firsts.push_back(index);
        }
    }
    std::sort(firsts.begin(), firsts.end());
    return firsts;
}

void join_near(const std::vector<grid_point>& points, const std::vector<int>& places,
               double tolerance, disjoint_sets& groups) {
    point_index near(tolerance);
    for (const int index : places) {
        const grid_point& point = points[static_cast<std::size_t>(index)];
        near.visit_near(point, [&](int other, double) { groups.join(index, other); });
        near.add(point, index);
    }
}

/// Keeps one point of each group, in the order of the indices.
void keep_one_of_each(shell& welded, disjoint_sets& groups) {
    std::vector<int> renumbered(welded.points.size(), -1);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < welded.points.size(); ++i) {
        const int first = groups.find(static_cast<int>(i));
        if (first == static_cast<int>(i)) {
            welded.points[kept] = welded.points[i];
            welded.vertices[kept] = welded.vertices[i];
            renumbered[i] = static_cast<int>(kept++);
        } else {
            renumbered[i] = renumbered[static_cast<std::size_t>(first)];
        }
    }
    welded.points.resize(kept);
    welded.vertices.resize(kept);
    for (face_boundary& face : welded.faces) {
        for (directed_edge& edge : face) {
            edge = {renumbered[static_cast<std::size_t>(edge[0])],
                    renumbered[static_cast<std::size_t>(edge[1])]};
        }
        face.erase(std::remove_if(face.begin(), face.end(),
                                  [](const directed_edge& edge) { return edge[0] == edge[1]; }),
                   face.end());
    }
}

} // namespace

void weld(shell& welded, const working_grid& grid) {
    disjoint_sets groups(static_cast<int>(welded.points.size()));
    const std::vector<int> places = join_equal(welded.points, groups);
    if (grid.get_tolerance() > 0.0) {
        join_near(welded.points, places, grid.get_tolerance(), groups);
    }
    keep_one_of_each(welded, groups);
}

} // namespace ox::internal::csg
