// Cuts the wall panels of a tower on all cores and welds them into one mesh, under a progress bar
// that learns how long each phase takes and a Ctrl-C that leaves a sound mesh behind.
#include <examples/progress/arguments.h>
#include <examples/progress/interruption.h>
#include <examples/progress/production.h>
#include <examples/progress/reporter.h>
#include <examples/support/output_folder.h>
#include <examples/support/program.h>

#include <cstdio>

namespace {

using progress_example::arguments;
using progress_example::product;
using progress_example::reporter;

const char* const mesh_name = "tower.raw";

void report(const product& made, const reporter& progress) {
    std::printf("panels     %d of %d\n", made.nb_finished, made.nb_planned);
    std::printf("triangles  %u\n", made.nb_triangles);
    std::printf("vertices   %u welded from %u\n", made.nb_vertices, made.nb_corners);
    if (progress.stopped_in().empty()) {
        std::fputs(progress.get_pace().text().c_str(), stdout);
    }
}

/// Says what a stopped run leaves behind.
void explain_stop(const product& made, const std::string& phase, const std::string& folder) {
    if (made.nb_finished > 0) {
        std::fprintf(stderr, "stopped while %s: %s/%s holds the %d finished panels\n",
                     phase.c_str(), folder.c_str(), mesh_name, made.nb_finished);
    } else {
        std::fprintf(stderr, "stopped while %s: no panel was finished, no mesh is written\n",
                     phase.c_str());
    }
}

ox_examples::exit_status run(const arguments& wanted) {
    ox_examples::output_folder folder(wanted.folder, "tower");
    const std::string path = folder.add(mesh_name);
    reporter progress(wanted.folder + "/durations.txt");
    progress_example::add_phases(progress);
    progress_example::note_interruptions();
    const product made = progress_example::produce(wanted, path, progress);
    if (made.nb_finished > 0) {
        folder.publish();
    }
    progress.finish();
    report(made, progress);
    if (progress.stopped_in().empty()) {
        return ox_examples::all_well;
    }
    explain_stop(made, progress.stopped_in(), wanted.folder);
    return ox_examples::stopped;
}

} // namespace

int main(int argc, char** argv) {
    arguments wanted;
    return ox_examples::run_program(
        {"ox_progress", "Cuts and welds a tower of wall panels under a progress bar that learns."},
        argc, argv, [&](CLI::App& line) { progress_example::declare(line, wanted); },
        [&] { return run(wanted); });
}
