#ifndef OX_SOLID_INTERNAL_CSG_WORKING_GRID_H
#define OX_SOLID_INTERNAL_CSG_WORKING_GRID_H

#include <array>
#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/csg/arrangement.h>
#include <ox/solid/internal/csg/operand.h>

namespace ox::internal::csg {

/// The integer grid that a combination is evaluated on. Its step is a power of two, as fine as
/// coordinates of 34 bits allow, so that floats within ten binary orders of the largest one keep
/// their exact value, and conversions round once.
class working_grid {
public:
    /// The grid for the vertices of all operands, those that are not finite left aside. `tolerance`
    /// is in model units.
    working_grid(const std::vector<operand>& operands, float tolerance);

    /// The nearest point of the grid.
    grid_point to_grid(const ox_3dvector& vertex) const;

    /// A point in steps, exact but for one rounding of a double.
    std::array<double, 3> to_steps(const ox_3dvector& vertex) const;

    /// The nearest point of the grid to one in steps.
    static grid_point round(const std::array<double, 3>& point);

    /// The nearest floats.
    ox_3dvector to_model(const grid_point& point) const;

    /// The tolerance in steps; not below twice the spacing of the floats, unless it is 0.
    double get_tolerance() const { return tolerance; }

    /// The spacing of the largest floats, in steps.
    double get_float_spacing() const { return float_spacing; }

private:
    double step;
    double tolerance;
    double float_spacing;
};

/// The vector from `a` to `b`, exact.
inline std::array<double, 3> difference(const grid_point& a, const grid_point& b) {
    return {static_cast<double>(b.x - a.x), static_cast<double>(b.y - a.y),
            static_cast<double>(b.z - a.z)};
}

inline double dot(const std::array<double, 3>& a, const std::array<double, 3>& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline std::array<double, 3> cross(const std::array<double, 3>& a, const std::array<double, 3>& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline bool operator==(const grid_point& a, const grid_point& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

} // namespace ox::internal::csg

#endif
