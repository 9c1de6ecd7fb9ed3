#ifndef OX_CORE_INTERNAL_TOLERANCES_H
#define OX_CORE_INTERNAL_TOLERANCES_H

namespace ox::internal {

/// Squared length (no unit, the ball has radius 1) up to which a point drawn in the unit ball is
/// drawn again: so close to the centre the grid of a millionth leaves few directions to choose
/// from.
constexpr float random_direction_min_squared_length = 0.001f;

} // namespace ox::internal

#endif
