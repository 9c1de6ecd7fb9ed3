#ifndef OX_EXAMPLES_MESH_TOOL_ARGUMENTS_H
#define OX_EXAMPLES_MESH_TOOL_ARGUMENTS_H

#include <string>
#include <utility>

namespace CLI {
class App;
}

namespace mesh_tool {

/// What the command line asks for.
struct arguments {
    std::string file;   // a mesh file, empty to generate one
    int field_size = 0; // squares along each side of the generated field
    /// Tolerances of welding: a distance in model units, and one of normals; 10 welds across all
    /// edges.
    std::pair<float, float> weld = {1e-4f, 10.0f};
    int levels = 0;       // of subdivision
    bool y_is_up = false; // in the picture
    std::string folder;   // for the files, empty for none
};

/// Declares the command line, which changes `wanted`.
void declare(CLI::App& line, arguments& wanted);

} // namespace mesh_tool

#endif
