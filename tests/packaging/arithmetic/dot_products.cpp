// Prints one number made from the bits of 1,000 dot products, cross products and lengths, computed
// by the inline functions of the vectors. A compiler that fuses a product with a sum changes it.
#include <ox/geometry/ox_3dvector.h>

#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

class digest {
public:
    void add(float value) {
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        sum = (sum ^ bits) * 1099511628211u;
    }

    std::uint64_t sum = 14695981039346656037u;
};

// From -1 to 1; the numbers of a linear congruence.
float next_number(std::uint32_t& state) {
    state = state * 1664525u + 1013904223u;
    return static_cast<float>(state >> 8) / 8388608.0f - 1.0f;
}

ox::ox_3dvector next_vector(std::uint32_t& state) {
    const float x = next_number(state);
    const float y = next_number(state);
    const float z = next_number(state);
    return ox::ox_3dvector(x, y, z);
}

} // namespace

int main() {
    std::uint32_t state = 54873;
    digest results;
    for (int i = 0; i < 1000; ++i) {
        const ox::ox_3dvector a = next_vector(state);
        const ox::ox_3dvector b = next_vector(state);
        results.add(ox::ox_dot(a, b));
        const ox::ox_3dvector normal = ox::ox_cross(a, b);
        results.add(normal.x);
        results.add(normal.y);
        results.add(normal.z);
    }
    std::printf("%016" PRIx64 "\n", results.sum);
}
