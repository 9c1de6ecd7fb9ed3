#ifndef OX_INTERNAL_ANGLES_H
#define OX_INTERNAL_ANGLES_H

#include <cmath>

namespace ox::internal {

// Angles are floats in radians; the functions are evaluated in double precision and rounded
// back, so that every machine gives the same float.

constexpr float half_turn = 3.1415927f;
constexpr float quarter_turn = 1.5707964f;

inline float rounded_cos(float angle) {
    return static_cast<float>(std::cos(static_cast<double>(angle)));
}

inline float rounded_sin(float angle) {
    return static_cast<float>(std::sin(static_cast<double>(angle)));
}

inline float rounded_acos(float cosine) {
    return static_cast<float>(std::acos(static_cast<double>(cosine)));
}

inline float rounded_asin(float sine) {
    return static_cast<float>(std::asin(static_cast<double>(sine)));
}

inline float to_degrees(float angle) {
    return angle * 180.0f / half_turn;
}

} // namespace ox::internal

#endif
