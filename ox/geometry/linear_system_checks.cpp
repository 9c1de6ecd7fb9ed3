// The self-checks of the linear systems: random problems, solved and multiplied out again.

#include <ox/ox_functions.h>

#include <cmath>

#include <ox/core/ox_random.h>
#include <ox/geometry/internal/tolerances.h>
#include <ox/internal/log_line.h>

namespace ox {

using namespace internal;

namespace {

constexpr int check_seed = 54873;
constexpr int trials = 100;
constexpr int order = 8;

ox_list<float> random_numbers(ox_random& random, int n) {
    ox_list<float> numbers(n);
    for (float& number : numbers) {
        number = random.dice_0_1();
    }
    return numbers;
}

/// The product of a matrix of the checks' order and one of `columns` columns.
ox_list<float> product(const ox_list<float>& a, const ox_list<float>& b, int columns) {
    ox_list<float> result(order * columns);
    for (int r = 0; r < order; ++r) {
        for (int c = 0; c < columns; ++c) {
            float sum = 0.0f;
            for (int k = 0; k < order; ++k) {
                sum += a[r * order + k] * b[k * columns + c];
            }
            result[r * columns + c] = sum;
        }
    }
    return result;
}

bool agree(const ox_list<float>& computed, const ox_list<float>& expected) {
    for (int i = 0; i < expected.size(); ++i) {
        if (!(std::fabs(computed[i] - expected[i]) <= linear_check_error)) {
            return false;
        }
    }
    return true;
}

void log_differences(const ox_list<float>& computed, const ox_list<float>& expected) {
    for (int i = 0; i < expected.size(); ++i) {
        log_line("\t %f != %f", static_cast<double>(computed[i]), static_cast<double>(expected[i]));
    }
}

/// What one kind of check solves, and what it calls it in the log.
struct checked_problem {
    const char* name;
    const char* solution_name;
    ox_list<float> expected; ///< the product of the matrix and the solution
};

/// Multiplies out the solution of one problem, which is empty where there is none.
bool check(const checked_problem& problem, const ox_list<float>& matrix,
           const ox_list<float>& solution, int trial) {
    if (solution.size() == 0) {
        log_line("%s %d is not inversible", problem.name, trial);
        return false;
    }
    const ox_list<float> computed = product(matrix, solution, problem.expected.size() / order);
    const bool passed = agree(computed, problem.expected);
    if (!passed) {
        log_line("%s %d is wrong", problem.solution_name, trial);
        log_differences(computed, problem.expected);
    }
    return passed;
}

ox_list<float> identity_matrix() {
    ox_list<float> identity(order * order);
    for (int i = 0; i < order * order; ++i) {
        identity[i] = i % (order + 1) == 0 ? 1.0f : 0.0f;
    }
    return identity;
}

bool check_inverse(ox_random& random, int trial) {
    const checked_problem inversion = {"matrix", "reverse matrix", identity_matrix()};
    const ox_list<float> matrix = random_numbers(random, order * order);
    return check(inversion, matrix, ox_reverse_matrix(matrix), trial);
}

bool check_solution(ox_random& random, int trial) {
    const ox_list<float> matrix = random_numbers(random, order * order);
    const checked_problem system = {"system", "system", random_numbers(random, order)};
    return check(system, matrix, ox_solve_system(matrix, system.expected), trial);
}

/// Runs all trials of a check and logs how many passed; true if all did.
bool run_trials(const char* title, bool (*passes)(ox_random& random, int trial)) {
    ox_log_thread_safe(title);
    ox_random random(check_seed);
    int passed = 0;
    for (int trial = 0; trial < trials; ++trial) {
        passed += passes(random, trial) ? 1 : 0;
    }
    log_line("result : %d / %d", passed, trials);
    return passed == trials;
}

} // namespace

bool oxut_reverse_matrix() {
    return run_trials("oxut_reverse_matrix", check_inverse);
}

bool oxut_solve_system() {
    return run_trials("oxut_solve_system", check_solution);
}

} // namespace ox
