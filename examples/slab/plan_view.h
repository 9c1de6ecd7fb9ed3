#ifndef OX_EXAMPLES_SLAB_PLAN_VIEW_H
#define OX_EXAMPLES_SLAB_PLAN_VIEW_H

#include <examples/slab/description.h>
#include <examples/support/flat_drawing.h>

namespace slab {

/// Places a plan, north up, in the middle of a rectangle of a picture.
class plan_view {
public:
    /// A view of `outline` that leaves a margin all round.
    plan_view(const plan_contour& outline, const ox_examples::pixel_point& top_left, double width,
              double height);

    ox_examples::pixel_point place(const plan_point& p) const;

    std::vector<ox_examples::pixel_point> place(const plan_contour& contour) const;

private:
    plan_point plan_centre;
    ox_examples::pixel_point picture_centre;
    double scale; ///< pixels a metre
};

} // namespace slab

#endif
