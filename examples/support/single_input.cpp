#include <examples/support/single_input.h>

namespace ox_examples {

bool parse(int argc, char** argv, single_input& result) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--out" && i + 1 < argc) {
            result.folder = argv[++i];
        } else if (argument.rfind("--", 0) != 0 && result.file.empty()) {
            result.file = argument;
        } else {
            return false;
        }
    }
    return !result.file.empty();
}

} // namespace ox_examples
