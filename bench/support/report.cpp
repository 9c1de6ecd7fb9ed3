#include "report.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "json_object.h"

namespace bench {
namespace {

constexpr std::size_t fewest_sizes_for_growth = 3;

// Above this load other work disturbs the figures.
constexpr double highest_calm_load = 0.5;

// What noise may add to a fitted exponent.
constexpr double exponent_tolerance = 0.05;

// The mean number of running processes in the last minute.
double current_load() {
    double load = 0.0;
    return getloadavg(&load, 1) == 1 ? load : 0.0;
}

const char* met_text(bool is_met) {
    return is_met ? "met" : "NOT MET";
}

std::string time_text(double seconds) {
    char text[32];
    if (seconds < 1e-3) {
        std::snprintf(text, sizeof text, "%.3g us", seconds * 1e6);
    } else if (seconds < 1.0) {
        std::snprintf(text, sizeof text, "%.3g ms", seconds * 1e3);
    } else {
        std::snprintf(text, sizeof text, "%.3g s", seconds);
    }
    return text;
}

std::string number_text(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.3g", number);
    return text;
}

const cost* find_cost(const measurement& made, const std::string& name) {
    for (const cost& c : made.costs) {
        if (c.name == name) {
            return &c;
        }
    }
    return nullptr;
}

// The peer that the goal is about, null when it is not installed.
const cost* judged_peer(const contest& rules, const measurement& made) {
    return rules.peers.empty() ? nullptr : find_cost(made, rules.peers.front().name);
}

std::string verdict_of(const contest& rules, const measurement& made) {
    const cost& ours = made.costs.front();
    const cost* const peer = judged_peer(rules, made);
    if (rules.seconds_goal != 0.0) {
        return met_text(ours.seconds <= rules.seconds_goal);
    }
    if (rules.goal == 0.0) {
        return "";
    }
    return peer == nullptr ? "no peer" : met_text(ours.seconds <= rules.goal * peer->seconds);
}

std::string goal_text(const contest& rules) {
    if (rules.seconds_goal != 0.0) {
        return time_text(rules.seconds_goal);
    }
    return rules.goal != 0.0 ? number_text(rules.goal) : "";
}

void print_row(const workload& measured, long size, const contest& rules, const measurement& made,
               const std::string& verdict) {
    const cost& ours = made.costs.front();
    const cost* const peer = judged_peer(rules, made);
    std::printf("%-58s %10ld %10s  %-36s %7s %7s %-8s %6d %8.1f\n", measured.name.c_str(), size,
                time_text(ours.seconds).c_str(), peer ? peer->name.c_str() : "",
                peer ? number_text(ours.seconds / peer->seconds).c_str() : "",
                goal_text(rules).c_str(), verdict.c_str(), made.rounds, ours.mebibytes);
    for (std::size_t i = 1; i < made.costs.size(); ++i) {
        std::printf("    %-65s %10s  %54s %14.1f\n", made.costs[i].name.c_str(),
                    time_text(made.costs[i].seconds).c_str(), "", made.costs[i].mebibytes);
    }
    for (const cost& c : made.phases) {
        std::printf("    phase %-59s %10s\n", c.name.c_str(), time_text(c.seconds).c_str());
    }
    for (const std::string& disagreement : made.disagreements) {
        std::printf("    DISAGREES: %s\n", disagreement.c_str());
    }
    std::fflush(stdout);
}

} // namespace

double growth_exponent(const std::vector<long>& sizes, const std::vector<double>& seconds) {
    const double n = static_cast<double>(sizes.size());
    double sum_x = 0.0, sum_y = 0.0, sum_xx = 0.0, sum_xy = 0.0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const double x = std::log(static_cast<double>(sizes[i]));
        const double y = std::log(seconds[i]);
        sum_x += x;
        sum_y += y;
        sum_xx += x * x;
        sum_xy += x * y;
    }
    return (n * sum_xy - sum_x * sum_y) / (n * sum_xx - sum_x * sum_x);
}

report::report(std::string reported, const std::string& rows_path, bool quick, clock_kind clock)
    : program(std::move(reported)) {
    if (!rows_path.empty()) {
        rows.open(rows_path, std::ios::app);
    }
    json_object object;
    object.add("kind", std::string("program"));
    object.add("program", program);
    object.add("compiler", std::string(__VERSION__));
    object.add("quick", quick);
    object.add("clock", std::string(clock == clock_kind::wall ? "wall-clock" : "processor"));
    object.add("load", current_load());
    write(object.str());
    if (current_load() > highest_calm_load) {
        std::fprintf(stderr, "The load is %.1f: other work disturbs the figures.\n",
                     current_load());
    }
    std::printf("%-58s %10s %10s  %-36s %7s %7s %-8s %6s %8s\n", program.c_str(), "size", "ours",
                "peer", "ratio", "goal", "", "rounds", "MiB");
}

void report::write(const std::string& object) {
    if (rows.is_open()) {
        rows << object << std::endl; // complete, should a later measurement end the program
    }
}

void report::add_row(const workload& measured, long size, const contest& rules,
                     const measurement& made) {
    const std::string verdict = verdict_of(rules, made);
    json_object object;
    object.add("kind", std::string("row"));
    object.add("program", program);
    object.add("workload", measured.name);
    object.add("size", static_cast<double>(size));
    object.add("unit", measured.unit);
    object.add("costs", made.costs);
    object.add("phases", made.phases);
    object.add("goal", rules.goal);
    object.add("seconds_goal", rules.seconds_goal);
    object.add("stretch", rules.stretch);
    object.add("goal_peer", rules.peers.empty() ? std::string() : rules.peers.front().name);
    object.add("verdict", verdict);
    object.add("rounds", static_cast<double>(made.rounds));
    object.add("agrees", made.disagreements.empty());
    write(object.str());
    print_row(measured, size, rules, made, verdict);
}

void report::add_growth(const workload& measured, const std::vector<long>& sizes,
                        const std::vector<double>& seconds) {
    if (sizes.size() < fewest_sizes_for_growth) {
        return;
    }
    const double exponent = growth_exponent(sizes, seconds);
    const double goal = measured.growth_goal;
    const std::string verdict = goal == 0.0 ? "" : met_text(exponent <= goal + exponent_tolerance);
    json_object object;
    object.add("kind", std::string("growth"));
    object.add("program", program);
    object.add("workload", measured.name);
    object.add("unit", measured.unit);
    object.add("first", static_cast<double>(sizes.front()));
    object.add("last", static_cast<double>(sizes.back()));
    object.add("exponent", exponent);
    object.add("goal", goal);
    object.add("verdict", verdict);
    write(object.str());
    std::printf("    grows with N^%.2f%s%s %s\n", exponent, goal != 0.0 ? ", goal N^" : "",
                goal != 0.0 ? number_text(goal).c_str() : "", verdict.c_str());
    std::fflush(stdout);
}

} // namespace bench
