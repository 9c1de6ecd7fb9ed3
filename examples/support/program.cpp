#include <examples/support/program.h>

#include <examples/support/input_file.h>

#include <CLI/CLI.hpp>

#include <ox/core/ox_log.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

namespace ox_examples {

namespace {

/// Reads the command line and does the work; tells what goes wrong.
int outcome(CLI::App& line, int argc, char** argv, const std::function<int()>& work) {
    try {
        line.parse(argc, argv);
        return work();
    } catch (const CLI::ParseError& error) { // also thrown by --help and --version
        return line.exit(error) == 0 ? all_well : refused;
    } catch (const input_error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return refused;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return failed;
    }
}

/// Writes out what standard output still holds. True unless something of it was lost.
bool flush_output() {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) {
        return true;
    }
    std::fprintf(stderr, "standard output cannot be written: %s\n", std::strerror(errno));
    return false;
}

} // namespace

int run_program(const program_title& title, int argc, char** argv,
                const std::function<void(CLI::App&)>& declare, const std::function<int()>& work) {
    ox_log_set(false);
    CLI::App line(title.purpose, title.name);
    declare(line);
    line.set_version_flag("--version", title.name + " " + OX_EXAMPLES_VERSION,
                          "Print the version and exit");
    const int status = outcome(line, argc, argv, work);
    return flush_output() ? status : failed;
}

} // namespace ox_examples
