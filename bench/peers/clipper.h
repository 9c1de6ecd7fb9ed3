#ifndef OX_BENCH_PEERS_CLIPPER_H
#define OX_BENCH_PEERS_CLIPPER_H

#include <clipper.hpp>

#include <bench/support/contestant.h>

// The clipping library that the polygons stand on, used directly.

namespace peers {

/// A rectangle of integer coordinates, counter-clockwise.
ClipperLib::Path rectangle_path(ClipperLib::cInt x, ClipperLib::cInt y, ClipperLib::cInt width,
                                ClipperLib::cInt height);

/// Subtracts the tools from the outline one after another, `repeats` times over. Fact: the area of
/// the last region times `repeats`, in squared units of `unit`, named `fact_name`.
bench::contestant clipper_differences(const ClipperLib::Path& outline,
                                      const ClipperLib::Paths& tools, int repeats, double unit,
                                      const std::string& fact_name);

/// Unites the paths by the even-odd rule into a tree. Facts: contours, and area in squared units of
/// `unit`.
bench::contestant clipper_even_odd_union(const ClipperLib::Paths& paths, double unit);

} // namespace peers

#endif
