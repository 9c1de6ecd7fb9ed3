#include <examples/slab/description.h>
#include <examples/slab/drawing.h>
#include <examples/slab/report.h>
#include <examples/slab/sharing.h>

#include <examples/support/output_folder.h>
#include <examples/support/png_file.h>
#include <examples/support/single_input.h>

#include <ox/core/ox_log.h>

#include <cstdio>
#include <exception>

namespace {

/// The process's exit status.
enum status { all_well = 0, not_written = 1, refused = 2, load_off = 3 };

status run(const ox_examples::single_input& wanted) {
    const slab::description d = slab::read_description(wanted.file);
    const slab::sharing shares = slab::share_out(d);
    ox_examples::output_folder folder(wanted.folder, d.name);
    slab::write_table(folder.add(d.name + ".csv"), d, shares);
    ox_examples::write_png(folder.add(d.name + ".png"), slab::draw_shares(d, shares));
    folder.publish();
    return slab::report(d, shares) ? all_well : load_off;
}

} // namespace

int main(int argc, char** argv) {
    ox_log_set(false); // the working folder stays as it is
    ox_examples::single_input wanted;
    if (!ox_examples::parse(argc, argv, wanted)) {
        std::fprintf(stderr, "usage: %s DESCRIPTION [--out DIR]\n", argv[0]);
        return refused;
    }
    try {
        return run(wanted);
    } catch (const slab::description_error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return refused;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return not_written;
    }
}
