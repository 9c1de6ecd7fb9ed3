#ifndef OX_EXAMPLES_SLAB_LEGEND_H
#define OX_EXAMPLES_SLAB_LEGEND_H

#include <examples/slab/sharing.h>
#include <examples/support/flat_drawing.h>

namespace slab {

/// How strongly the colours of the shares show, from 0 to 1: the beams on top must be legible.
constexpr float share_strength = 0.55f;

plan_point middle_of(const beam& b);

/// The number of a beam in a circle.
void draw_badge(int number, const ox_examples::pixel_point& centre, const ox_examples::colour& ink);

/// The height in pixels of a legend of the given width.
double legend_height(const description& d, double width);

/// Lists the beams: number, the colour of their share in each span, name and load.
void draw_legend(const description& d, const sharing& shares, double top, double width);

} // namespace slab

#endif
