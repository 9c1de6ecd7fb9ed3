#include <examples/building/assembly.h>
#include <examples/building/description.h>
#include <examples/building/drawing.h>
#include <examples/building/floor_plan.h>
#include <examples/building/obj_file.h>
#include <examples/building/report.h>

#include <examples/support/output_folder.h>
#include <examples/support/png_file.h>
#include <examples/support/progress.h>
#include <examples/support/single_input.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

namespace {

/// The process's exit status.
enum status { all_well = 0, refused = 1, volume_off = 2 };

void write_files(ox_examples::output_folder& folder, const building::description& d,
                 std::vector<building::element>& elements) {
    building::write_obj(folder.add(d.name + ".obj"), elements);
    ox_examples::write_png(folder.add(d.name + ".png"), building::draw_view(elements));
    for (std::size_t storey = 0; storey < d.storeys.size(); ++storey) {
        building::floor_plan plan = building::plan_of(d, elements, storey);
        ox_examples::write_png(folder.add("plan-" + std::to_string(storey) + ".png"),
                               building::draw_plan(plan, building::bounding_box(elements)));
    }
    folder.publish();
}

/// From the description to the files and the table.
status run(const ox_examples::single_input& wanted) {
    const building::description d = building::read_description(wanted.file);
    ox_examples::output_folder folder(wanted.folder, d.name);
    std::vector<building::element> elements;
    {
        ox_examples::progress steps(building::count_steps(d));
        elements = building::assemble(d, steps);
    }
    write_files(folder, d, elements);
    return building::report(d.name, elements) ? all_well : volume_off;
}

} // namespace

int main(int argc, char** argv) {
    try {
        return run(ox_examples::parse_single_input(argc, argv));
    } catch (const std::invalid_argument&) {
        std::fprintf(stderr, "usage: %s DESCRIPTION [--out DIR]\n", argv[0]);
        return refused;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return refused;
    }
}
