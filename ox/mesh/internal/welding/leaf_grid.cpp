#include <ox/mesh/internal/welding/leaf_grid.h>

#include <algorithm>
#include <cmath>

#include <ox/internal/hashing.h>
#include <ox/mesh/internal/tolerances.h>

namespace ox::internal {

namespace {

/// The range of whole numbers that single precision holds without a gap.
constexpr float exact_wholes = 16777216.0f; // 2^24

} // namespace

leaf_grid::leaf_grid(const octree_cell& root, float leaf_edge)
    : root_origin(root.origin), edge(leaf_edge) {
    const bool starts_at_0 = root.origin == ox_3dvector();
    const float step = starts_at_0 ? leaf_edge : std::min(leaf_edge, first_root_edge);
    unit = step;
    // Two units of margin: what lies within 1 of the vertex has to be exact as well.
    limit = (exact_wholes - 2.0f) * step;
    exact = starts_at_0 || root.edge <= exact_wholes;
    covers_root = root.edge <= limit;
}

bool leaf_grid::same_leaf(const ox_3dvector& p, const ox_3dvector& q) const {
    return cell_of(p.x, root_origin.x) == cell_of(q.x, root_origin.x) &&
           cell_of(p.y, root_origin.y) == cell_of(q.y, root_origin.y) &&
           cell_of(p.z, root_origin.z) == cell_of(q.z, root_origin.z);
}

std::uint64_t leaf_grid::hash_of_leaf(const ox_3dvector& p) const {
    const auto place = [this](float coordinate, float origin) {
        return static_cast<std::uint64_t>(cell_of(coordinate, origin));
    };
    return spread(place(p.x, root_origin.x), place(p.y, root_origin.y), place(p.z, root_origin.z));
}

/// How many leaves lie before a coordinate. The coordinate is first cut down to whole units, which
/// leaves it on the same side of every boundary and the difference exact.
double leaf_grid::cell_of(float coordinate, float origin) const {
    const double units = std::floor(coordinate / unit) - origin / unit;
    return std::floor(units * (unit / edge));
}

} // namespace ox::internal
