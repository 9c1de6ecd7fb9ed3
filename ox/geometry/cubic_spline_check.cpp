// The self-check of the cubic spline, against the sine.

#include <ox/geometry/ox_cubic_spline.h>

#include <cmath>

#include <ox/geometry/internal/tolerances.h>
#include <ox/internal/log_line.h>

namespace ox {

using namespace internal;

namespace {

double sine(float x) {
    return std::sin(static_cast<double>(x));
}

ox_list<ox_2dvector> sine_points() {
    ox_list<ox_2dvector> points;
    for (float x = 0.0f; x < 2.1f; x = x + 0.5f) {
        points.push_right(ox_2dvector(x, static_cast<float>(sine(x))));
    }
    return points;
}

/// Calls `check(x)` for x from 0 to 2 in steps of 0.1 until it says false; tells whether none did.
template <typename checker>
bool for_each_sample(const checker& check) {
    for (float x = 0.0f; x < 2.05f; x = x + 0.1f) {
        if (!check(x)) {
            return false;
        }
    }
    return true;
}

void log_table(const char* title, const ox_list<float>& numbers) {
    ox_log_thread_safe(title);
    for (const float number : numbers) {
        log_line("\t%f", static_cast<double>(number));
    }
}

} // namespace

void ox_cubic_spline::log_tables() {
    ox_log_thread_safe("ox_cubic_spline::unitary_test did not pass : ");
    log_table("h:", widths);
    log_table("M:", second_derivatives);
    log_table("C:", linear_coefficients);
    log_table("C':", constant_coefficients);
    ox_log_thread_safe("calculation");
    for_each_sample([this](float x) {
        log_line("\tx = %f, %f - %f", static_cast<double>(x), static_cast<double>(compute(x)),
                 sine(x));
        return true;
    });
}

bool ox_cubic_spline::unitary_test() {
    ox_cubic_spline spline(sine_points());
    const bool passed = for_each_sample([&spline](float x) {
        return std::fabs(static_cast<double>(spline.compute(x)) - sine(x)) < spline_check_error;
    });
    if (!passed) {
        spline.log_tables();
    }
    return passed;
}

} // namespace ox
