// Small linear systems beside Eigen.

#include <random>

#include <bench/peers/eigen.h>
#include <bench/support/program.h>
#include <ox/ox_functions.h>

namespace {

using ox::ox_list;

constexpr int order = 8;

// That many different systems stay in the processor's caches.
constexpr int nb_different = 1000;

// Random numbers, and a large one in each row and column so that rounding stays small: not on the
// diagonal, so that rows are exchanged.
std::vector<float> random_matrix(std::mt19937& dice) {
    std::vector<float> matrix;
    for (int i = 0; i < order * order; ++i) {
        const bool is_large = i % order == (3 * (i / order) + 1) % order;
        matrix.push_back(static_cast<float>(dice() % 1000u) / 1000.0f + (is_large ? 8.0f : 0.0f));
    }
    return matrix;
}

std::shared_ptr<const peers::linear_systems> make_systems() {
    std::mt19937 dice(13);
    const auto made = std::make_shared<peers::linear_systems>();
    made->order = order;
    for (int i = 0; i < nb_different; ++i) {
        made->matrices.push_back(random_matrix(dice));
        made->right_sides.emplace_back();
        for (int k = 0; k < order; ++k) {
            made->right_sides.back().push_back(static_cast<float>(dice() % 1000u) / 1000.0f);
        }
    }
    return made;
}

ox_list<float> to_list(const std::vector<float>& numbers) {
    ox_list<float> list;
    for (const float number : numbers) {
        list.push_right(number);
    }
    return list;
}

struct solving {
    std::vector<ox_list<float>> matrices;
    std::vector<ox_list<float>> right_sides;
    double sum = 0.0;
};

solving make_solving(const peers::linear_systems& systems) {
    solving made;
    for (std::size_t i = 0; i < systems.matrices.size(); ++i) {
        made.matrices.push_back(to_list(systems.matrices[i]));
        made.right_sides.push_back(to_list(systems.right_sides[i]));
    }
    return made;
}

void solve(solving& s, long count) {
    for (long i = 0; i < count; ++i) {
        const std::size_t k = static_cast<std::size_t>(i) % s.matrices.size();
        for (const float unknown : ox_solve_system(s.matrices[k], s.right_sides[k])) {
            s.sum += static_cast<double>(unknown);
        }
    }
}

bench::contest solve_systems(long count) {
    const std::shared_ptr<const peers::linear_systems> systems = make_systems();
    bench::contest rules;
    rules.ours = bench::make_contestant(
        "ox_solve_system", [=] { return make_solving(*systems); },
        [=](solving& s) { solve(s, count); },
        [](const solving& s) {
            return std::vector<bench::fact>{{"sum of unknowns", s.sum, 1e-4}};
        });
    rules.peers = {peers::eigen_solve(systems, count)};
    rules.goal = 1.0;
    return rules;
}

} // namespace

int main(int argc, char** argv) {
    return bench::run_program(argc, argv,
                              {bench::workload{"systems of 8 equations solved",
                                               "systems",
                                               {1000, 10000, 100000},
                                               {1000, 3000, 10000},
                                               solve_systems}
                                   .judged_from(100000)});
}
