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
    containment_index,
    count
};

/// How often each of them has answered in this thread, for the tests: a fast way that nobody takes
/// any more gives the same answers, and would die unnoticed.
std::uint64_t& answers_of(answered_by who);

} // namespace ox::internal

#endif
