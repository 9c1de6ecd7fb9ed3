#include <examples/support/single_input.h>

#include <stdexcept>

namespace ox_examples {

single_input parse_single_input(int argc, char** argv) {
    single_input result;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--out" && i + 1 < argc) {
            result.folder = argv[++i];
        } else if (argument.rfind("--", 0) != 0 && result.file.empty()) {
            result.file = argument;
        } else {
            throw std::invalid_argument("unexpected '" + argument + "'");
        }
    }
    if (result.file.empty()) {
        throw std::invalid_argument("a file is needed");
    }
    return result;
}

} // namespace ox_examples
