#ifndef OX_SOLID_INTERNAL_CSG_EXACT_FACETS_H
#define OX_SOLID_INTERNAL_CSG_EXACT_FACETS_H

// The triangles that an arrangement is made of, and its edges.
//
// A facet is an input triangle with an area. One without is left out: as a chain of segments its
// boundary is nothing, so what remains is closed once edges that lie along each other are divided
// at each other's ends. Facets refer to their sides by the index of an edge, which both neighbours
// share; what divides an edge therefore divides both alike.

#include <array>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/exact/box_frame.h>
#include <ox/solid/internal/csg/exact/pair_table.h>
#include <ox/solid/internal/csg/exact/point_table.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

/// A triangle with an area; its plane has its own index.
struct facet {
    /// Grid points, counter-clockwise seen from the positive side of the plane.
    std::array<int, 3> vertices;
    /// The edges between each vertex and the next.
    std::array<int, 3> sides;
    int operand;
    /// Its index in the input.
    int triangle;
    /// True where it is known to meet others only in what they share.
    bool is_clear;
};

/// A directed line, in the direction in which x grows, else y, else z: of two grid points, or the
/// cross product of the normals of two planes.
struct edge_line {
    bool is_of_planes;
    int first;
    int second;
};

/// An edge between two points, the lower one (by x, then y, then z) first.
struct edge {
    int low;
    int high;
    edge_line line;
};

/// Every edge once, by its ends.
class edge_table {
public:
    /// The index of the edge; the line is kept where it is new.
    int find_or_add(int low, int high, const edge_line& line);

    const edge& operator[](int index) const { return edges[static_cast<std::size_t>(index)]; }

    int count() const { return static_cast<int>(edges.size()); }

    /// Makes room for so many edges.
    void reserve(std::size_t edge_count) {
        edges.reserve(edge_count);
        indices.reserve(edge_count);
    }

private:
    std::vector<edge> edges;
    pair_table indices;
};

/// The facets of an input with their planes, points and edges.
struct facet_complex {
    facet_complex(const arrangement_input& input, progress_poll& poll);

    const std::vector<grid_point>& grid;
    point_table points;
    edge_table edges;
    std::vector<facet> facets;
    /// The frame of the boxes in which contacts are looked for.
    box_frame frame;

private:
    std::vector<facet> read_facets(const arrangement_input& input, progress_poll& poll);
    int add_side(int from, int to);
    double size_of_boxes(const box_frame& around) const;
};

/// True if the edge runs from the facet's vertex `side` to the next one upwards, from low to high.
inline bool runs_upwards(const facet_complex& complex, const facet& f, int side) {
    return complex.edges[f.sides[static_cast<std::size_t>(side)]].low ==
           f.vertices[static_cast<std::size_t>(side)];
}

} // namespace ox::internal::csg::exact

#endif
