#ifndef OX_SOLID_INTERNAL_CSG_PLANAR_TRIANGULATION_H
#define OX_SOLID_INTERNAL_CSG_PLANAR_TRIANGULATION_H

#include <array>
#include <vector>

#include <ox/solid/internal/csg/planar_orientation.h>

namespace ox::internal::csg {

/// A directed edge of the boundary of a region, which lies on its left.
struct region_edge {
    int from;
    int to;
    int region;
};

/// A triangle, counter-clockwise, and one region that covers it so many times (negative: a region
/// bounded clockwise).
struct covered_triangle {
    std::array<int, 3> vertices;
    int region;
    int winding;
};

/// Cuts the regions that `edges` bound into triangles, the same ones for all regions that cover
/// them, whose corners are the ends of edges, indices into `points`. Regions may have holes and
/// parts apart from each other; what a region covers is where its winding number is not 0. A
/// triangle that several regions cover comes once for each.
///
/// Edges may share ends and be the same, but must not cross, overlap otherwise or end within one
/// another, and different indices must have different places. False where that is found not to be
/// so; it need not be found, so whoever cannot be sure compares the boundary of the triangles with
/// that of the regions. O(n log n + c) for n edges and c answers.
bool triangulate_regions(const std::vector<planar_point>& points,
                         const std::vector<region_edge>& edges,
                         std::vector<covered_triangle>& triangles);

} // namespace ox::internal::csg

#endif
