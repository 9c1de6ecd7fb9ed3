// The areas of random regions obey the laws of sets, counted exactly: contours lie on a grid, so
// their areas are whole numbers of half cells. What may be off is derived from how far a crossing
// is moved to the grid.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <vector>

#include <gtest/gtest.h>

#include <tests/polygon/grid_regions.h>
#include <tests/support/all_cases.h>
#include <tests/support/dump.h>
#include <tests/support/seed.h>

namespace {

using grid_regions::cell;
using grid_regions::kind;
using grid_regions::random_polygon;
using grid_regions::wide;
using ox::ox_list;
using ox::ox_polygon;
using support::generator;

/// What the laws need of a region.
struct region {
    wide doubled = 0;
    double perimeter = 0.0;
    double corners = 0.0;
    int against_orientation =
        0; ///< outer contours that run to the right, holes that run to the left
};

/// Measures the region by its triangles and checks the form of its contours: parents are contours,
/// each of the other kind.
region measure(ox_polygon& polygon) {
    region result;
    const std::vector<std::vector<cell>> contours = grid_regions::contours_of(polygon);
    const int count = static_cast<int>(contours.size());
    const ox_list<bool>& are_outer = polygon.get_contour_orientations();
    const ox_list<int>& parents = polygon.get_contour_parents();
    EXPECT_EQ(are_outer.size(), count);
    EXPECT_EQ(parents.size(), count);
    for (int c = 0; c < count; ++c) {
        const std::vector<cell>& contour = contours[static_cast<std::size_t>(c)];
        const int parent = parents[c];
        EXPECT_TRUE(parent >= -1 && parent < count && parent != c) << "index range";
        EXPECT_EQ(are_outer[c], parent < 0 || !are_outer[parent]) << "nesting";
        result.against_orientation +=
            (grid_regions::doubled_area(contour) > 0) == are_outer[c] ? 0 : 1;
        result.perimeter += grid_regions::perimeter(contour);
        result.corners += static_cast<double>(contour.size());
    }
    result.doubled = grid_regions::doubled_area_of_triangles(polygon);
    return result;
}

/// Indices of the triangles name vertices.
void expect_triangles_in_range(ox_polygon& polygon) {
    const auto vertices = static_cast<unsigned int>(polygon.get_tesselation_vertices().size());
    const ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
    EXPECT_EQ(triangles.size() % 3, 0);
    for (const unsigned int index : triangles) {
        EXPECT_LT(index, vertices);
    }
}

double allowed(const region& result) {
    return grid_regions::allowed(result.perimeter, result.corners);
}

/// Two polygons and what the booleans make of them.
struct combined_pair {
    explicit combined_pair(generator& random)
        : kind_of_a(grid_regions::random_kind(random)),
          kind_of_b(grid_regions::random_kind(random)), a(random_polygon(random, kind_of_a)),
          b(random_polygon(random, kind_of_b)), united(a), common(a), rest(a) {
        united.unites(b);
        common.intersects(b);
        rest.substracts(b);
    }

    /// True if sides of one operand may coincide.
    bool has_rectangles() const {
        return kind_of_a == kind::rectangles || kind_of_b == kind::rectangles;
    }

    kind kind_of_a;
    kind kind_of_b;
    ox_polygon a;
    ox_polygon b;
    ox_polygon united;
    ox_polygon common;
    ox_polygon rest;
};

double off_by(wide left, wide right) {
    return std::fabs(static_cast<double>(left - right));
}

/// The largest share of the bound that a law of the pair takes.
double expect_laws(combined_pair& pair) {
    const region a = measure(pair.a);
    const region b = measure(pair.b);
    const region united = measure(pair.united);
    const region common = measure(pair.common);
    const region rest = measure(pair.rest);
    const double inclusion_bound = allowed(united) + allowed(common);
    const double difference_bound = allowed(rest) + allowed(common);
    const double inclusion = off_by(united.doubled + common.doubled, a.doubled + b.doubled);
    const double difference = off_by(rest.doubled + common.doubled, a.doubled);
    EXPECT_LE(inclusion, inclusion_bound) << "union and intersection";
    EXPECT_LE(difference, difference_bound) << "difference and intersection";
    if (!pair.has_rectangles()) {
        for (const region* measured : {&a, &b, &united, &common, &rest}) {
            EXPECT_EQ(measured->against_orientation, 0) << "orientation";
        }
    }
    expect_triangles_in_range(pair.united);
    expect_triangles_in_range(pair.rest);
    const double share = inclusion_bound > 0.0 ? inclusion / inclusion_bound : 0.0;
    return std::max(share, difference_bound > 0.0 ? difference / difference_bound : 0.0);
}

TEST(OxPolygonLaws, AreasOfRandomPairsAddUpWithinTheRoundingOfTheirCrossings) {
    const std::uint64_t seed = support::seed(90);
    generator random(seed);
    const int pairs = support::all_or(1000000, 20000);
    double worst = 0.0;
    for (int i = 0; i < pairs && !HasFailure(); ++i) {
        combined_pair pair(random);
        worst = std::max(worst, expect_laws(pair));
        if (HasFailure()) {
            ADD_FAILURE() << "seed " << seed << ", pair " << i << '\n'
                          << support::seen(pair.a, "A") << support::seen(pair.b, "B");
        }
    }
    std::cout << pairs << " pairs of polygons, seed " << seed << ": the largest error is "
              << 100.0 * worst << " % of its bound\n";
}

} // namespace
