#ifndef OX_EXAMPLES_VIEW_PICKING_H
#define OX_EXAMPLES_VIEW_PICKING_H

#include <examples/building/assembly.h>

#include <ox/geometry/ox_3dvector.h>

#include <optional>
#include <string>
#include <vector>

namespace view {

using building::element;

/// Where a ray first meets the building.
struct hit {
    ox::ox_3dvector point;
    double distance = 0; ///< from the eye, in metres
    std::string name;    ///< of the element
};

/// The first triangle of the elements that the ray from `eye` along the unit vector `direction`
/// meets, from either side.
std::optional<hit> first_hit(std::vector<element>& elements, const ox::ox_3dvector& eye,
                             const ox::ox_3dvector& direction);

/// Whether nothing stands between the eye and the point.
bool is_visible(std::vector<element>& elements, const ox::ox_3dvector& eye,
                const ox::ox_3dvector& point);

} // namespace view

#endif
