#ifndef OX_EXAMPLES_CURVES_DRAWING_H
#define OX_EXAMPLES_CURVES_DRAWING_H

#include <examples/curves/description.h>
#include <examples/support/image.h>

namespace curves {

/// The points with their three curves between axes, and a legend.
ox_examples::image draw_curves(const description& d);

} // namespace curves

#endif
