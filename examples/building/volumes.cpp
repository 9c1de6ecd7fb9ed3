#include <examples/building/volumes.h>

#include <examples/building/layout.h>
#include <examples/building/plan_geometry.h>

#include <algorithm>
#include <cmath>

namespace building {

namespace {

/// Square metres. A smaller region is rounding and has no centroid.
constexpr double smallest_area = 1e-12;

/// What stands on a convex base, from `bottom` up to the lowest of the planes `tops`.
struct prism {
    plan_contour base;
    double bottom = 0;
    std::vector<height_plane> tops;
};

height_plane operator-(const height_plane& a, const height_plane& b) {
    return {a.dx - b.dx, a.dy - b.dy, a.z - b.z};
}

/// The part of `base` where `height` is not negative.
plan_contour clipped_where_positive(const plan_contour& base, const height_plane& height) {
    return clipped(base, height.dx, height.dy, height.z);
}

/// Integral of the height of the lowest plane over the base. Where one plane is the lowest, its
/// height is linear, so the mean height is the height at the centroid.
double volume(const prism& p) {
    double sum = 0;
    for (const height_plane& top : p.tops) {
        plan_contour region = clipped_where_positive(p.base, top - height_plane{0, 0, p.bottom});
        for (const height_plane& other : p.tops) {
            if (!(other == top)) {
                region = clipped_where_positive(region, other - top);
            }
        }
        const double area = signed_area(region);
        if (area > smallest_area) {
            sum += area * (top.at(centroid(region)) - p.bottom);
        }
    }
    return sum;
}

prism intersection(const prism& p, const prism& q) {
    prism common = {building::intersection(p.base, q.base), p.bottom, p.tops};
    for (const height_plane& top : q.tops) {
        if (std::find(common.tops.begin(), common.tops.end(), top) == common.tops.end()) {
            common.tops.push_back(top);
        }
    }
    return common;
}

/// Volume of a union: each prism adds what the ones before it do not hold already.
double volume_of_union(const std::vector<prism>& prisms) {
    double sum = 0;
    for (std::size_t i = 0; i < prisms.size(); ++i) {
        std::vector<prism> held;
        for (std::size_t j = 0; j < i; ++j) {
            const prism common = intersection(prisms[i], prisms[j]);
            if (signed_area(common.base) > smallest_area) {
                held.push_back(common);
            }
        }
        sum += volume(prisms[i]) - volume_of_union(held);
    }
    return sum;
}

plan_contour counter_clockwise(plan_contour contour) {
    if (signed_area(contour) < 0) {
        std::reverse(contour.begin(), contour.end());
    }
    return contour;
}

} // namespace

double walls_volume(const description& d, std::size_t storey) {
    const double floor = d.storeys[storey].level;
    std::vector<prism> prisms;
    for (const wall& w : d.walls) {
        if (w.storey == storey) {
            prism p = {footprint(w), floor, ceilings(d, storey)};
            p.tops.push_back({0, 0, floor + w.height});
            prisms.push_back(p);
        }
    }
    double sum = volume_of_union(prisms);
    for (const opening& o : d.openings) {
        const wall& w = d.walls[o.wall];
        if (w.storey == storey) {
            sum -= signed_area(elevation(o, 0)) * w.thickness;
        }
    }
    return sum;
}

double slab_volume(const slab& s) {
    double area = std::abs(signed_area(s.outline));
    for (const plan_contour& hole : s.holes) {
        area -= std::abs(signed_area(hole));
    }
    return area * s.thickness;
}

double roof_volume(const roof& r) {
    prism outside = {counter_clockwise(r.outline), r.level, {}};
    prism inside = outside;
    for (const slope& s : r.slopes) {
        outside.tops.push_back(upper_side(s));
        inside.tops.push_back(lower_side(s, r.thickness));
    }
    return volume(outside) - volume(inside);
}

} // namespace building
