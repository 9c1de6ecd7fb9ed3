#include <tests/solid/csg/exact/arrangement_laws.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <vector>

namespace arrangement_laws {

namespace {

using ox::internal::csg::boundary_piece;
using ox::internal::csg::grid_point;
using ox::internal::csg::operand_triangle;
using ox::internal::csg::operation;
using vector = std::array<double, 3>;

vector near_point(const grid_point& p) {
    return {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)};
}

double determinant(const vector& a, const vector& b, const vector& c) {
    return a[0] * (b[1] * c[2] - b[2] * c[1]) + a[1] * (b[2] * c[0] - b[0] * c[2]) +
           a[2] * (b[0] * c[1] - b[1] * c[0]);
}

vector difference(const vector& a, const vector& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

/// How often a directed edge, seen from above, passes the x of a point at a greater y, leftwards
/// counted as positive.
int passes(const vector& from, const vector& to, const vector& point) {
    const bool is_left_of_from = point[0] < from[0];
    const bool is_left_of_to = point[0] < to[0];
    if (is_left_of_from == is_left_of_to) {
        return 0;
    }
    const double y = from[1] + (to[1] - from[1]) * ((point[0] - from[0]) / (to[0] - from[0]));
    return y <= point[1] ? 0 : (is_left_of_from ? 1 : -1);
}

/// True if the plane of three points is above the point.
bool is_plane_above(const vector& a, const vector& b, const vector& c, const vector& point) {
    const vector u = difference(b, a);
    const vector v = difference(c, a);
    const double upright = u[0] * v[1] - u[1] * v[0];
    const double value = determinant(u, v, difference(point, a));
    return upright > 0.0 ? value < 0.0 : value > 0.0;
}

/// The winding number of one operand about a point.
int winding_of(const arrangement_input& input, int operand, const vector& point) {
    int winding = 0;
    for (const operand_triangle& t : input.triangles) {
        if (t.operand != operand) {
            continue;
        }
        std::array<vector, 3> c{};
        for (std::size_t i = 0; i < 3; ++i) {
            c[i] = near_point(input.points[static_cast<std::size_t>(t.vertices[i])]);
        }
        const int around =
            passes(c[0], c[1], point) + passes(c[1], c[2], point) + passes(c[2], c[0], point);
        if (around != 0 && is_plane_above(c[0], c[1], c[2], point)) {
            winding += around;
        }
    }
    return winding;
}

/// The winding number of the result about a point.
int winding_of(const arrangement_input& input, const arrangement_result& result,
               const vector& point) {
    int winding = 0;
    for (const boundary_piece& piece : result.pieces) {
        int around = 0;
        for (int i = piece.first_edge; i < piece.first_edge + piece.edge_count; ++i) {
            const std::array<int, 2>& edge = result.edges[static_cast<std::size_t>(i)];
            around += passes(result.points[static_cast<std::size_t>(edge[0])],
                             result.points[static_cast<std::size_t>(edge[1])], point);
        }
        const operand_triangle& t = input.triangles[static_cast<std::size_t>(piece.triangle)];
        if (around != 0 &&
            is_plane_above(near_point(input.points[static_cast<std::size_t>(t.vertices[0])]),
                           near_point(input.points[static_cast<std::size_t>(t.vertices[1])]),
                           near_point(input.points[static_cast<std::size_t>(t.vertices[2])]),
                           point)) {
            winding += around;
        }
    }
    return winding;
}

bool is_inside(const arrangement_input& input, const vector& point) {
    bool inside = false;
    for (std::size_t i = 0; i < input.operations.size(); ++i) {
        const bool in_operand = winding_of(input, static_cast<int>(i), point) != 0;
        switch (input.operations[i]) {
        case operation::unite:
            inside = inside || in_operand;
            break;
        case operation::substract:
            inside = inside && !in_operand;
            break;
        case operation::intersect:
            inside = inside && in_operand;
            break;
        }
    }
    return inside;
}

} // namespace

arrangement_result arranged(const arrangement_input& input) {
    arrangement_result result;
    ox::internal::csg::arrange(input, {}, result);
    return result;
}

bool is_closed(const arrangement_result& result) {
    std::map<std::array<int, 2>, int> surplus;
    for (const std::array<int, 2>& edge : result.edges) {
        ++surplus[edge];
        --surplus[{edge[1], edge[0]}];
    }
    return std::all_of(surplus.begin(), surplus.end(),
                       [](const auto& entry) { return entry.second == 0; });
}

double volume(const arrangement_result& result) {
    double sum = 0.0;
    for (const boundary_piece& piece : result.pieces) {
        const std::array<int, 2>* edges = result.edges.data() + piece.first_edge;
        const vector& apex = result.points[static_cast<std::size_t>(edges[0][0])];
        for (int i = 0; i < piece.edge_count; ++i) {
            sum += determinant(apex, result.points[static_cast<std::size_t>(edges[i][0])],
                               result.points[static_cast<std::size_t>(edges[i][1])]);
        }
    }
    return sum / 6.0;
}

double chain_volume(const arrangement_input& input, int operand) {
    double sum = 0.0;
    for (const operand_triangle& t : input.triangles) {
        if (t.operand == operand) {
            sum += determinant(near_point(input.points[static_cast<std::size_t>(t.vertices[0])]),
                               near_point(input.points[static_cast<std::size_t>(t.vertices[1])]),
                               near_point(input.points[static_cast<std::size_t>(t.vertices[2])]));
        }
    }
    return sum / 6.0;
}

int misplaced_points(const arrangement_input& input, const arrangement_result& result,
                     std::mt19937& engine, int point_count) {
    vector low = near_point(input.points.empty() ? grid_point{0, 0, 0} : input.points[0]);
    vector high = low;
    for (const grid_point& p : input.points) {
        const vector at = near_point(p);
        for (std::size_t i = 0; i < 3; ++i) {
            low[i] = std::min(low[i], at[i]);
            high[i] = std::max(high[i], at[i]);
        }
    }
    int misplaced = 0;
    for (int k = 0; k < point_count; ++k) {
        vector point{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double share = (static_cast<double>(engine()) + 0.5) / 4294967296.0;
            point[i] = low[i] + (high[i] - low[i]) * (1.02 * share - 0.01);
        }
        const int expected = is_inside(input, point) ? 1 : 0;
        misplaced += winding_of(input, result, point) == expected ? 0 : 1;
    }
    return misplaced;
}

std::string described(const arrangement_input& input) {
    std::ostringstream text;
    for (std::size_t i = 0; i < input.operations.size(); ++i) {
        text << "operand " << i << " operation " << static_cast<int>(input.operations[i]) << '\n';
        for (const operand_triangle& t : input.triangles) {
            if (t.operand == static_cast<int>(i)) {
                for (const int vertex : t.vertices) {
                    const grid_point& p = input.points[static_cast<std::size_t>(vertex)];
                    text << " (" << p.x << ' ' << p.y << ' ' << p.z << ')';
                }
                text << '\n';
            }
        }
    }
    return text.str();
}

} // namespace arrangement_laws
