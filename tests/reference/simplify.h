#ifndef OX_TESTS_REFERENCE_SIMPLIFY_H
#define OX_TESTS_REFERENCE_SIMPLIFY_H

#include <vector>

#include <ox/geometry/ox_3dvector.h>

namespace reference {

/// Plain version of `ox_polygon::optimize_contour`: passes over the whole contour, each until one
/// removes nothing.
std::vector<ox::ox_3dvector> simplify(std::vector<ox::ox_3dvector> contour,
                                      const ox::ox_3dvector& normal, float tolerance);

/// The first phase alone.
std::vector<ox::ox_3dvector> drop_short_edges(std::vector<ox::ox_3dvector> contour,
                                              float tolerance);

} // namespace reference

#endif
