#ifndef TESTS_GEOMETRY_SUPPORT_H
#define TESTS_GEOMETRY_SUPPORT_H

#include <array>
#include <cstring>
#include <limits>
#include <random>

#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>

namespace geometry_test {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float not_a_number = std::numeric_limits<float>::quiet_NaN();
constexpr float smallest = std::numeric_limits<float>::denorm_min();
constexpr float largest = std::numeric_limits<float>::max();

/// Numbers that break careless arithmetic.
constexpr std::array<float, 14> hostile_values = {
    not_a_number, infinity, -infinity, 0.f,    -0.f,   smallest, -smallest,
    largest,      -largest, 1e30f,     -1e30f, 1e-30f, 1.f,      -1.f};

/// Calls `visit` with every vector made of hostile values.
template <typename Visitor>
void for_each_hostile_vector(Visitor visit) {
    for (const float x : hostile_values) {
        for (const float y : hostile_values) {
            for (const float z : hostile_values) {
                visit(ox::ox_3dvector(x, y, z));
            }
        }
    }
}

/// True if both values have the same bits, so that 0 differs from -0 and a NaN equals itself.
template <typename T>
bool same_bits(const T& a, const T& b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

/// Repeatable random numbers: the generator's output is the same everywhere, and so is the
/// arithmetic on it, which the standard distributions do not promise. Draw once per statement:
/// compilers choose the order of several draws in one.
class sampler {
public:
    explicit sampler(unsigned int seed) : source(seed) {}

    /// A number in [low, high].
    float number(float low, float high) {
        const double share = static_cast<double>(source()) / 4294967295.0;
        return low + static_cast<float>(share) * (high - low);
    }

    /// A vector of the plane with both components in [-reach, reach].
    ox::ox_2dvector plane_vector(float reach) {
        const float x = number(-reach, reach);
        const float y = number(-reach, reach);
        return ox::ox_2dvector(x, y);
    }

    /// A vector with each component in [-reach, reach].
    ox::ox_3dvector vector(float reach) {
        const float x = number(-reach, reach);
        const float y = number(-reach, reach);
        const float z = number(-reach, reach);
        return ox::ox_3dvector(x, y, z);
    }

    /// A vector of length 1.
    ox::ox_3dvector direction() {
        ox::ox_3dvector v;
        do {
            v = vector(1.f);
        } while (v.size() < 0.1f || v.size() > 1.f);
        v.normalize();
        return v;
    }

private:
    std::mt19937 source;
};

} // namespace geometry_test

#endif
