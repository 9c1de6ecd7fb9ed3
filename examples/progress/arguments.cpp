#include <examples/progress/arguments.h>
#include <examples/support/command_line.h>

#include <algorithm>
#include <thread>

namespace progress_example {

namespace {

/// Of the highest building, whose coordinates still are exact to a tenth of a millimetre.
constexpr int max_storeys = 300;
constexpr int max_threads = 256;

} // namespace

const char* const usage =
    "usage: ox_progress --out FOLDER [--storeys N] [--threads N]\n"
    "\n"
    "  --out FOLDER  receives tower.raw, the mesh, and durations.txt, what the bar has learnt\n"
    "  --storeys N   the height of the building (60)\n"
    "  --threads N   how many threads work (as many as the machine runs at a time)\n"
    "\n"
    "Ctrl-C ends the phase at hand; what is finished is written.\n";

arguments parse(int argc, char** argv) {
    arguments result;
    const int cores = static_cast<int>(std::min(std::thread::hardware_concurrency(), 256u));
    result.nb_threads = std::clamp(cores, 1, max_threads);
    ox_examples::command_line line(argc, argv);
    while (!line.at_end()) {
        const std::string word = line.take("word");
        if (word == "--out") {
            result.folder = line.take("folder");
        } else if (word == "--storeys") {
            result.nb_storeys = line.take_count("number of storeys", max_storeys);
        } else if (word == "--threads") {
            result.nb_threads = line.take_count("number of threads", max_threads);
        } else {
            ox_examples::refuse("unexpected '" + word + "'");
        }
    }
    if (result.folder.empty()) {
        ox_examples::refuse("--out FOLDER is needed");
    }
    return result;
}

} // namespace progress_example
