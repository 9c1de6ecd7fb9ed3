// The cutting of plane regions into triangles: the same area, the same boundary, no triangle
// without area, and the same triangles for all regions that cover them.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/planar_triangulation.h>
#include <tests/support/generator.h>

namespace {

using ox::internal::csg::covered_triangle;
using ox::internal::csg::orientation;
using ox::internal::csg::planar_point;
using ox::internal::csg::region_edge;
using ox::internal::csg::triangulate_regions;

/// Points and the rings that bound regions.
struct plane_regions {
    std::vector<planar_point> points;
    std::vector<region_edge> edges;

    void add_ring(const std::vector<planar_point>& ring, int region) {
        const int base = static_cast<int>(points.size());
        const int count = static_cast<int>(ring.size());
        points.insert(points.end(), ring.begin(), ring.end());
        for (int i = 0; i < count; ++i) {
            edges.push_back({base + i, base + (i + 1) % count, region});
        }
    }

    void add_square(std::int64_t x, std::int64_t y, std::int64_t size, int region,
                    bool is_hole = false) {
        std::vector<planar_point> ring = {
            {x, y}, {x + size, y}, {x + size, y + size}, {x, y + size}};
        if (is_hole) {
            std::reverse(ring.begin(), ring.end());
        }
        add_ring(ring, region);
    }
};

std::int64_t twice_area(const planar_point& a, const planar_point& b, const planar_point& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

std::int64_t twice_area(const plane_regions& plane, const std::vector<covered_triangle>& triangles,
                        int region) {
    const auto at = [&plane](int i) { return plane.points[static_cast<std::size_t>(i)]; };
    std::int64_t area = 0;
    for (const covered_triangle& t : triangles) {
        if (t.region == region) {
            area += t.winding * twice_area(at(t.vertices[0]), at(t.vertices[1]), at(t.vertices[2]));
        }
    }
    return area;
}

std::int64_t twice_area_of_rings(const plane_regions& plane) {
    std::int64_t area = 0;
    for (const region_edge& edge : plane.edges) {
        area += twice_area({0, 0}, plane.points[static_cast<std::size_t>(edge.from)],
                           plane.points[static_cast<std::size_t>(edge.to)]);
    }
    return area;
}

/// The directed edges that are left when those of the triangles meet the reversed boundary.
int count_unmatched_edges(const plane_regions& plane,
                          const std::vector<covered_triangle>& triangles, int region) {
    std::map<std::pair<int, int>, int> net;
    const auto add = [&net](int from, int to, int times) {
        net[std::minmax(from, to)] += from < to ? times : -times;
    };
    for (const covered_triangle& t : triangles) {
        for (std::size_t i = 0; t.region == region && i < 3; ++i) {
            add(t.vertices[i], t.vertices[(i + 1) % 3], t.winding);
        }
    }
    for (const region_edge& edge : plane.edges) {
        if (edge.region == region) {
            add(edge.to, edge.from, 1);
        }
    }
    return static_cast<int>(
        std::count_if(net.begin(), net.end(), [](const auto& edge) { return edge.second != 0; }));
}

std::vector<covered_triangle> cut(const plane_regions& plane) {
    std::vector<covered_triangle> triangles;
    EXPECT_TRUE(triangulate_regions(plane.points, plane.edges, triangles));
    return triangles;
}

/// A polygon around the origin with a corner in each of many directions, never crossing itself.
std::vector<planar_point> random_star(support::generator& random, int corner_count) {
    std::vector<planar_point> corners = {{999, 0}, {1, 999}, {-999, 1}, {-1, -999}};
    while (static_cast<int>(corners.size()) < corner_count) {
        const planar_point p = {random.between(-1000000, 1000000),
                                random.between(-1000000, 1000000)};
        if (p.x != 0 || p.y != 0) {
            corners.push_back(p);
        }
    }
    const auto is_upper = [](const planar_point& p) { return p.y > 0 || (p.y == 0 && p.x > 0); };
    std::sort(corners.begin(), corners.end(), [&](const planar_point& a, const planar_point& b) {
        return is_upper(a) != is_upper(b) ? is_upper(a) : orientation({0, 0}, a, b) > 0;
    });
    corners.erase(std::unique(corners.begin(), corners.end(),
                              [](const planar_point& a, const planar_point& b) {
                                  return orientation({0, 0}, a, b) == 0;
                              }),
                  corners.end());
    return corners;
}

TEST(CsgOrientation, IsExactWhereDoublesAreNot) {
    const std::int64_t far = std::int64_t{1} << 37;
    EXPECT_EQ(orientation({0, 0}, {far, far - 1}, {far - 1, far - 2}), -1);
    EXPECT_EQ(orientation({0, 0}, {far - 1, far - 2}, {far, far - 1}), 1);
    EXPECT_EQ(orientation({-far, -far}, {0, 0}, {far, far}), 0);
    EXPECT_EQ(orientation({-far, far}, {0, 0}, {far, -far}), 0);
    EXPECT_EQ(orientation({-far, far}, {1, -1}, {far - 1, -far}), -1);
}

TEST(CsgTriangulation, ASquareIsTwoTriangles) {
    plane_regions plane;
    plane.add_square(0, 0, 10, 0);
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(triangles.size(), 2u);
    EXPECT_EQ(twice_area(plane, triangles, 0), 200);
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
}

TEST(CsgTriangulation, HolesStayOpenAndIslandsInThemAreFilled) {
    plane_regions plane;
    plane.add_square(0, 0, 100, 0);
    plane.add_square(10, 10, 50, 0, true);
    plane.add_square(20, 20, 10, 0);
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(twice_area(plane, triangles, 0), 2 * (10000 - 2500 + 100));
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
}

TEST(CsgTriangulation, APolygonInsideOutIsCoveredNegatively) {
    plane_regions plane;
    plane.add_square(0, 0, 10, 0, true);
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(twice_area(plane, triangles, 0), -200);
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
}

TEST(CsgTriangulation, CornersOnStraightSidesBecomeCornersOfTriangles) {
    plane_regions plane;
    plane.add_ring({{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}, {0, 10}}, 0);
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(triangles.size(), 4u);
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
    for (const covered_triangle& t : triangles) {
        EXPECT_EQ(orientation(plane.points[static_cast<std::size_t>(t.vertices[0])],
                              plane.points[static_cast<std::size_t>(t.vertices[1])],
                              plane.points[static_cast<std::size_t>(t.vertices[2])]),
                  1);
    }
}

TEST(CsgTriangulation, RegionsThatCoverEachOtherHaveTheSameTriangles) {
    plane_regions plane;
    plane.add_square(0, 0, 100, 0);
    plane.add_square(20, 20, 30, 1);
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(twice_area(plane, triangles, 0), 20000);
    EXPECT_EQ(twice_area(plane, triangles, 1), 1800);
    for (const covered_triangle& t : triangles) {
        const auto covers_too = [&t](const covered_triangle& other) {
            return other.region == 0 && other.vertices == t.vertices;
        };
        EXPECT_TRUE(std::any_of(triangles.begin(), triangles.end(), covers_too));
    }
}

TEST(CsgTriangulation, RegionsThatShareAnEdgeMeetThere) {
    plane_regions plane;
    plane.points = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {20, 0}, {20, 10}};
    for (const region_edge& edge : std::vector<region_edge>{{0, 1, 0},
                                                            {1, 2, 0},
                                                            {2, 3, 0},
                                                            {3, 0, 0},
                                                            {1, 4, 1},
                                                            {4, 5, 1},
                                                            {5, 2, 1},
                                                            {2, 1, 1}}) {
        plane.edges.push_back(edge);
    }
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(triangles.size(), 4u);
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 1), 0);
}

