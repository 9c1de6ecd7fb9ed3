#include <examples/mesh_tool/arguments.h>
#include <examples/support/command_line.h>

namespace mesh_tool {

namespace {

/// A field of 10 million triangles; five levels multiply a mesh by 1024.
constexpr int max_field_size = 2236;
constexpr int max_levels = 5;

} // namespace

const char* const usage =
    "usage: ox_mesh_tool FILE|--generate N [--weld DISTANCE NORMAL] [--subdivide LEVELS]\n"
    "                    [--out FOLDER [--y-up]]\n"
    "\n"
    "  FILE                    a mesh: binary STL, or raw when it ends in .raw\n"
    "  --generate N            a field of hills instead, N x N squares\n"
    "  --weld DISTANCE NORMAL  tolerances of welding (0.0001 10: across all edges)\n"
    "  --subdivide LEVELS      replaces each triangle by four, LEVELS times\n"
    "  --out FOLDER            writes the mesh as .raw and .obj, and a picture, there\n"
    "  --y-up                  draws the mesh with its y axis upwards, not its z axis\n";

arguments parse(int argc, char** argv) {
    arguments result;
    ox_examples::command_line line(argc, argv);
    while (!line.at_end()) {
        const std::string word = line.take("word");
        if (word == "--generate") {
            result.field_size = line.take_count("size", max_field_size);
        } else if (word == "--weld") {
            result.position = line.take_tolerance("distance");
            result.normal = line.take_tolerance("normal tolerance");
        } else if (word == "--subdivide") {
            result.levels = line.take_count("number of levels", max_levels);
        } else if (word == "--y-up") {
            result.y_is_up = true;
        } else if (word == "--out") {
            result.folder = line.take("folder");
        } else if (word.rfind("--", 0) != 0 && result.file.empty()) {
            result.file = word;
        } else {
            ox_examples::refuse("unexpected '" + word + "'");
        }
    }
    if (result.file.empty() == (result.field_size == 0)) {
        ox_examples::refuse("exactly one of FILE and --generate is needed");
    }
    return result;
}

} // namespace mesh_tool
