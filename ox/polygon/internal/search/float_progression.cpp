#include <ox/polygon/internal/search/float_progression.h>

#include <algorithm>
#include <cmath>

namespace ox::internal {

float_progression::float_progression(float first, float end, float increment) : step(increment) {
    float next_value = first;
    while (next_value < end) {
        runs.push_back({count, next_value});
        count += length_of_exact_run(next_value, end);
        const float last = at(count - 1);
        const float next = last + step;
        if (!(next > last)) {
            break;
        }
        next_value = next;
    }
}

float float_progression::at(int i) const {
    const auto next = std::upper_bound(
        runs.begin(), runs.end(), i, [](int index, const run& r) { return index < r.first_index; });
    const run& containing = *(next - 1);
    return static_cast<float>(containing.first +
                              static_cast<double>(i - containing.first_index) * step);
}

/// How many coordinates from `first` on, and below `end`, are exact sums. Towards zero every sum is
/// exact once the first one is, since floats only become denser there. Away from zero all sums
/// below the next power of two are.
int float_progression::length_of_exact_run(float first, float end) const {
    const double exact_sum = static_cast<double>(first) + step;
    const bool first_step_is_exact = static_cast<double>(first + step) == exact_sum;
    const bool below_one_step = first >= 0.0f && first < step;
    if (!first_step_is_exact || below_one_step) {
        return 1;
    }
    const double limit = first < 0.0f ? 0.0 : std::ldexp(1.0, std::ilogb(first) + 1);
    const double span = std::min(limit, static_cast<double>(end)) - first;
    return static_cast<int>(std::ceil(span / step));
}

} // namespace ox::internal
