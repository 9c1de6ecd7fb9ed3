#ifndef OX_EXAMPLES_SUPPORT_DOUBLE_VECTOR_H
#define OX_EXAMPLES_SUPPORT_DOUBLE_VECTOR_H

#include <ox/geometry/ox_3dvector.h>

#include <array>

namespace ox_examples {

/// A vector in double precision, for sums over many triangles and for rays between them.
using double_vector = std::array<double, 3>;

/// `a - b`, exact as far as double precision goes.
inline double_vector difference(const ox::ox_3dvector& a, const ox::ox_3dvector& b) {
    return {double{a.x} - double{b.x}, double{a.y} - double{b.y}, double{a.z} - double{b.z}};
}

inline double_vector cross(const double_vector& a, const double_vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline double dot(const double_vector& a, const double_vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace ox_examples

#endif
