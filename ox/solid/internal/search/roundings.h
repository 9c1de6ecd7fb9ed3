#ifndef OX_SOLID_INTERNAL_SEARCH_ROUNDINGS_H
#define OX_SOLID_INTERNAL_SEARCH_ROUNDINGS_H

namespace ox::internal {

// What a rejection leaves room for, so that it is never wrong: none of these values changes a
// result.

/// Model units: boxes at least this far apart, roundings aside, do not touch for a polygon, which
/// takes boxes 0.0001 apart for touching.
constexpr double box_rejection_margin = 0.0002;

/// Twice the largest relative error of a single-precision operation, rounded up.
constexpr double rounding_allowance = 1.25e-7;

/// Roundings that a rejection allows for, those that grow with the number of vertices aside: twice
/// the eight of a signed distance, the longest computation that it stands in for, each of them
/// counted double by the allowance.
constexpr double spare_roundings = 16.0;

/// Model units: added to a margin for products too small for a relative error.
constexpr double smallest_margin = 1e-40;

/// Model units: beyond it single precision may overflow, and nothing is rejected.
constexpr double largest_safe_magnitude = 1e37;

} // namespace ox::internal

#endif
