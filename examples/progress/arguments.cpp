#include <examples/progress/arguments.h>

#include <examples/support/command_line.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <thread>

namespace progress_example {

namespace {

/// Of the highest building, whose coordinates still are exact to a tenth of a millimetre.
constexpr int max_storeys = 300;
constexpr int max_threads = 256;

using ox_examples::count_up_to;

/// As many threads as the machine runs at a time.
int usual_threads() {
    const auto cores = std::min<unsigned int>(std::thread::hardware_concurrency(), max_threads);
    return std::max(static_cast<int>(cores), 1);
}

} // namespace

void declare(CLI::App& line, arguments& wanted) {
    wanted.nb_threads = usual_threads();
    ox_examples::add_output_folder(
        line, wanted.folder,
        "receives tower.raw, the mesh, and durations.txt, what the bar has learnt")
        ->required();
    line.add_option("--storeys", wanted.nb_storeys, "the height of the building")
        ->type_name("N")
        ->check(count_up_to(max_storeys, "number of storeys"))
        ->capture_default_str();
    line.add_option("--threads", wanted.nb_threads, "how many threads work")
        ->type_name("N")
        ->check(count_up_to(max_threads, "number of threads"))
        ->capture_default_str();
    line.footer("Ctrl-C ends the phase at hand; what is finished is written.");
}

} // namespace progress_example
