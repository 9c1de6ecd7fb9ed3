#include <examples/mesh_tool/arguments.h>
#include <examples/mesh_tool/drawing.h>
#include <examples/mesh_tool/measures.h>
#include <examples/mesh_tool/obj_file.h>
#include <examples/mesh_tool/source.h>
#include <examples/support/output_folder.h>
#include <examples/support/png_file.h>
#include <examples/support/progress.h>

#include <ox/core/ox_log.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

namespace {

/// The process's exit status.
enum status { all_well = 0, refused = 1, wrong_command_line = 2 };

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

void write_files(const arguments& wanted, ox::ox_triangle_set& mesh, progress& steps) {
    const std::string name = name_of(wanted);
    ox_examples::output_folder folder(wanted.folder, name);
    steps.advance("writing");
    if (!mesh.write_binary_raw(folder.add(name + ".raw").c_str())) {
        throw std::runtime_error(wanted.folder + ": the raw file cannot be written");
    }
    mesh_tool::write_obj(folder.add(name + ".obj"), mesh);
    steps.advance("drawing");
    ox_examples::write_png(folder.add(name + ".png"), mesh_tool::draw_view(mesh, wanted.y_is_up));
    folder.publish();
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

void run(const arguments& wanted) {
    progress steps(2 + wanted.levels + (wanted.folder.empty() ? 0 : 2));
    steps.advance("reading");
    ox::ox_triangle_set mesh = load(wanted);
    const unsigned int nb_vertices_before = mesh.get_nb_vertices();
    steps.advance("welding");
    mesh.optimize(wanted.position, wanted.normal);
    for (int level = 1; level <= wanted.levels; ++level) {
        steps.advance("subdividing, level " + std::to_string(level));
        mesh.subdivide();
    }
    if (!wanted.folder.empty()) {
        write_files(wanted, mesh, steps);
    }
    steps.end();
    report(name_of(wanted), nb_vertices_before, mesh);
}

} // namespace

int main(int argc, char** argv) {
    ox_log_set(false); // the working folder stays as it is
    try {
        run(mesh_tool::parse(argc, argv));
        return all_well;
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "%s\n%s", error.what(), mesh_tool::usage);
        return wrong_command_line;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return refused;
    }
}
