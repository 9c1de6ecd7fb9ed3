#ifndef OX_TESTS_POLYGON_RANDOM_REGIONS_H
#define OX_TESTS_POLYGON_RANDOM_REGIONS_H

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>

namespace random_regions {

/// One to three contours of the plane z = 0 that cross themselves and each other.
inline ox::ox_polygon tangle(support::generator& random, int corners, int extent) {
    ox::ox_polygon polygon;
    const int contours = random.between(1, 3);
    for (int c = 0; c < contours; ++c) {
        polygon.add_contour(support::random_tangle(random, corners, extent));
    }
    return polygon;
}

/// The same contours in a tilted plane, `away` model units from the origin.
inline ox::ox_polygon tilted(support::generator& random, ox::ox_polygon& flat, float away) {
    const support::frame axes = support::random_frame(random);
    const ox::ox_3dvector offset = support::random_point(random, 1.0) * away;
    ox::ox_polygon polygon;
    for (int c = 0; c < polygon_checks::count_contours(flat); ++c) {
        ox::ox_list<ox::ox_3dvector> moved;
        for (const ox::ox_3dvector& p : polygon_checks::contour_of(flat, c)) {
            moved.push_right(offset + p.x * axes.x + p.y * axes.y);
        }
        polygon.add_contour(moved);
    }
    return polygon;
}

} // namespace random_regions

#endif
