#ifndef OX_BENCH_SUPPORT_OUTLINE_H
#define OX_BENCH_SUPPORT_OUTLINE_H

#include <cmath>

#include <ox/core/ox_list.h>
#include <ox/core/ox_random.h>
#include <ox/geometry/ox_3dvector.h>

namespace bench {

/// A closed horizontal outline of n corners at random distances between two radii about the
/// origin: the nearer the radii are, the smoother it is.
inline ox::ox_list<ox::ox_3dvector> random_outline(int n, double inner, double outer) {
    ox::ox_random random(11);
    ox::ox_list<ox::ox_3dvector> corners;
    for (int i = 0; i < n; ++i) {
        const double turn = 6.283185307179586 * i / n;
        const double radius = inner + (outer - inner) * static_cast<double>(random.dice_0_1());
        corners.push_right(ox::ox_3dvector(static_cast<float>(radius * std::cos(turn)),
                                           static_cast<float>(radius * std::sin(turn)), 0.0f));
    }
    return corners;
}

} // namespace bench

#endif
