#include <ox/solid/internal/csg/arrangement.h>

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
    const coincidence_list coincidences = find_coincidences(complex, contacts, list);
    const int outside = 2 * count_of(list.pieces);
    disjoint_sets cells(outside + 1);
    const edge_fans fans = join_wedges(complex, list, coincidences, cells, poll);
    poll.begin(0.85);
    join_shells(complex, list, coincidences, fans, outside, cells, poll);
    const std::vector<bool> is_side_selected =
        select_cells(complex, list, coincidences, input.operations, outside, cells, poll);
    poll.begin(0.95);
    return boundary_writer(complex, list, coincidences).write(is_side_selected);
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
