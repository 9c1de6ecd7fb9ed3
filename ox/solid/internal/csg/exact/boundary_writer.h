#ifndef OX_SOLID_INTERNAL_CSG_EXACT_BOUNDARY_WRITER_H
#define OX_SOLID_INTERNAL_CSG_EXACT_BOUNDARY_WRITER_H

#include <vector>

#include <ox/solid/internal/csg/exact/coincidences.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/pieces.h>
#include <ox/solid/internal/csg/exact/progress_poll.h>

namespace ox::internal::csg::exact {

/// Writes the pieces between what is in the result and what is not.
class boundary_writer {
public:
    boundary_writer(const facet_complex& owner, const piece_list& pieces,
                    const coincidence_list& same, progress_poll& steps)
        : complex(owner), list(pieces), coincidences(same), poll(steps),
          last_piece(static_cast<std::size_t>(owner.edges.count()), -1),
          last_slit(static_cast<std::size_t>(owner.edges.count()), -1) {}

    arrangement_result write(const std::vector<bool>& is_side_selected);

private:
    void write_piece(int piece_index, bool is_turned, arrangement_result& result);
    void write_edges(int piece_index, bool is_turned, arrangement_result& result);
    piece_cover lowest_cover(int piece_index) const;

    const facet_complex& complex;
    const piece_list& list;
    const coincidence_list& coincidences;
    progress_poll& poll;
    /// For each edge the last piece that had it, and the last that had it on both sides.
    std::vector<int> last_piece;
    std::vector<int> last_slit;
};

} // namespace ox::internal::csg::exact

#endif
