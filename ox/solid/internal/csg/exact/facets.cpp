#include <ox/solid/internal/csg/exact/facets.h>

#include <ox/solid/internal/csg/exact/item.h>

namespace ox::internal::csg::exact {

facet_complex::facet_complex(const arrangement_input& input, progress_poll& poll)
    : grid(input.points), points(input.points), facets(read_facets(input, poll)),
      frame(points.planes, grid) {}

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
            result.push_back({v, sides, triangle.operand, i});
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
