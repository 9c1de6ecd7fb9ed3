#ifndef OX_EXAMPLES_SLAB_SHARING_H
#define OX_EXAMPLES_SLAB_SHARING_H

#include <examples/slab/description.h>

#include <vector>

namespace slab {

/// Which beam carries which part of the slab in one direction: a picture whose rows run along the
/// span, the first one lowest in the span's frame, with one square pixel per step.
struct share_map {
    plan_point along;                 ///< unit vector of the rows
    plan_point across;                ///< unit vector from row to row
    double left = 0;                  ///< coordinate along the rows of the first column
    double bottom = 0;                ///< coordinate across the rows of the first row
    double step = 0;                  ///< metres
    int width = 0;                    ///< pixels
    int height = 0;                   ///< pixels
    std::vector<unsigned int> pixels; ///< red in the lowest byte; 0 at the beams, white elsewhere

    /// The colour at a point of the plan; white outside the picture.
    unsigned int colour_at(const plan_point& p) const;
};

/// The loads of one span.
struct span_loads {
    std::vector<double> loads; ///< kN, a beam each
    share_map map;
};

/// What the beams carry.
struct sharing {
    double area = 0;               ///< of the slab, m2
    std::vector<span_loads> spans; ///< in the order of the description
    std::vector<double> loads;     ///< kN, a beam each: the sum over the spans

    /// kN, the sum over the beams.
    double total() const;
};

/// Shares the weight of the slab out among its beams, by lines a 1500th of its size apart (at least
/// a millimetre). Throws `std::runtime_error` when there is no memory for the picture.
sharing share_out(const description& d);

} // namespace slab

#endif