TEST(CsgTriangulation, RandomPolygonsKeepTheirAreaAndTheirBoundary) {
    support::generator random(7);
    for (int i = 0; i < 300; ++i) {
        SCOPED_TRACE(i);
        plane_regions plane;
        plane.add_ring(random_star(random, random.between(3, 60)), 0);
        if (plane.edges.size() < 3) {
            continue;
        }
        std::vector<covered_triangle> triangles;
        if (triangulate_regions(plane.points, plane.edges, triangles)) {
            EXPECT_EQ(twice_area(plane, triangles, 0), twice_area_of_rings(plane));
            EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
        } else {
            ADD_FAILURE() << "a polygon that does not cross itself was refused";
        }
    }
}

TEST(CsgTriangulation, APlateWithEightHundredHolesKeepsItsAreaAndItsBoundary) {
    plane_regions plane;
    plane.add_square(0, 0, 100000, 0);
    for (int i = 0; i < 800; ++i) {
        plane.add_square(100 + (i % 40) * 2000, 100 + (i / 40) * 4000, 1000, 0, true);
    }
    const std::vector<covered_triangle> triangles = cut(plane);
    EXPECT_EQ(twice_area(plane, triangles, 0), 2 * (10000000000 - 800 * 1000000));
    EXPECT_EQ(count_unmatched_edges(plane, triangles, 0), 0);
}

TEST(CsgTriangulation, EdgesThatCrossOrTouchAreRefusedOrTold) {
    plane_regions crossing;
    crossing.add_ring({{0, 0}, {10, 10}, {10, 0}, {0, 10}}, 0);
    std::vector<covered_triangle> triangles;
    const bool is_cut = triangulate_regions(crossing.points, crossing.edges, triangles);
    EXPECT_TRUE(!is_cut || count_unmatched_edges(crossing, triangles, 0) > 0);

    plane_regions touching;
    touching.add_ring({{0, 0}, {10, 0}, {5, 0}, {5, 5}}, 0);
    triangles.clear();
    const bool is_touching_cut = triangulate_regions(touching.points, touching.edges, triangles);
    EXPECT_TRUE(!is_touching_cut || count_unmatched_edges(touching, triangles, 0) > 0);
}

TEST(CsgTriangulation, RandomEdgesOfAnyKindEndInAnAnswer) {
    support::generator random(11);
    for (int i = 0; i < 2000; ++i) {
        plane_regions plane;
        for (int ring = random.between(1, 4); ring > 0; --ring) {
            std::vector<planar_point> corners;
            for (int corner = random.between(1, 8); corner > 0; --corner) {
                const std::int64_t x = random.between(0, 6);
                const std::int64_t y = random.between(0, 6);
                corners.push_back({x, y});
            }
            plane.add_ring(corners, random.between(0, 2));
        }
        std::vector<covered_triangle> triangles;
        triangulate_regions(plane.points, plane.edges, triangles);
        EXPECT_LT(triangles.size(), 1000u);
    }
}

} // namespace
