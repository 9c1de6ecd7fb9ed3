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

bool log_result(int passed) {
    log_line("result : %d / %d", passed, trials);
    return passed == trials;
}

bool check_inverse(ox_random& random, const ox_list<float>& identity, int trial) {
    const ox_list<float> matrix = random_numbers(random, order * order);
    const ox_list<float> inverse = ox_reverse_matrix(matrix);
    if (inverse.size() == 0) {
        log_line("matrix %d is not inversible", trial);
        return false;
    }
    const ox_list<float> computed = product(matrix, inverse, order);
    const bool passed = agree(computed, identity);
    if (!passed) {
        log_line("reverse matrix %d is wrong", trial);
        log_differences(computed, identity);
    }
    return passed;
}

bool check_solution(ox_random& random, int trial) {
    const ox_list<float> matrix = random_numbers(random, order * order);
    const ox_list<float> right_side = random_numbers(random, order);
    const ox_list<float> solution = ox_solve_system(matrix, right_side);
    if (solution.size() == 0) {
        log_line("system %d is not inversible", trial);
        return false;
    }
    const ox_list<float> computed = product(matrix, solution, 1);
    const bool passed = agree(computed, right_side);
    if (!passed) {
        log_line("system %d is wrong", trial);
        log_differences(computed, right_side);
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

} // namespace

bool oxut_reverse_matrix() {
    ox_log_thread_safe("oxut_reverse_matrix");
    ox_random random(check_seed);
    const ox_list<float> identity = identity_matrix();
    int passed = 0;
    for (int trial = 0; trial < trials; ++trial) {
        passed += check_inverse(random, identity, trial) ? 1 : 0;
    }
    return log_result(passed);
}

bool oxut_solve_system() {
    ox_log_thread_safe("oxut_solve_system");
    ox_random random(check_seed);
    int passed = 0;
    for (int trial = 0; trial < trials; ++trial) {
        passed += check_solution(random, trial) ? 1 : 0;
    }
    return log_result(passed);
}

} // namespace ox
