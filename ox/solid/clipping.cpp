#include <ox/solid/ox_solid.h>

#include <algorithm>

#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

using namespace internal;

namespace {

/// How many vertices lie on either side of a plane, beyond the tolerance.
struct side_counts {
    int above = 0;
    int below = 0;
};

side_counts count_sides(const ox_solid_state& state, const ox_3dvector& point,
                        const ox_3dvector& normal) {
    side_counts counts;
    for (const ox_3dvector& vertex : state.storage.vertices) {
        const float distance = ox_dot(vertex - point, normal);
        counts.above += distance > state.tolerance ? 1 : 0;
        counts.below += distance < -state.tolerance ? 1 : 0;
    }
    return counts;
}

/// Lowest and highest place of a solid along an axis.
struct extent {
    float lowest = clip_extent_start;
    float highest = -clip_extent_start;

    void enlarge(float value) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }

    void widen(float tolerance) {
        lowest = lowest - clip_margin_before * tolerance;
        highest = highest + clip_margin_behind * tolerance;
    }
};

/// Makes the brick that stands on the plane and holds everything of the solid above it, with
/// margins beside it and above it but none below, where it must end.
void build_clipping_brick(const ox_solid_state& state, const ox_3dvector& point,
                          const ox_3dvector& normal, ox_solid& brick) {
    ox_3dvector axis = normal; // a copy: the height is measured with the normal as given
    ox_3dvector u;
    ox_3dvector w;
    axis.build_axis(u, w);

    extent along_u;
    extent along_w;
    float height = 0.0f;
    for (const ox_3dvector& vertex : state.storage.vertices) {
        const ox_3dvector difference = vertex - point;
        along_u.enlarge(ox_dot(difference, u));
        along_w.enlarge(ox_dot(difference, w));
        height = std::max(height, ox_dot(difference, normal));
    }
    along_u.widen(state.tolerance);
    along_w.widen(state.tolerance);
    height = height + clip_margin_behind * state.tolerance;

    const ox_3dvector corner = point + along_u.lowest * u + along_w.lowest * w;
    brick.brick(corner, u * (along_u.highest - along_u.lowest),
                w * (along_w.highest - along_w.lowest), normal * height);
}

} // namespace

void ox_solid::clip(const ox_3dvector& point, const ox_3dvector& normal) {
    const side_counts counts = count_sides(get_state(), point, normal);
    if (counts.above == 0) {
        return;
    }
    if (counts.below == 0) {
        clear();
        return;
    }
    ox_solid brick;
    build_clipping_brick(get_state(), point, normal, brick);
    substracts(brick);
}

} // namespace ox
