#ifndef OX_BENCH_PEERS_GLU_H
#define OX_BENCH_PEERS_GLU_H

#include <array>
#include <memory>
#include <vector>

#include <bench/support/contestant.h>

// The tessellator that the polygons stand on, used directly.

namespace peers {

using wide_contour = std::vector<std::array<double, 3>>;

/// Tessellates contours about the z axis by the odd rule, and lists the triangles' vertices and
/// indices. Facts: triangles, area.
bench::contestant glu_tessellation(std::shared_ptr<const std::vector<wide_contour>> contours);

} // namespace peers

#endif
