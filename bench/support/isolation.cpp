#include "isolation.h"

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>

namespace bench {
namespace {

void write_all(int file, const std::string& text) {
    for (std::size_t done = 0; done < text.size();) {
        const ssize_t written = write(file, text.data() + done, text.size() - done);
        if (written <= 0) {
            _exit(EXIT_FAILURE);
        }
        done += static_cast<std::size_t>(written);
    }
}

[[noreturn]] void be_the_child(int file, const std::function<std::string()>& work) {
    try {
        write_all(file, work());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        _exit(EXIT_FAILURE);
    }
    _exit(EXIT_SUCCESS);
}

std::string read_all(int file) {
    std::string text;
    char block[4096];
    for (ssize_t length; (length = read(file, block, sizeof block)) > 0;) {
        text.append(block, static_cast<std::size_t>(length));
    }
    return text;
}

// A line of /proc/self/status, which is in kB.
double status_mebibytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.compare(0, key.size(), key) == 0) {
            return std::atof(line.c_str() + key.size()) / 1024.0;
        }
    }
    return 0.0;
}

// From here on VmHWM counts anew.
void reset_peak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace

std::string run_isolated(const std::function<std::string()>& work) {
    std::fflush(stdout);
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        be_the_child(ends[1], work);
    }
    close(ends[1]);
    const std::string text = read_all(ends[0]);
    close(ends[0]);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
        throw std::runtime_error("a measurement ended abnormally");
    }
    return text;
}

double peak_mebibytes(const std::function<void()>& work) {
    malloc_trim(0);
    reset_peak();
    const double before = status_mebibytes("VmRSS:");
    work();
    return status_mebibytes("VmHWM:") - before;
}

} // namespace bench
