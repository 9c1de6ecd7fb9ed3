#ifndef OX_POLYGON_INTERNAL_ANSWER_COUNTS_H
#define OX_POLYGON_INTERNAL_ANSWER_COUNTS_H

#include <cstdint>

namespace ox::internal {

/// Who answers what a polygon is asked: the ways that know an answer beforehand, and the libraries.
enum class answered_by {
    single_contour,
    separate_contours,
    known_contours,
    clipping_library,
    fan,
    known_triangles,
    tessellator,
    containment_index, ///< of the questions whether a point is inside
    centre_block,      ///< candidates of the best centre that one test places
    centre_candidate,  ///< those scored one by one
    row_stretch,       ///< grid points that are inside because a neighbour in their row is
    row_point,         ///< those tested one by one
    measured_cell,     ///< cells of a raster whose distance from a side is measured
    count
};

/// How often each of them has answered in this thread, for the tests: a fast way that nobody takes
/// any more gives the same answers, and would die unnoticed.
std::uint64_t& answers_of(answered_by who);

} // namespace ox::internal

#endif
