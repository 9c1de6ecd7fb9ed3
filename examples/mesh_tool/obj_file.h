#ifndef OX_EXAMPLES_MESH_TOOL_OBJ_FILE_H
#define OX_EXAMPLES_MESH_TOOL_OBJ_FILE_H

#include <ox/mesh/ox_triangle_set.h>

#include <string>

namespace mesh_tool {

/// Writes the mesh as a Wavefront OBJ file. Throws `std::runtime_error` when that is impossible.
void write_obj(const std::string& path, const ox::ox_triangle_set& mesh);

} // namespace mesh_tool

#endif
