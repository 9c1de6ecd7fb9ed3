#include <examples/building/assembly.h>
#include <examples/building/description.h>
#include <examples/building/drawing.h>
#include <examples/building/floor_plan.h>
#include <examples/building/obj_file.h>
#include <examples/building/report.h>

#include <examples/support/command_line.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>
#include <examples/support/progress.h>

#include <string>

namespace {

/// True where the pictures are among the files.
bool write_files(ox_examples::output_folder& folder, const building::description& d,
                 std::vector<building::element>& elements) {
    building::write_obj(folder.add(d.name + ".obj"), elements);
    ox_examples::pictures pictures(folder);
    pictures.add(d.name + ".png", [&] { return building::draw_view(elements); });
    for (std::size_t storey = 0; storey < d.storeys.size(); ++storey) {
        building::floor_plan plan = building::plan_of(d, elements, storey);
        pictures.add("plan-" + std::to_string(storey) + ".png",
                     [&] { return building::draw_plan(plan, building::bounding_box(elements)); });
    }
    folder.publish();
    return pictures.complete();
}

/// From the description to the files and the table.
ox_examples::exit_status run(const ox_examples::single_input& wanted) {
    const building::description d = building::read_description(wanted.file);
    ox_examples::output_folder folder(wanted.folder, d.name);
    std::vector<building::element> elements;
    {
        ox_examples::progress steps(building::count_steps(d));
        elements = building::assemble(d, steps);
    }
    const bool complete = write_files(folder, d, elements);
    if (!building::report(d.name, elements)) {
        return ox_examples::off;
    }
    return complete ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    ox_examples::single_input wanted;
    return ox_examples::run_program(
        {"ox_building", "Makes the solids of a building, measures and draws them."}, argc, argv,
        [&](CLI::App& line) { ox_examples::add_single_input(line, wanted); },
        [&] { return run(wanted); });
}
