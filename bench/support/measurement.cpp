#include "measurement.h"

#include <malloc.h>
#include <time.h>

#include <algorithm>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "isolation.h"

namespace bench {
namespace {

double seconds_now(clock_kind clock) {
    timespec now = {};
    clock_gettime(clock == clock_kind::wall ? CLOCK_MONOTONIC : CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

bool agree(const fact& a, const fact& b, double tolerance) {
    const double larger = std::max(std::abs(a.value), std::abs(b.value));
    return std::abs(a.value - b.value) <= tolerance * larger; // false for what is not a number
}

// Compares what a peer (or a formula) came to with what the library came to.
void compare(const std::string& name, const std::vector<fact>& others,
             const std::vector<fact>& ours, std::vector<std::string>& disagreements) {
    for (const fact& other : others) {
        const auto own = std::find_if(ours.begin(), ours.end(),
                                      [&](const fact& f) { return f.name == other.name; });
        std::ostringstream text;
        text.precision(9);
        if (own == ours.end()) {
            text << other.name << " is told by " << name << " alone";
        } else if (!agree(*own, other, std::max(own->tolerance, other.tolerance))) {
            text << other.name << " is " << own->value << ", but " << other.value << " by " << name;
        } else {
            continue;
        }
        disagreements.push_back(text.str());
    }
}

void keep_least(std::vector<cost>& phases, const std::vector<phase>& timed) {
    for (const phase& p : timed) {
        const auto known = std::find_if(phases.begin(), phases.end(),
                                        [&](const cost& c) { return c.name == p.name; });
        if (known == phases.end()) {
            phases.push_back({p.name, p.seconds, 0.0});
        } else {
            known->seconds = std::min(known->seconds, p.seconds);
        }
    }
}

// The run is prepared on this side, so that what contestants keep for all runs is made once.
double peak_of(const contestant& who) {
    const std::unique_ptr<trial> once = who.prepare();
    return std::stod(
        run_isolated([&] { return std::to_string(peak_mebibytes([&] { once->run(); })); }));
}

// Every run starts without memory left over from the last one, ours and theirs alike.
void run_once(const contestant& who, clock_kind clock, cost& needed, std::vector<fact>& facts,
              std::vector<cost>* phases) {
    const std::unique_ptr<trial> one = who.prepare();
    malloc_trim(0);
    const double start = seconds_now(clock);
    one->run();
    needed.seconds = std::min(needed.seconds, seconds_now(clock) - start);
    if (facts.empty()) {
        facts = one->facts();
    }
    if (phases != nullptr) {
        keep_least(*phases, one->phases());
    }
}

bool is_enough(const measurement& done, const patience& limits, double seconds) {
    if ((done.rounds > 0 && seconds > limits.longest_seconds) ||
        done.rounds >= limits.most_rounds) {
        return true;
    }
    return done.rounds >= limits.least_rounds && seconds > limits.enough_seconds;
}

measurement measure_here(const contest& measured, const patience& limits, clock_kind clock) {
    std::vector<contestant> all = {measured.ours};
    std::copy_if(measured.peers.begin(), measured.peers.end(), std::back_inserter(all),
                 [](const contestant& peer) { return peer.is_present(); });
    measurement made;
    std::vector<std::vector<fact>> facts(all.size());
    for (const contestant& who : all) {
        made.costs.push_back({who.name, HUGE_VAL, peak_of(who)});
    }
    const double start = seconds_now(clock_kind::wall);
    while (!is_enough(made, limits, seconds_now(clock_kind::wall) - start)) {
        for (std::size_t i = 0; i < all.size(); ++i) {
            run_once(all[i], clock, made.costs[i], facts[i], i == 0 ? &made.phases : nullptr);
        }
        ++made.rounds;
    }
    compare("the formula", measured.expected, facts[0], made.disagreements);
    for (std::size_t i = 1; i < all.size(); ++i) {
        compare(all[i].name, facts[i], facts[0], made.disagreements);
    }
    return made;
}

// A measurement travels from its process as lines of tab-separated fields.
std::string to_text(const measurement& made) {
    std::ostringstream text;
    text.precision(17);
    text << "rounds\t" << made.rounds << "\n";
    for (const cost& c : made.costs) {
        text << "cost\t" << c.name << "\t" << c.seconds << "\t" << c.mebibytes << "\n";
    }
    for (const cost& c : made.phases) {
        text << "phase\t" << c.name << "\t" << c.seconds << "\t0\n";
    }
    for (const std::string& d : made.disagreements) {
        text << "disagreement\t" << d << "\n";
    }
    return text.str();
}

cost cost_from(std::istream& fields) {
    cost read;
    std::getline(fields, read.name, '\t');
    fields >> read.seconds >> read.mebibytes;
    return read;
}

measurement from_text(const std::string& text) {
    measurement made;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string kind;
        std::getline(fields, kind, '\t');
        if (kind == "rounds") {
            fields >> made.rounds;
        } else if (kind == "cost") {
            made.costs.push_back(cost_from(fields));
        } else if (kind == "phase") {
            made.phases.push_back(cost_from(fields));
        } else {
            made.disagreements.push_back(line.substr(kind.size() + 1));
        }
    }
    return made;
}

} // namespace

measurement measure(const contest& measured, const patience& limits, clock_kind clock) {
    return from_text(run_isolated([&] { return to_text(measure_here(measured, limits, clock)); }));
}

} // namespace bench
