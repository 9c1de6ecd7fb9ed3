#ifndef OX_BENCH_PEERS_MESH_FILES_H
#define OX_BENCH_PEERS_MESH_FILES_H

#include <string>

#include <bench/support/contestant.h>

namespace peers {

/// Reads a model without any post-processing. Facts: triangles, sum of x over all corners.
bench::contestant assimp_read(const std::string& path);

/// Reads all bytes of a raw mesh file into fresh memory, and does nothing with them. Facts, taken
/// from those bytes: vertices, triangles, sum of x over all vertices.
bench::contestant plain_fread(const std::string& path, std::size_t bytes);

} // namespace peers

#endif
