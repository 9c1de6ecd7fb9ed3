#ifndef OX_TESTS_REFERENCE_CONTAINS_H
#define OX_TESTS_REFERENCE_CONTAINS_H

#include <ox/polygon/ox_polygon.h>

namespace reference {

/// Plain version of `ox_polygon::contains`: crossings left and right of the point, edge by edge.
bool contains(ox::ox_polygon& polygon, const ox::ox_3dvector& p);

} // namespace reference

#endif
