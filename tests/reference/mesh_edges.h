#ifndef OX_TESTS_REFERENCE_MESH_EDGES_H
#define OX_TESTS_REFERENCE_MESH_EDGES_H

#include "mesh_welding.h"

#include <vector>

namespace reference {

/// One level of midpoint subdivision; the middles of sides are found by linear search.
void subdivide(plain_mesh& mesh);

/// For each half-edge in creation order the index of its opposite, -1 for none, found by scanning
/// the list of the half-edges that start where it ends.
std::vector<int> opposites(const plain_mesh& mesh);

} // namespace reference

#endif
