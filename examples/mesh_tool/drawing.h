#ifndef OX_EXAMPLES_MESH_TOOL_DRAWING_H
#define OX_EXAMPLES_MESH_TOOL_DRAWING_H

#include <examples/support/image.h>

#include <ox/mesh/ox_triangle_set.h>

namespace mesh_tool {

/// A shaded view of the mesh from a raised corner, with its edges while there are few enough to be
/// told apart. The z axis points up in the picture, or else the y axis.
ox_examples::image draw_view(const ox::ox_triangle_set& mesh, bool y_is_up);

} // namespace mesh_tool

#endif
