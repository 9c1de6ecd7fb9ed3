// An independent judge: the areas of random unions, intersections and differences are those of
// Boost.Geometry's. Built only where that is installed.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iostream>
#include <vector>

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <gtest/gtest.h>

#include <tests/polygon/grid_regions.h>
#include <tests/support/all_cases.h>
#include <tests/support/dump.h>
#include <tests/support/seed.h>

namespace {

namespace bg = boost::geometry;
using judged_point = bg::model::d2::point_xy<double>;
using judged_polygon = bg::model::polygon<judged_point>;
using judged_region = bg::model::multi_polygon<judged_polygon>;

using grid_regions::cell;
using ox::ox_polygon;
using support::generator;

/// A rectangle or a star: the judge refuses contours that touch themselves.
ox_polygon random_simple_polygon(generator& random) {
    for (;;) {
        const grid_regions::kind kind = grid_regions::random_kind(random);
        ox_polygon polygon = grid_regions::random_polygon(random, kind);
        if (kind != grid_regions::kind::tangles) {
            return polygon;
        }
    }
}

judged_polygon::ring_type to_ring(const std::vector<cell>& contour) {
    judged_polygon::ring_type ring;
    for (const cell& corner : contour) {
        ring.emplace_back(static_cast<double>(corner.x), static_cast<double>(corner.y));
    }
    return ring;
}

/// The merged contours, in grid steps: each outer one with the holes directly inside it.
judged_region to_judged(ox_polygon& polygon) {
    const std::vector<std::vector<cell>> contours = grid_regions::contours_of(polygon);
    const ox::ox_list<int>& parents = polygon.get_contour_parents();
    judged_region region;
    for (int c = 0; c < parents.size(); ++c) {
        if (!polygon.get_contour_orientations()[c]) {
            continue;
        }
        region.emplace_back();
        region.back().outer() = to_ring(contours[static_cast<std::size_t>(c)]);
        for (int hole = 0; hole < parents.size(); ++hole) {
            if (parents[hole] == c) {
                region.back().inners().push_back(to_ring(contours[static_cast<std::size_t>(hole)]));
            }
        }
    }
    bg::correct(region);
    return region;
}

/// The areas of union, intersection and difference by the judge, in cells.
struct judgement {
    double united;
    double common;
    double rest;
};

judgement judge(const judged_region& a, const judged_region& b) {
    judged_region united;
    judged_region common;
    judged_region rest;
    bg::union_(a, b, united);
    bg::intersection(a, b, common);
    bg::difference(a, b, rest);
    return {bg::area(united), bg::area(common), bg::area(rest)};
}

/// True if the judge's areas obey the laws themselves: it works in doubles, and now and then
/// loses a piece of regions whose edges nearly coincide.
bool is_consistent(const judgement& judged, double a, double b) {
    const double slack = 0.001 * (a + b) + 1.0;
    return std::fabs(judged.united + judged.common - a - b) <= slack &&
           std::fabs(judged.rest + judged.common - a) <= slack;
}

void expect_area(ox_polygon& result, double judged, const char* name) {
    double doubled = 0.0;
    double perimeter = 0.0;
    double corners = 0.0;
    for (const std::vector<cell>& contour : grid_regions::contours_of(result)) {
        doubled += static_cast<double>(grid_regions::doubled_area(contour));
        perimeter += grid_regions::perimeter(contour);
        corners += static_cast<double>(contour.size());
    }
    EXPECT_LE(std::fabs(doubled - 2.0 * judged), grid_regions::allowed(perimeter, corners) + 1.0)
        << name << ": " << doubled / 2.0 << " and " << judged << " cells";
}

TEST(OxPolygonJudge, AreasOfRandomPairsAreThoseOfTheSecondClipper) {
    const std::uint64_t seed = support::seed(91);
    generator random(seed);
    const int pairs = support::all_or(100000, 5000);
    int judged_pairs = 0;
    int drawn = 0;
    for (; judged_pairs < pairs && drawn < 4 * pairs && !HasFailure(); ++drawn) {
        ox_polygon a = random_simple_polygon(random);
        ox_polygon b = random_simple_polygon(random);
        const judged_region first = to_judged(a);
        const judged_region second = to_judged(b);
        if (!bg::is_valid(first) || !bg::is_valid(second)) {
            continue;
        }
        const judgement judged = judge(first, second);
        if (!is_consistent(judged, bg::area(first), bg::area(second))) {
            continue;
        }
        ++judged_pairs;
        ox_polygon united = a;
        united.unites(b);
        ox_polygon common = a;
        common.intersects(b);
        ox_polygon rest = a;
        rest.substracts(b);
        expect_area(united, judged.united, "union");
        expect_area(common, judged.common, "intersection");
        expect_area(rest, judged.rest, "difference");
        if (HasFailure()) {
            ADD_FAILURE() << "seed " << seed << ", pair " << drawn << '\n'
                          << support::seen(a, "A") << support::seen(b, "B");
        }
    }
    std::cout << judged_pairs << " pairs of " << drawn << " judged, seed " << seed << '\n';
    EXPECT_EQ(judged_pairs, pairs);
}

} // namespace
