#ifndef OX_POLYGON_INTERNAL_SEARCH_CENTER_SEARCH_H
#define OX_POLYGON_INTERNAL_SEARCH_CENTER_SEARCH_H

#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/internal/ox_polygon_data.h>

namespace ox::internal {

/// Finds the candidate of the best centre without visiting all of them: branch and bound over
/// blocks of the candidate grids, after polylabel (V. Agafonkin, 2016).
///
/// What is searched: four grids over the bounds of the contours, with steps of 0.5 to 0.0625. The
/// winner is the candidate inside the region with the largest score (distance to the outline
/// minus penalty), if that is not negative; of equal ones the last in the order of grid,
/// u and v.
///
/// How: a block of candidates has an upper bound for their scores, the exact distance of its
/// centre plus its radius and an allowance for rounding. The block with the greatest bound is
/// taken first and cut in two, until few candidates are left; those are scored one by one. The
/// search ends when no bound reaches the best score (or reaches it only before the winner's
/// place in the order). A block that keeps clear of the outline lies inside or outside as a
/// whole, so that one containment test answers for all its candidates. Every block keeps only
/// the sides that can be nearest to its candidates.
///
/// Cost: some hundred blocks for common shapes of any size, each O(n) at worst. Where the scores
/// are level along a curve (a ring of many sides), as many blocks as candidates lie along it.
///
/// `polygon` must have been merged and have vertices. False, with `center` as it was, when no
/// candidate lies inside with a score of 0 or more, or when the coordinates are not finite or too
/// large.
bool find_best_center(const ox_polygon_data& polygon, ox_3dvector& center);

} // namespace ox::internal

#endif
