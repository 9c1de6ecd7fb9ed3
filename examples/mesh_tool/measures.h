#ifndef OX_EXAMPLES_MESH_TOOL_MEASURES_H
#define OX_EXAMPLES_MESH_TOOL_MEASURES_H

#include <ox/geometry/ox_box.h>
#include <ox/mesh/ox_triangle_set.h>

namespace mesh_tool {

/// Throws `std::runtime_error` when a triangle names a vertex that is not there, or a vertex is not
/// finite: such a mesh has no measures.
void require_sound(const ox::ox_triangle_set& mesh);

/// The box around all vertices.
ox::ox_box bounding_box(const ox::ox_triangle_set& mesh);

/// The area of all triangles, summed in double precision.
double surface_area(const ox::ox_triangle_set& mesh);

/// Tells whether every side of a triangle has a neighbour that runs through it the other way. Only
/// a welded mesh can be closed.
bool is_closed(const ox::ox_triangle_set& mesh);

} // namespace mesh_tool

#endif
