#ifndef OX_POLYGON_INTERNAL_SEARCH_FLOAT_PROGRESSION_H
#define OX_POLYGON_INTERNAL_SEARCH_FLOAT_PROGRESSION_H

#include <vector>

namespace ox::internal {

/// The coordinates that the loop `for (float u = first; u < end; u = u + step)` visits, in single
/// precision, by their index.
///
/// The sums round, so the coordinates are not `first + i * step`; and a large grid has too many
/// to store. But while the sum stays within one power of two it is exact, so the whole
/// progression is a few runs of evenly spaced coordinates (fewer than 40), which is what is kept.
///
/// A step too small to advance a coordinate ends the progression with it. `first` and `end` must be
/// finite, and `step` a power of two between 1/16 and 1: then none has more than 2^27
/// coordinates.
class float_progression {
public:
    float_progression(float first, float end, float increment);

    /// The number of coordinates.
    int size() const { return count; }

    /// Coordinate i, for 0 <= i < size(). O(1): a search among the few runs.
    float at(int i) const;

private:
    struct run {
        int first_index;
        float first;
    };

    int length_of_exact_run(float first, float end) const;

    float step;
    int count = 0;
    std::vector<run> runs;
};

} // namespace ox::internal

#endif
