#include <examples/mesh_tool/arguments.h>

#include <examples/support/command_line.h>

#include <CLI/CLI.hpp>

#include <limits>

namespace mesh_tool {

namespace {

/// A field of 10 million triangles; five levels multiply a mesh by 1024.
constexpr int max_field_size = 2236;
constexpr int max_levels = 5;

using ox_examples::count_up_to;

CLI::Validator tolerance(const std::string& wanted) {
    return ox_examples::number_between(0, std::numeric_limits<float>::max(), wanted);
}

/// Declares where the mesh comes from: a file or a generator.
void declare_source(CLI::App& line, arguments& wanted) {
    CLI::Option* const file =
        line.add_option("FILE", wanted.file, "a mesh: binary STL, or raw when it ends in .raw")
            ->type_name("");
    CLI::Option* const field =
        line.add_option("--generate", wanted.field_size, "a field of hills instead, N x N squares")
            ->type_name("N")
            ->check(count_up_to(max_field_size, "size"));
    line.parse_complete_callback([file, field] {
        if (file->empty() == field->empty()) {
            throw CLI::ValidationError("exactly one of FILE and --generate is needed");
        }
    });
}

} // namespace

void declare(CLI::App& line, arguments& wanted) {
    declare_source(line, wanted);
    line.add_option("--weld", wanted.weld, "tolerances of welding (0.0001 10: across all edges)")
        ->type_name("DISTANCE NORMAL")
        ->check(tolerance("distance").application_index(0))
        ->check(tolerance("normal tolerance").application_index(1));
    line.add_option("--subdivide", wanted.levels, "replaces each triangle by four, LEVELS times")
        ->type_name("LEVELS")
        ->check(count_up_to(max_levels, "number of levels"));
    CLI::Option* const folder = ox_examples::add_output_folder(
        line, wanted.folder, "writes the mesh as .raw and .obj, and a picture, there");
    line.add_flag("--y-up", wanted.y_is_up,
                  "draws the mesh with its y axis upwards, not its z axis")
        ->needs(folder);
}

} // namespace mesh_tool
