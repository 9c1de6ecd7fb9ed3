#ifndef OX_BENCH_POLYGON_CONTOURS_H
#define OX_BENCH_POLYGON_CONTOURS_H

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace bench {

/// A horizontal rectangle, counter-clockwise seen from above.
inline ox::ox_list<ox::ox_3dvector> rectangle(float x, float y, float width, float height) {
    ox::ox_list<ox::ox_3dvector> corners;
    corners.push_right(ox::ox_3dvector(x, y, 0.0f));
    corners.push_right(ox::ox_3dvector(x + width, y, 0.0f));
    corners.push_right(ox::ox_3dvector(x + width, y + height, 0.0f));
    corners.push_right(ox::ox_3dvector(x, y + height, 0.0f));
    return corners;
}

} // namespace bench

#endif
