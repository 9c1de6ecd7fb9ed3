#ifndef OX_MESH_INTERNAL_TOLERANCES_H
#define OX_MESH_INTERNAL_TOLERANCES_H

#include <cstddef>

namespace ox::internal {

/// Edge, in model units, of the octree's first root: the unit in which models are drawn, so that
/// a model of ordinary size needs few doublings.
constexpr float first_root_edge = 1.0f;

/// Edge of the root, in edges of the cells above the leaves, when a finished triangle set is
/// welded: the leaves lie nine levels below the root, 512 along each axis.
constexpr float set_root_in_leaf_parents = 256.0f;

/// Doublings of the root that welding a triangle set may take: a model that needs more is broken,
/// not large.
constexpr int max_root_doublings = 100;

/// Edge of a streaming welder's leaf, in position tolerances: wide enough that few pairs of close
/// vertices lie on two sides of a cell boundary.
constexpr float leaf_size_in_tolerances = 10.0f;

/// Smallest edge of a streaming welder's leaf, in model units: the edge of the first root, below
/// which the octree would have to be refined as well as grown.
constexpr float min_leaf_size = 1.0f;

/// Distance within which candidates for welding are collected, in position tolerances: beyond 1
/// by more than the rounding of a single-precision difference.
constexpr double search_reach_in_tolerances = 1.001;

/// Edge of the cells that candidates are hashed by, in search reaches. Wide cells keep most
/// searches in one cell; where vertices lie so close that many share a cell, it is halved down to
/// the narrowest, which holds few whose distance is beyond the tolerance.
constexpr double widest_search_cell_in_reaches = 64.0;
constexpr double narrowest_search_cell_in_reaches = 4.0;

/// Candidates that a search looks at on average before the cells are too wide: some share a bucket
/// by chance.
constexpr std::size_t crowded_candidates = 3;

/// Candidates that are looked at for a repetition of a vertex before all within the tolerance are
/// searched: in crowded cells few vertices are repetitions.
constexpr int candidates_for_repetition = 4;

/// Searches over which that average is taken.
constexpr std::size_t searches_to_average = 4096;

/// Smallest edge, in model units, of the cells that candidates are hashed by: below the smallest
/// single-precision number, so that a tolerance of 0 keeps different coordinates apart.
constexpr double min_search_cell = 1e-60;

/// How many of the vertices given to a welder are expected to join one welded vertex. In a closed
/// mesh of triangles about six meet at each place; less leaves room for borders and sharp edges.
constexpr std::size_t expected_vertices_at_a_place = 5;

/// Vertices that a welder is given at a time: their searches wait for memory together, and all of
/// them fit the processor's first-level cache. Whole triangles, so a multiple of 3.
constexpr std::size_t welding_block = 192;

/// Welded vertices that a welder first makes room for.
constexpr std::size_t first_welding_room = 64;

/// Normal tolerance from which unit normals always agree: the sum over the axes is at most
/// 2 * sqrt(3), and below 6 for normals of tiny triangles, whose length is lost in underflow.
constexpr float indifferent_normal_tolerance = 8.0f;

/// Root edge up to which the normal of every triangle in the octree is finite: products of two
/// differences stay below 2^124.
constexpr float max_root_edge_of_finite_normals = 1152921504606846976.0f; ///< 2^60

} // namespace ox::internal

#endif
