#ifndef OX_EXAMPLES_MESH_TOOL_SOURCE_H
#define OX_EXAMPLES_MESH_TOOL_SOURCE_H

#include <ox/mesh/ox_triangle_set.h>

#include <string>

namespace mesh_tool {

/// Reads a raw file when the name ends in ".raw", otherwise a binary STL file. Throws
/// `std::runtime_error` when it is none.
ox::ox_triangle_set read_mesh(const std::string& path);

/// A field of hills: n x n squares of unit edge, two triangles each, which own their vertices as
/// those of an STL file do.
ox::ox_triangle_set height_field(int n);

} // namespace mesh_tool

#endif
