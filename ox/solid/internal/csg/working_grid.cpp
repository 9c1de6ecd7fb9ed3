#include <ox/solid/internal/csg/working_grid.h>

#include <algorithm>
#include <cmath>

#include <ox/internal/vectors.h>

namespace ox::internal::csg {

namespace {

/// Bits of the largest coordinate of an operand. A half-space is a box of up to eight times that
/// size, which must fit the 37 bits of the arrangement.
constexpr int coordinate_bits = 34;

/// Bits of a float behind its first.
constexpr int float_bits = 23;

double largest_coordinate(const std::vector<operand>& operands) {
    float largest = 0.0f;
    for (const operand& given : operands) {
        for (const ox_3dvector& v : given.vertices) {
            if (is_finite(v)) {
                largest = std::max({largest, std::fabs(v.x), std::fabs(v.y), std::fabs(v.z)});
            }
        }
    }
    return largest;
}

std::int64_t nearest(double value) {
    return static_cast<std::int64_t>(std::nearbyint(value));
}

} // namespace

working_grid::working_grid(const std::vector<operand>& operands, float model_tolerance) {
    int exponent = 0; // the largest coordinate is below 2^exponent
    const double largest = largest_coordinate(operands);
    std::frexp(largest > 0.0 ? largest : 1.0, &exponent);
    step = std::ldexp(1.0, exponent - coordinate_bits);
    float_spacing = std::ldexp(1.0, coordinate_bits - 1 - float_bits);
    tolerance = model_tolerance > 0.0f
                    ? std::max(static_cast<double>(model_tolerance) / step, 2.0 * float_spacing)
                    : 0.0;
}

std::array<double, 3> working_grid::to_steps(const ox_3dvector& vertex) const {
    return {static_cast<double>(vertex.x) / step, static_cast<double>(vertex.y) / step,
            static_cast<double>(vertex.z) / step};
}

grid_point working_grid::to_grid(const ox_3dvector& vertex) const {
    return round(to_steps(vertex));
}

grid_point working_grid::round(const std::array<double, 3>& point) {
    return {nearest(point[0]), nearest(point[1]), nearest(point[2])};
}

ox_3dvector working_grid::to_model(const grid_point& point) const {
    return ox_3dvector(static_cast<float>(static_cast<double>(point.x) * step),
                       static_cast<float>(static_cast<double>(point.y) * step),
                       static_cast<float>(static_cast<double>(point.z) * step));
}

} // namespace ox::internal::csg
