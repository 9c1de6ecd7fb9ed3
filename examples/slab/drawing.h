#ifndef OX_EXAMPLES_SLAB_DRAWING_H
#define OX_EXAMPLES_SLAB_DRAWING_H

#include <examples/slab/sharing.h>
#include <examples/support/image.h>

namespace slab {

/// A plan for each span, north up, in which the part of the slab that a beam carries has a colour
/// of its own, and below them the table of the beams.
ox_examples::image draw_shares(const description& d, const sharing& shares);

} // namespace slab

#endif
