#ifndef OX_TESTS_REFERENCE_DISTRIBUTIONS_H
#define OX_TESTS_REFERENCE_DISTRIBUTIONS_H

#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/reference/plane_frame.h>

namespace reference {

/// Plain version of `ox_polygon::regular_distribution`: every point of the grid is tested against
/// every side.
std::vector<ox::ox_3dvector> regular_distribution(ox::ox_polygon& polygon, float step);

/// The same in a given frame, for a polygon whose axes a transformation has changed.
std::vector<ox::ox_3dvector> regular_distribution(ox::ox_polygon& polygon, const plane_frame& frame,
                                                  float step);

/// Plain version of `ox_polygon::random_distribution`: every triangle is looked at in turn.
std::vector<ox::ox_3dvector> random_distribution(ox::ox_polygon& polygon, int count, int seed);

/// Plain version of `ox_polygon::fill_regular_grid`: every cell's centre against every side. The
/// cells are in `grid`; returns how many are set.
int fill_regular_grid(ox::ox_polygon& polygon, std::vector<bool>& grid,
                      const ox::ox_3dvector& origin, const ox::ox_3dvector& dx,
                      const ox::ox_3dvector& dy, int nx, int ny, float margin);

} // namespace reference

#endif
