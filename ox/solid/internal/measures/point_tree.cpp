#include <ox/solid/internal/measures/point_tree.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include <ox/internal/vectors.h>

namespace ox::internal {

namespace {

using position = std::array<double, 3>;

/// Points of a leaf: splitting fewer costs more than looking at them.
constexpr std::size_t largest_leaf = 8;

/// Part of the extents by which boxes are taken larger than they are, so that the roundings of the
/// test with an edge never reject a point that lies along it.
constexpr double box_allowance = 1e-12;

position difference(const position& a, const position& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

double dot(const position& a, const position& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

position cross(const position& a, const position& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

} // namespace

point_tree::point_tree(const ox_list<ox_3dvector>& all_points, const std::vector<int>& chosen)
    : points(all_points) {
    for (const int point : chosen) {
        if (is_finite(points[point])) {
            indices.push_back(point);
        }
    }
    if (!indices.empty()) {
        build_node(0, indices.size());
    }
}

point_tree::position point_tree::position_of(int point) const {
    const ox_3dvector& p = points[point];
    return {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)};
}

void point_tree::build_node(std::size_t first, std::size_t end) {
    node made = {position_of(indices[first]), position_of(indices[first]), first, end, 0};
    for (std::size_t i = first; i < end; ++i) {
        const position p = position_of(indices[i]);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            made.low[axis] = std::min(made.low[axis], p[axis]);
            made.high[axis] = std::max(made.high[axis], p[axis]);
        }
    }
    nodes.push_back(made);
    if (end - first > largest_leaf) {
        split(nodes.size() - 1);
    }
}

/// Gives the node two children, each with half of the points along the longest side of its box.
void point_tree::split(std::size_t parent) {
    const node whole = nodes[parent];
    const position extent = difference(whole.high, whole.low);
    const auto axis =
        static_cast<unsigned int>(std::max_element(extent.begin(), extent.end()) - extent.begin());
    const std::size_t middle = (whole.first + whole.end) / 2;
    const auto place = [this](std::size_t i) {
        return indices.begin() + static_cast<std::ptrdiff_t>(i);
    };
    std::nth_element(place(whole.first), place(middle), place(whole.end), [&](int a, int b) {
        return std::make_tuple(points[a].at(axis), a) < std::make_tuple(points[b].at(axis), b);
    });
    build_node(whole.first, middle);
    nodes[parent].second_child = nodes.size();
    build_node(middle, whole.end);
}

std::vector<int> point_tree::find_along(int from, int to, double tolerance) const {
    std::vector<int> found;
    if (nodes.empty() || !is_finite(points[from]) || !is_finite(points[to])) {
        return found;
    }
    const position start = position_of(from);
    const position way = difference(position_of(to), start);
    const edge along = {start, way, dot(way, way), tolerance * tolerance, tolerance, from, to};
    std::vector<stop> stops;
    find_in_node(along, 0, stops);
    std::sort(stops.begin(), stops.end(), [](const stop& a, const stop& b) {
        return std::tie(a.distance, a.point) < std::tie(b.distance, b.point);
    });
    for (const stop& s : stops) {
        found.push_back(s.point);
    }
    return found;
}

/// False only if no point of the box is within the tolerance of the edge: the part of the edge
/// within the box, grown by the tolerance, is empty on some axis.
bool point_tree::may_reach(const edge& along, const node& box) {
    double entry = 0.0;
    double exit = 1.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double margin =
            along.tolerance +
            box_allowance * (std::fabs(along.start[axis]) + std::fabs(along.way[axis]) +
                             std::fabs(box.low[axis]) + std::fabs(box.high[axis]));
        const double to_low = box.low[axis] - margin - along.start[axis];
        const double to_high = box.high[axis] + margin - along.start[axis];
        if (along.way[axis] == 0.0) {
            if (to_low > 0.0 || to_high < 0.0) {
                return false;
            }
            continue;
        }
        const double at_low = to_low / along.way[axis];
        const double at_high = to_high / along.way[axis];
        entry = std::max(entry, std::min(at_low, at_high));
        exit = std::min(exit, std::max(at_low, at_high));
    }
    return entry <= exit + box_allowance;
}

void point_tree::find_in_node(const edge& along, std::size_t number,
                              std::vector<stop>& stops) const {
    const node& visited = nodes[number];
    if (!may_reach(along, visited)) {
        return;
    }
    if (visited.second_child == 0) {
        find_in_leaf(along, visited, stops);
        return;
    }
    find_in_node(along, number + 1, stops);
    find_in_node(along, visited.second_child, stops);
}

void point_tree::find_in_leaf(const edge& along, const node& leaf, std::vector<stop>& stops) const {
    for (std::size_t i = leaf.first; i < leaf.end; ++i) {
        const int point = indices[i];
        const position offset = difference(position_of(point), along.start);
        const double forward = dot(offset, along.way);
        const position beside = cross(offset, along.way);
        if (point != along.from && point != along.to && forward > 0.0 &&
            forward < along.square_length &&
            dot(beside, beside) <= along.square_tolerance * along.square_length) {
            stops.push_back({forward, point});
        }
    }
}

} // namespace ox::internal
