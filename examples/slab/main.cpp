#include <examples/slab/description.h>
#include <examples/slab/drawing.h>
#include <examples/slab/report.h>
#include <examples/slab/sharing.h>

#include <examples/support/command_line.h>
#include <examples/support/output_folder.h>
#include <examples/support/pictures.h>
#include <examples/support/program.h>

namespace {

ox_examples::exit_status run(const ox_examples::single_input& wanted) {
    const slab::description d = slab::read_description(wanted.file);
    const slab::sharing shares = slab::share_out(d);
    ox_examples::output_folder folder(wanted.folder, d.name);
    slab::write_table(folder.add(d.name + ".csv"), d, shares);
    ox_examples::pictures pictures(folder);
    pictures.add(d.name + ".png", [&] { return slab::draw_shares(d, shares); });
    folder.publish();
    if (!slab::report(d, shares)) {
        return ox_examples::off;
    }
    return pictures.complete() ? ox_examples::all_well : ox_examples::failed;
}

} // namespace

int main(int argc, char** argv) {
    ox_examples::single_input wanted;
    return ox_examples::run_program(
        {"ox_slab", "Shares the load of a floor slab out among the beams that carry it."}, argc,
        argv, [&](CLI::App& line) { ox_examples::add_single_input(line, wanted); },
        [&] { return run(wanted); });
}
