#include <ox/core/ox_random.h>

#include <limits>

#include <ox/core/internal/mersenne_twister.h>

namespace ox {

using namespace internal;

struct ox_random_state {
    explicit ox_random_state(int seed) : engine(static_cast<unsigned int>(seed)) {}

    mersenne_twister engine;
};

ox_random::ox_random(int seed) : state(std::make_unique<ox_random_state>(seed)) {}

ox_random::ox_random(const ox_random& other)
    : state(std::make_unique<ox_random_state>(*other.state)) {}

ox_random& ox_random::operator=(const ox_random& other) {
    *state = *other.state;
    return *this;
}

ox_random::ox_random(ox_random&& other) : ox_random() {
    swap(other);
}

ox_random& ox_random::operator=(ox_random&& other) noexcept {
    swap(other);
    return *this;
}

void ox_random::swap(ox_random& other) noexcept {
    state.swap(other.state);
}

ox_random::~ox_random() = default;

namespace {

/// Squared length (no unit, the ball has radius 1) up to which a point drawn in the unit ball is
/// drawn again: so close to the centre the grid of a millionth leaves few directions to choose
/// from.
constexpr float random_direction_min_squared_length = 0.001f;

constexpr unsigned int largest_draw = (std::numeric_limits<unsigned int>::max)();

/// A number of [0, n) for n above 1. Draws from the last whole multiple of n on are rejected, as
/// they would favour the first numbers; but no draw of the generator is when n divides their count.
inline unsigned int draw_below(unsigned int n, mersenne_twister& engine) {
    const bool every_draw_is_fair = largest_draw % n == n - 1;
    const unsigned int first_rejected = largest_draw / n * n;
    unsigned int draw = engine.draw();
    while (draw >= first_rejected && !every_draw_is_fair) {
        draw = engine.draw();
    }
    return draw % n;
}

} // namespace

/// Unsigned arithmetic wraps around, so every pair of bounds is a range of at least one number.
int ox_random::dice(int a, int b) {
    const unsigned int first = static_cast<unsigned int>(a);
    const unsigned int span = static_cast<unsigned int>(b) - first;
    if (span == largest_draw) {
        return static_cast<int>(first + state->engine.draw());
    }
    return span == 0 ? a : static_cast<int>(first + draw_below(span + 1, state->engine));
}

/// The same as dice(0, steps), by divisions whose divisor the compiler knows.
float ox_random::dice_0_1() {
    constexpr unsigned int steps = 1000000;
    return static_cast<float>(draw_below(steps + 1, state->engine)) / static_cast<float>(steps);
}

ox_3dvector ox_random::dice_vector() {
    for (;;) {
        const float x = 2.0f * dice_0_1() - 1.0f;
        const float y = 2.0f * dice_0_1() - 1.0f;
        const float z = 2.0f * dice_0_1() - 1.0f;
        const float squared_length = x * x + y * y + z * z;
        if (squared_length > random_direction_min_squared_length && squared_length < 1.0f) {
            ox_3dvector direction(x, y, z);
            direction.normalize();
            return direction;
        }
    }
}

} // namespace ox
