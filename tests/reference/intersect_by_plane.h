#ifndef OX_TESTS_REFERENCE_INTERSECT_BY_PLANE_H
#define OX_TESTS_REFERENCE_INTERSECT_BY_PLANE_H

#include <vector>

#include <ox/polygon/ox_polygon.h>

namespace reference {

/// Plain version of `ox_polygon::intersect_by_plane`, for finite planes. Points with equal keys
/// stay in the order in which they were found.
std::vector<ox::ox_3dvector> intersect_by_plane(ox::ox_polygon& polygon,
                                                const ox::ox_3dvector& point,
                                                const ox::ox_3dvector& normal);

} // namespace reference

#endif
