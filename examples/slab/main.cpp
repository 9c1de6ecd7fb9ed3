#include <examples/slab/description.h>
#include <examples/slab/drawing.h>
#include <examples/slab/report.h>
#include <examples/slab/sharing.h>

#include <examples/support/output_folder.h>
#include <examples/support/png_file.h>
#include <examples/support/program.h>
#include <examples/support/single_input.h>

namespace {

/// The exit status when the beams do not carry the slab, besides those of all programs.
constexpr int load_off = 3;

int run(const ox_examples::single_input& wanted) {
    const slab::description d = slab::read_description(wanted.file);
    const slab::sharing shares = slab::share_out(d);
    ox_examples::output_folder folder(wanted.folder, d.name);
    slab::write_table(folder.add(d.name + ".csv"), d, shares);
    ox_examples::write_png(folder.add(d.name + ".png"), slab::draw_shares(d, shares));
    folder.publish();
    return slab::report(d, shares) ? ox_examples::all_well : load_off;
}

} // namespace

int main(int argc, char** argv) {
    return ox_examples::run_program("ox_slab DESCRIPTION [--out DIR]", [&] {
        return run(ox_examples::parse_single_input(argc, argv));
    });
}
