#ifndef OX_BENCH_PEERS_CGAL_H
#define OX_BENCH_PEERS_CGAL_H

#include <memory>
#include <vector>

#include <bench/peers/triangle_mesh.h>
#include <bench/support/contestant.h>

// CGAL as a contestant: absent where it is not installed. Input meshes are converted before the
// clock starts.

namespace peers {

/// Subtracts the tools one after another, by corefinement. Fact: volume.
bench::contestant cgal_differences(const triangle_mesh& body,
                                   const std::vector<triangle_mesh>& tools);

/// Joins all tools, which are disjoint, into one mesh and subtracts that. Fact: volume.
bench::contestant cgal_joined_difference(const triangle_mesh& body,
                                         const std::vector<triangle_mesh>& tools);

/// Unites all bodies one after another, by corefinement. Fact: volume.
bench::contestant cgal_unions(const std::vector<triangle_mesh>& bodies);

/// Cuts `body` without its tools by horizontal planes at `heights`, with the slicer whose search
/// tree is built before. Facts: pieces, perimeter.
bench::contestant cgal_sections(const triangle_mesh& body, const std::vector<triangle_mesh>& tools,
                                const std::vector<double>& heights);

/// Splits every triangle into four at the middles of its sides: PTQ subdivision with a mask that
/// leaves the old points. Facts: vertices, triangles.
bench::contestant cgal_subdivision(std::shared_ptr<const triangle_mesh> mesh);

/// Turns a list of triangles into a mesh with half-edges. Facts: triangles, border sides.
bench::contestant cgal_half_edges(std::shared_ptr<const triangle_mesh> mesh);

} // namespace peers

#endif
