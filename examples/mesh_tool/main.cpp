#include <examples/mesh_tool/arguments.h>
#include <examples/mesh_tool/drawing.h>
#include <examples/mesh_tool/measures.h>
#include <examples/mesh_tool/source.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>
#include <examples/support/progress.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace {

using mesh_tool::arguments;
using ox_examples::progress;

ox::ox_triangle_set load(const arguments& wanted) {
    ox::ox_triangle_set mesh = wanted.file.empty() ? mesh_tool::height_field(wanted.field_size)
                                                   : mesh_tool::read_mesh(wanted.file);
    mesh_tool::require_sound(mesh);
    return mesh;
}

std::string name_of(const arguments& wanted) {
    return wanted.file.empty() ? "field-" + std::to_string(wanted.field_size)
                               : std::filesystem::path(wanted.file).stem().string();
}

/// True where the picture is among the files.
bool write_files(const arguments& wanted, ox::ox_triangle_set& mesh, progress& steps) {
    const std::string name = name_of(wanted);
    ox_examples::output_folder folder(wanted.folder, name);
    steps.advance("writing");
    if (!mesh.write_obj(folder.add(name + ".obj").c_str()) ||
        !mesh.write_binary_raw(folder.add(name + ".raw").c_str())) {
        throw std::runtime_error(wanted.folder + ": the mesh cannot be written");
    }
    steps.advance("drawing");
    ox_examples::pictures pictures(folder);
    pictures.add(name + ".png", [&] { return mesh_tool::draw_view(mesh, wanted.y_is_up); });
    folder.publish();
    return pictures.complete();
}

void report(const std::string& name, unsigned int nb_vertices_before,
            const ox::ox_triangle_set& mesh) {
    const ox::ox_box box = mesh_tool::bounding_box(mesh);
    const ox::ox_3dvector end = box.origin + box.size;
    std::printf("mesh             %s\n", name.c_str());
    std::printf("triangles        %u\n", mesh.get_nb_triangles());
    std::printf("vertices before  %u\n", nb_vertices_before);
    std::printf("vertices after   %u\n", mesh.get_nb_vertices());
    std::printf("surface          %s\n", mesh_tool::is_closed(mesh) ? "closed" : "open");
    std::printf("box from         %.4f %.4f %.4f\n", double{box.origin.x}, double{box.origin.y},
                double{box.origin.z});
    std::printf("box to           %.4f %.4f %.4f\n", double{end.x}, double{end.y}, double{end.z});
    std::printf("area             %.6g\n", mesh_tool::surface_area(mesh));
}

ox_examples::exit_status run(const arguments& wanted) {
    progress steps(2 + wanted.levels + (wanted.folder.empty() ? 0 : 2));
    steps.advance("reading");
    ox::ox_triangle_set mesh = load(wanted);
    const unsigned int nb_vertices_before = mesh.get_nb_vertices();
    steps.advance("welding");
    mesh.optimize(wanted.weld.first, wanted.weld.second);
    for (int level = 1; level <= wanted.levels; ++level) {
        steps.advance("subdividing, level " + std::to_string(level));
        mesh.subdivide();
    }
    const bool complete = wanted.folder.empty() || write_files(wanted, mesh, steps);
    steps.end();
    report(name_of(wanted), nb_vertices_before, mesh);
    return complete ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    arguments wanted;
    return ox_examples::run_program(
        {"ox_mesh_tool", "Measures, welds, refines, converts and draws a triangle mesh."}, argc,
        argv, [&](CLI::App& line) { mesh_tool::declare(line, wanted); },
        [&] { return run(wanted); });
}
