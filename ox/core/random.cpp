#include <limits>
#include <ox/core/internal/tolerances.h>
#include <ox/core/ox_random.h>
#include <random>

namespace ox {

struct oxp_random {
    explicit oxp_random(int seed) : engine(static_cast<std::mt19937::result_type>(seed)) {}

    /// The engine gives 32 bits, in a type that may be wider.
    unsigned int draw() { return static_cast<unsigned int>(engine()); }

    std::mt19937 engine;
};

ox_random::ox_random(int seed) : state(std::make_unique<oxp_random>(seed)) {}

ox_random::ox_random(const ox_random& other) : state(std::make_unique<oxp_random>(*other.state)) {}

ox_random& ox_random::operator=(const ox_random& other) {
    *state = *other.state;
    return *this;
}

ox_random::~ox_random() = default;

// Unsigned arithmetic wraps around, so every pair of bounds is a range of at least one number.
int ox_random::dice(int a, int b) {
    constexpr unsigned int largest = (std::numeric_limits<unsigned int>::max)();
    const unsigned int first = static_cast<unsigned int>(a);
    const unsigned int span = static_cast<unsigned int>(b) - first;
    if (span == largest) {
        return static_cast<int>(first + state->draw());
    }
    const unsigned int n = span + 1;
    if (n == 1) {
        return a;
    }
    // The draws above the last whole multiple of n would favour the first numbers of the range.
    const bool every_draw_is_fair = largest % n == n - 1;
    unsigned int draw = state->draw();
    while (draw / n >= largest / n && !every_draw_is_fair) {
        draw = state->draw();
    }
    return static_cast<int>(first + draw % n);
}

float ox_random::dice_0_1() {
    constexpr int steps = 1000000;
    return static_cast<float>(dice(0, steps)) / static_cast<float>(steps);
}

ox_3dvector ox_random::dice_vector() {
    for (;;) {
        const float x = 2.f * dice_0_1() - 1.f;
        const float y = 2.f * dice_0_1() - 1.f;
        const float z = 2.f * dice_0_1() - 1.f;
        const float squared_length = x * x + y * y + z * z;
        if (squared_length > random_direction_min_squared_length && squared_length < 1.f) {
            ox_3dvector direction(x, y, z);
            direction.normalize();
            return direction;
        }
    }
}

} // namespace ox
