#ifndef OX_POLYGON_INTERNAL_HAND_OVER_H
#define OX_POLYGON_INTERNAL_HAND_OVER_H

#include <memory>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/polygon/ox_polygon.h>

namespace ox::internal {

/// Hands new polygons over to the caller of a public function, in their order. Until here they
/// have an owner, so that an allocation that fails leaks none of them.
inline ox_list<ox_polygon*> hand_over(std::vector<std::unique_ptr<ox_polygon>> polygons) {
    ox_list<ox_polygon*> list(static_cast<int>(polygons.size()));
    for (int i = 0; i < list.size(); ++i) {
        list[i] = polygons[static_cast<std::size_t>(i)].release();
    }
    return list;
}

} // namespace ox::internal

#endif
