#ifndef OX_SOLID_INTERNAL_CSG_EXACT_FACET_DIVISION_H
#define OX_SOLID_INTERNAL_CSG_EXACT_FACET_DIVISION_H

#include <vector>

#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/pieces.h>
#include <ox/solid/internal/csg/exact/segment_splitter.h>

namespace ox::internal::csg::exact {

/// Finds the cells into which edges divide a facet.
///
/// About each vertex the half-edges are sorted by direction; following each to the next one
/// clockwise traces the loops, every one with its cell on the left. A loop whose lowest corner
/// opens downwards is the outside of a part that hangs together; the cell around it is found by a
/// sweep, above the edge that is next below its lowest vertex. Directions are never computed: all
/// lines in the facet are those of planes, and the turn from one to another is the determinant of
/// three normals.
class facet_division {
public:
    facet_division(facet_complex& owner, progress_poll& steps) : complex(owner), poll(steps) {}

    /// Begins the division of a facet.
    void begin(int facet_number);

    /// Adds an edge of a side of the facet or inside it.
    void add(const facet_edge& part);

    /// Appends the cells to the list.
    void append_pieces(piece_list& list);

private:
    friend class loop_sweep;

    int half_edge_count() const { return 2 * static_cast<int>(parts.size()); }
    int head_of(int half_edge) const;
    int turn(int part, int other) const;
    void number_vertices();
    void sort_rings();
    void trace_loops();
    void trace_loop(int start);
    void find_outer_loops();
    void number_cells();
    void append_cells(piece_list& list);

    facet_complex& complex;
    progress_poll& poll;
    int facet_index = -1;
    /// The edges; part k has the half-edges 2 k upwards and 2 k + 1 downwards.
    std::vector<facet_edge> parts;

    /// The vertices from low to high; the others are named by their place here.
    std::vector<int> vertices;
    /// For each point its place while the origins are found, otherwise -1.
    std::vector<int> place_of_point;
    std::vector<int> origins;

    /// The half-edges about each vertex, counter-clockwise, those that run upwards first.
    std::vector<int> ring;
    std::vector<int> first_in_ring;
    std::vector<int> place_in_ring;

    std::vector<int> next;
    std::vector<int> loop_of;
    std::vector<int> lowest_of_loop;
    /// For each loop true where it is the outside of a part that hangs together.
    std::vector<bool> is_outer;
    /// The cell on the left of each loop, -1 for the outside of the facet.
    std::vector<int> cell_of_loop;
    int cell_count = 0;
    std::vector<int> first_arc_of_cell;
};

} // namespace ox::internal::csg::exact

#endif
