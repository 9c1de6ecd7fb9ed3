#include <ox/solid/internal/csg/exact/facets.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

namespace {

/// The part of the area of boxes along a building below which boxes along the coordinates are the
/// better ones: round shapes have no directions, and what runs along the coordinates has slim boxes
/// there.
constexpr double plain_share = 0.3;

} // namespace

facet_complex::facet_complex(const arrangement_input& input, progress_poll& poll)
    : grid(input.points), points(input.points), facets(read_facets(input, poll)),
      frame(points.planes, grid) {
    const box_frame plain(grid);
    if (size_of_boxes(plain) < plain_share * size_of_boxes(frame)) {
        frame = plain;
    }
}

/// The area of the boxes around all facets in a frame: the larger, the more of them overlap.
double facet_complex::size_of_boxes(const box_frame& around) const {
    double sum = 0.0;
    for (const facet& f : facets) {
        bounds box = empty_bounds();
        for (const int vertex : f.vertices) {
            const grid_point& p = item(grid, vertex);
            around.enlarge(box, {static_cast<double>(p.x), static_cast<double>(p.y),
                                 static_cast<double>(p.z)});
        }
        const double x = box.high[0] - box.low[0];
        const double y = box.high[1] - box.low[1];
        const double z = box.high[2] - box.low[2];
        sum += x * y + y * z + z * x;
    }
    return sum;
}

/// Reads the triangles that have an area, and adds their planes and sides.
std::vector<facet> facet_complex::read_facets(const arrangement_input& input, progress_poll& poll) {
    std::vector<facet> result;
    result.reserve(input.triangles.size());
    points.planes.reserve(input.triangles.size());
    edges.reserve(2 * input.triangles.size());
    for (int i = 0; i < count_of(input.triangles); ++i) {
        poll.step();
        const operand_triangle& triangle = item(input.triangles, i);
        const std::array<int, 3>& v = triangle.vertices;
        const plane supporting =
            plane_through(item(grid, v[0]), item(grid, v[1]), item(grid, v[2]));
        if (!is_degenerate(supporting)) {
            const std::array<int, 3> sides = {add_side(v[0], v[1]), add_side(v[1], v[2]),
                                              add_side(v[2], v[0])};
            result.push_back({v, sides, triangle.operand, i, triangle.is_clear});
            points.planes.push_back(supporting);
        }
    }
    return result;
}

/// The edge between two grid points.
int facet_complex::add_side(int from, int to) {
    const bool is_upwards = points.compare(from, to) < 0;
    const int low = is_upwards ? from : to;
    const int high = is_upwards ? to : from;
    return edges.find_or_add(low, high, {false, low, high});
}

int edge_table::find_or_add(int low, int high, const edge_line& line) {
    int& index = indices.value_of(low, high);
    if (index < 0) {
        index = count();
        edges.push_back({low, high, line});
    }
    return index;
}

} // namespace ox::internal::csg::exact
