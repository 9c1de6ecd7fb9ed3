#include <ox/solid/internal/csg/exact/facet_tree.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

constexpr int largest_leaf = 4;

constexpr int vertical = 2;

int sign_of(std::int64_t value) {
    return value > 0 ? 1 : (value < 0 ? -1 : 0);
}

/// The sign of a linear function of x and y that is 0 at the point itself, by its derivatives.
template <int N>
int sign_of_movement(const wide<N>& by_x, const wide<N>& by_y, const moved_point& point) {
    for (const grid_point& step : {point.along, point.away}) {
        const wide<N + 1> change = by_x * make_wide(step.x) + by_y * make_wide(step.y);
        if (!change.is_zero()) {
            return change.sign();
        }
    }
    return by_y.sign();
}

/// The side of the line through two points, seen from above, on which the moved point is.
int side_of_line(const grid_point& from, const grid_point& to, const moved_point& point) {
    const int sign = turn(from, to, point.at, vertical);
    return sign != 0 ? sign
                     : sign_of_movement(make_wide(from.y - to.y), make_wide(to.x - from.x), point);
}

/// The side of a plane on which the moved point is.
int side_of_plane(const plane& p, const moved_point& point) {
    const int sign = side_of(point.at, p);
    if (sign != 0) {
        return sign;
    }
    for (const grid_point& step : {point.along, point.away}) {
        const wide<3> change = p.normal[0] * make_wide(step.x) + p.normal[1] * make_wide(step.y) +
                               p.normal[2] * make_wide(step.z);
        if (!change.is_zero()) {
            return change.sign();
        }
    }
    return p.normal[1].sign();
}

/// d - nx x - ny y: where it is divided by nz, the height of a plane at a point.
wide<2> raised_height(const plane& p, const grid_point& point) {
    return p.offset - resized<2>(p.normal[0] * make_wide(point.x)) -
           resized<2>(p.normal[1] * make_wide(point.y));
}

/// The same at a point of any kind, times its denominator.
wide<6> raised_height(const plane& p, const homogeneous_point& point) {
    return p.offset * point.denominator - resized<6>(p.normal[0] * point.numerator[0]) -
           resized<6>(p.normal[1] * point.numerator[1]);
}

/// The side of the common line of two planes, directed as the product of their normals.
int side_of_planes(const plane& p, const plane& q, const moved_point& point) {
    const wide<4> rise =
        raised_height(q, point.at) * p.normal[2] - raised_height(p, point.at) * q.normal[2];
    return rise.sign() != 0
               ? rise.sign()
               : sign_of_movement(-cross_coordinate(p, q, 1), cross_coordinate(p, q, 0), point);
}

/// True if two boxes' shadows hold the point, and a part of the box is below it.
bool is_below(const bounds& box, const grid_point& point) {
    const auto x = static_cast<double>(point.x);
    const auto y = static_cast<double>(point.y);
    return box.low[0] <= x && x <= box.high[0] && box.low[1] <= y && y <= box.high[1] &&
           box.low[2] <= static_cast<double>(point.z);
}

} // namespace

int moved_point::x_sign() const {
    return along.x != 0 ? sign_of(along.x) : sign_of(away.x);
}

int side_from_above(const facet_complex& complex, const edge& e, const moved_point& point) {
    const edge_line& line = e.line;
    return line.is_of_planes ? side_of_planes(item(complex.points.planes, line.first),
                                              item(complex.points.planes, line.second), point)
                             : side_of_line(item(complex.grid, line.first),
                                            item(complex.grid, line.second), point);
}

int side_from_above(const facet_complex& complex, const edge& e, int point) {
    const homogeneous_point at = complex.points.exact(point);
    const edge_line& line = e.line;
    if (line.is_of_planes) {
        const plane& p = item(complex.points.planes, line.first);
        const plane& q = item(complex.points.planes, line.second);
        return (raised_height(q, at) * p.normal[2] - raised_height(p, at) * q.normal[2]).sign();
    }
    const grid_point& from = item(complex.grid, line.first);
    const grid_point& to = item(complex.grid, line.second);
    const wide<6> x = resized<6>(at.numerator[0]) - resized<6>(at.denominator * make_wide(from.x));
    const wide<6> y = resized<6>(at.numerator[1]) - resized<6>(at.denominator * make_wide(from.y));
    return (y * make_wide(to.x - from.x) - x * make_wide(to.y - from.y)).sign();
}

