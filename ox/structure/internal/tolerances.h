#ifndef OX_STRUCTURE_INTERNAL_TOLERANCES_H
#define OX_STRUCTURE_INTERNAL_TOLERANCES_H

namespace ox::internal {

/// Model units between two lines of a sweep, at the least: keeps the number of lines finite.
constexpr float smallest_sweep_step = 0.001f;

/// A gibibyte of memory: larger pictures of the shares are not made.
constexpr double most_pixels = 268435456.0;

} // namespace ox::internal

#endif
