#ifndef OX_MESH_INTERNAL_TOLERANCES_H
#define OX_MESH_INTERNAL_TOLERANCES_H

#include <cstdint>

namespace ox {

/// Edge, in model units, of the octree's first root: the unit in which models are drawn, so that
/// a model of ordinary size needs few doublings.
constexpr float first_root_edge = 1.f;

/// Levels between the root and the leaves when a finished triangle set is welded: 512 cells along
/// each axis.
constexpr int set_octree_depth = 9;

/// Doublings of the root that welding a triangle set may take: a model that needs more is broken,
/// not large.
constexpr int max_root_doublings = 100;

/// Edge of a streaming welder's leaf, in position tolerances: wide enough that few pairs of close
/// vertices lie on two sides of a cell boundary.
constexpr float leaf_size_in_tolerances = 10.f;

/// Smallest edge of a streaming welder's leaf, in model units: the edge of the first root, below
/// which the octree would have to be refined as well as grown.
constexpr float min_leaf_size = 1.f;

/// Distance within which candidates for welding are collected, in position tolerances: beyond 1
/// by more than the rounding of a single-precision difference.
constexpr double search_reach_in_tolerances = 2.0;

/// Edge of the cells that candidates are hashed by, in search reaches: most searches stay in one
/// cell, and a cell still holds few vertices.
constexpr double search_cell_in_reaches = 4.0;

/// Smallest edge, in model units, of the cells that candidates are hashed by: below the smallest
/// single-precision number, so that a tolerance of 0 keeps different coordinates apart.
constexpr double min_search_cell = 1e-60;

/// Bytes taken to be in a file whose size cannot be asked for, such as a pipe: an endless device
/// must not fill the memory.
constexpr std::uint64_t unmeasured_file_bytes = std::uint64_t{64} << 20;

} // namespace ox

#endif