facet_tree::facet_tree(const facet_complex& owner) : complex(owner), order(owner.facets.size()) {
    std::iota(order.begin(), order.end(), 0);
    boxes.reserve(complex.facets.size());
    for (const facet& f : complex.facets) {
        boxes.push_back(empty_bounds());
        for (const int vertex : f.vertices) {
            enlarge(boxes.back(), complex.points.near(vertex));
        }
    }
    if (!order.empty()) {
        build(0, count_of(order));
    }
}

/// Recursion as deep as the logarithm of the number of facets: every division halves them.
void facet_tree::build(int first, int end) {
    const std::size_t number = nodes.size();
    bounds box = empty_bounds();
    for (int i = first; i < end; ++i) {
        enlarge(box, item(boxes, item(order, i)).low);
        enlarge(box, item(boxes, item(order, i)).high);
    }
    nodes.push_back({box, first, end, 0});
    if (end - first <= largest_leaf) {
        return;
    }
    std::size_t axis = 0;
    for (std::size_t other = 1; other < 3; ++other) {
        axis = box.high[other] - box.low[other] > box.high[axis] - box.low[axis] ? other : axis;
    }
    const int half = first + (end - first) / 2;
    const auto middle = [&](int i) { return item(boxes, i).low[axis] + item(boxes, i).high[axis]; };
    std::nth_element(
        order.begin() + first, order.begin() + half, order.begin() + end,
        [&](int a, int b) { return middle(a) != middle(b) ? middle(a) < middle(b) : a < b; });
    build(first, half);
    nodes[number].second_child = count_of(nodes);
    build(half, end);
}

/// True if the ray down from the point crosses the facet.
bool facet_tree::is_hit(int facet_index, const moved_point& point) const {
    const plane& p = item(complex.points.planes, facet_index);
    const int upright = p.normal[2].sign();
    const facet& f = item(complex.facets, facet_index);
    for (int i = 0; i < 3 && upright != 0; ++i) {
        if (side_of_line(item(complex.grid, item(f.vertices, i)),
                         item(complex.grid, item(f.vertices, (i + 1) % 3)), point) != upright) {
            return false;
        }
    }
    return upright != 0 && side_of_plane(p, point) == upright;
}

/// True if the ray crosses the plane of a facet above that of another one.
bool facet_tree::is_higher(int facet_index, int other, const moved_point& point) const {
    const plane& p = item(complex.points.planes, facet_index);
    const plane& q = item(complex.points.planes, other);
    const int sense = p.normal[2].sign() * q.normal[2].sign();
    return -side_of_planes(p, q, point) == sense;
}

/// A height that the facet is not below where the ray crosses it.
double facet_tree::height_bound(int facet_index, const moved_point& point) const {
    const plane& p = item(complex.points.planes, facet_index);
    const double x = p.near_normal[0] * static_cast<double>(point.at.x);
    const double y = p.near_normal[1] * static_cast<double>(point.at.y);
    const double error = 0x1p-40 * (std::fabs(p.near_offset) + std::fabs(x) + std::fabs(y));
    const double height = (p.near_offset - x - y) / p.near_normal[2];
    return std::max(item(boxes, facet_index).low[2], height - error / std::fabs(p.near_normal[2]));
}

int facet_tree::first_below(const moved_point& point) const {
    int best = -1;
    double bound = -std::numeric_limits<double>::infinity();
    std::vector<int> pending;
    if (!nodes.empty()) {
        pending.push_back(0);
    }
    while (!pending.empty()) {
        const int number = pending.back();
        const node& n = item(nodes, number);
        pending.pop_back();
        if (!is_below(n.box, point.at) || n.box.high[2] < bound) {
            continue;
        }
        if (n.second_child != 0) {
            const bool is_second_higher =
                item(nodes, n.second_child).box.high[2] > item(nodes, number + 1).box.high[2];
            pending.push_back(is_second_higher ? number + 1 : n.second_child);
            pending.push_back(is_second_higher ? n.second_child : number + 1);
            continue;
        }
        for (int i = n.first; i < n.end; ++i) {
            const int candidate = item(order, i);
            if (is_below(item(boxes, candidate), point.at) && is_hit(candidate, point) &&
                (best < 0 || is_higher(candidate, best, point))) {
                best = candidate;
                bound = height_bound(candidate, point);
            }
        }
    }
    return best;
}

} // namespace ox::internal::csg::exact
