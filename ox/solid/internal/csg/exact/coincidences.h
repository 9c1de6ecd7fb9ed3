#ifndef OX_SOLID_INTERNAL_CSG_EXACT_COINCIDENCES_H
#define OX_SOLID_INTERNAL_CSG_EXACT_COINCIDENCES_H

#include <vector>

#include <ox/solid/internal/csg/exact/contacts.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/exact/pieces.h>

namespace ox::internal::csg::exact {

/// A facet that covers a piece, facing as the piece's own facet does or the other way.
struct piece_cover {
    int piece;
    int facet;
    bool is_reversed;
};

/// Which pieces are one and the same.
struct coincidence_list {
    /// For each piece the one that stands for all that coincide with it, the first of them.
    std::vector<int> representative;
    /// Further facets of pieces that stand for several, by piece.
    std::vector<piece_cover> covers;
    /// The first of the further facets of each piece, and the number of all.
    std::vector<int> first_cover;
};

/// Finds the pieces of the same boundary: facets that share an area divide it alike.
coincidence_list find_coincidences(const facet_complex& complex, const contact_list& contacts,
                                   const piece_list& list, progress_poll& poll);

} // namespace ox::internal::csg::exact

#endif
