#ifndef OX_EXAMPLES_MESH_TOOL_ARGUMENTS_H
#define OX_EXAMPLES_MESH_TOOL_ARGUMENTS_H

#include <string>

namespace mesh_tool {

/// What the command line asks for.
struct arguments {
    std::string file;       // a mesh file, empty to generate one
    int field_size = 0;     // squares along each side of the generated field
    float position = 1e-4f; // welding tolerance, in model units
    float normal = 10.f;    // welding tolerance; 10 welds across all edges
    int levels = 0;         // of subdivision
    bool y_is_up = false;   // in the picture
    std::string folder;     // for the files, empty for none
};

/// The text that explains the command line.
extern const char* const usage;

/// Reads the command line. Throws `std::invalid_argument` with the reason when it makes no sense.
arguments parse(int argc, char** argv);

} // namespace mesh_tool

#endif
