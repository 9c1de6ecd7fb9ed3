// The boundary of a combination by the arrangement of its operands' triangles: space is divided
// into cells at all of them, the cells are chosen, and what separates chosen cells from others is
// the boundary (Zhou, Grinspun, Zorin and Jacobson, "Mesh arrangements for solid geometry", 2016;
// Cherchi, Pellacini, Attene and Livesu, "Interactive and robust mesh Booleans", 2022). The steps,
// one file each, in exact/:
//
//  1. facets         triangles with an area; neighbours share the index of their side
//  2. contacts       pairs of facets whose boxes overlap (box_pairs, in a frame along the building,
//                    box_frame) impose points and segments on each other, decided by orientations
//                    of grid points alone (plane); coplanar ones their clipped sides
//  3. pieces         each side is divided once, for all its facets; in each facet the segments are
//                    divided at each other (segment_splitter), and the cells that they enclose are
//                    traced (facet_division), parts inside others placed by a sweep (loop_sweep)
//  4. coincidences   pieces of the same boundary become one piece with several covers
//  5. edge_fans      about each edge the pieces are sorted; neighbours share a wedge of a cell
//  6. shells         what no edge joins is placed by a ray down from its lowest point
//  7. cell_selection a walk over the cells carries the winding numbers of the operands and the last
//                    operation that decides (operation_fold)
//  8. boundary_writer
//
// Why it is closed: once around an edge one crosses from cell to cell and comes back to the first,
// so what goes out of the chosen cells comes in as often, at every edge, whichever cells are chosen
// and whatever the geometry. Why it is right: every point of the arrangement is one index
// (point_table), every decision is exact, and a cell has one winding number for each operand,
// because each operand is a closed chain. Rounding happens once, to the coordinates of the result,
// and no step reads them but to decide faster what it would decide anyway.
//
// Time: O(log n) for each facet, pair of overlapping boxes, and piece, but for three things that no
// bound on pairs covers: a common point of three planes inside facets is made for each facet; a ray
// passes the boxes above its first hit; and the piece of a hit facet is found by looking at all of
// its edges.

#include <ox/solid/internal/csg/exact/boundary_writer.h>
#include <ox/solid/internal/csg/exact/cell_selection.h>
#include <ox/solid/internal/csg/exact/coincidences.h>
#include <ox/solid/internal/csg/exact/contacts.h>
#include <ox/solid/internal/csg/exact/edge_fans.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/item.h>
#include <ox/solid/internal/csg/exact/pieces.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>
#include <ox/solid/internal/csg/exact/shells.h>

namespace ox::internal::csg {

namespace {

using namespace exact;

arrangement_result make_arrangement(const arrangement_input& input, progress_poll& poll) {
    poll.begin(0.0);
    facet_complex complex(input, poll);
    side_planes planes(complex);
    contact_list contacts = find_contacts(complex, planes, poll);
    poll.begin(0.4);
    const piece_list list = divide_facets(complex, contacts, planes, poll);
    poll.begin(0.7);
    const coincidence_list coincidences = find_coincidences(complex, contacts, list, poll);
    const int outside = 2 * count_of(list.pieces);
    disjoint_sets cells(outside + 1);
    const edge_fans fans = join_wedges(complex, list, coincidences, cells, poll);
    poll.begin(0.85);
    join_shells(complex, list, coincidences, fans, outside, cells, poll);
    const std::vector<bool> is_side_selected =
        select_cells(complex, list, coincidences, input.operations, outside, cells, poll);
    poll.begin(0.95);
    return boundary_writer(complex, list, coincidences, poll).write(is_side_selected);
}

} // namespace

bool arrange(const arrangement_input& input, const progress_report& report,
             arrangement_result& result) {
    try {
        progress_poll poll(report);
        result = make_arrangement(input, poll);
        return true;
    } catch (const work_ended&) {
        return false;
    }
}

} // namespace ox::internal::csg
