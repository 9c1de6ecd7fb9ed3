#ifndef OX_POLYGON_INTERNAL_TRIANGLES_TESSELLATOR_H
#define OX_POLYGON_INTERNAL_TRIANGLES_TESSELLATOR_H

#include <array>
#include <deque>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox::internal {

/// What the GLU tessellator says about a region with the odd winding rule: the vertices of its
/// primitives, one after another, and three indices into them per triangle. The triangles of a
/// strip all run in its order, so every other one is turned over.
struct tessellator_answer {
    /// Each points to three coordinates, those given or those of `made`.
    std::vector<const double*> vertices;
    std::vector<unsigned int> triangles;
    /// The vertices that the tessellator made where contours cross.
    std::deque<std::array<double, 3>> made;
};

/// Tessellates contours of so many vertices each, given as concatenated x, y, z that must outlive
/// the answer. The errors of the tessellator are ignored but that memory is short: a failed
/// allocation, its own or in its callbacks, is thrown once it has ended.
void run_tessellator(std::vector<double>& coordinates, const ox_list<unsigned int>& sizes,
                     const ox_3dvector& normal, tessellator_answer& answer);

} // namespace ox::internal

#endif
