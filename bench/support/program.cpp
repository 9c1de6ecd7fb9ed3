#include "program.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>

#include "measurement.h"
#include "report.h"

namespace bench {
namespace {

constexpr patience full_patience = {5, 25, 1.0, 240.0};
constexpr patience quick_patience = {2, 5, 0.2, 12.0};

struct options {
    bool quick = false;
    bool list = false;
    clock_kind clock = clock_kind::wall;
    std::string rows_path;
    std::string only;
};

bool parse(int argc, char** argv, options& parsed) {
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "--quick") {
            parsed.quick = true;
        } else if (argument == "--cpu-time") {
            parsed.clock = clock_kind::processor;
        } else if (argument == "--list") {
            parsed.list = true;
        } else if (argument.rfind("--rows=", 0) == 0) {
            parsed.rows_path = argument.substr(7);
        } else if (argument.rfind("--only=", 0) == 0) {
            parsed.only = argument.substr(7);
        } else {
            std::fprintf(stderr,
                         "usage: %s [--quick] [--rows=FILE] [--only=TEXT] [--cpu-time] [--list]\n",
                         argv[0]);
            return false;
        }
    }
    return true;
}

// Tells whether all sizes ended well and in agreement.
bool run_workload(const workload& measured, const options& chosen, report& rows) {
    const std::vector<long>& sizes = chosen.quick ? measured.quick_sizes : measured.sizes;
    std::vector<double> seconds;
    bool is_well = true;
    for (const long size : sizes) {
        try {
            contest rules = measured.make(size);
            if (size < measured.goal_from) {
                rules.goal = 0.0;
                rules.seconds_goal = 0.0;
            }
            const measurement made =
                measure(rules, chosen.quick ? quick_patience : full_patience, chosen.clock);
            rows.add_row(measured, size, rules, made);
            seconds.push_back(made.costs.front().seconds);
            is_well = is_well && made.disagreements.empty();
        } catch (const std::exception& failure) {
            std::printf("%s, %ld: FAILED: %s\n", measured.name.c_str(), size, failure.what());
            return false;
        }
    }
    rows.add_growth(measured, sizes, seconds);
    return is_well;
}

} // namespace

int run_program(int argc, char** argv, const std::vector<workload>& workloads) {
    options chosen;
    if (!parse(argc, argv, chosen)) {
        return 2;
    }
    if (chosen.list) {
        for (const workload& listed : workloads) {
            std::printf("%s\n", listed.name.c_str());
        }
        return EXIT_SUCCESS;
    }
    const std::string name = std::filesystem::path(argv[0]).filename().string();
    report rows(name, chosen.rows_path, chosen.quick, chosen.clock);
    bool is_well = true;
    for (const workload& measured : workloads) {
        if (measured.name.find(chosen.only) != std::string::npos) {
            is_well = run_workload(measured, chosen, rows) && is_well;
        }
    }
    return is_well ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace bench
