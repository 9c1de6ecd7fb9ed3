#include <examples/support/program.h>

#include <examples/support/description_file.h>

#include <ox/core/ox_log.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace ox_examples {

int run_program(const char* usage, const std::function<int()>& work) {
    ox_log_set(false);
    try {
        return work();
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "%s\nusage: %s\n", error.what(), usage);
        return refused;
    } catch (const description_error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return refused;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return failed;
    }
}

} // namespace ox_examples
