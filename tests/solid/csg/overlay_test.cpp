// How the shells of several operands are laid over each other: points, planes, edges, triangles.

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <set>
#include <utility>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/bounded_triangulation.h>
#include <tests/solid/csg/laid_scene.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_solid;
using namespace ox::internal::csg;

ox_solid brick(float x, float y, float z, float dx, float dy, float dz) {
    ox_solid solid;
    solid.brick(ox_3dvector(x, y, z), dx, dy, dz);
    return solid;
}

/// The scene of some solids, and its triangles.
struct overlaid : csg_test::laid_scene {
    using laid_scene::laid_scene;

    /// The triangles of an operand without their direction.
    std::set<std::array<int, 3>> triangles_of(int number) const {
        std::set<std::array<int, 3>> found;
        for (const face_triangle& triangle : triangles) {
            if (faces.faces[static_cast<std::size_t>(triangle.face)].operand == number) {
                std::array<int, 3> corners = triangle.vertices;
                std::sort(corners.begin(), corners.end());
                found.insert(corners);
            }
        }
        return found;
    }

    int count_common_triangles() const {
        const std::set<std::array<int, 3>> first = triangles_of(0);
        const std::set<std::array<int, 3>> second = triangles_of(1);
        return static_cast<int>(
            std::count_if(first.begin(), first.end(),
                          [&second](const std::array<int, 3>& t) { return second.count(t) > 0; }));
    }

    /// Each operand's triangles leave no edge open.
    void expect_closed() const {
        std::map<std::array<int, 3>, int> net;
        for (const face_triangle& triangle : triangles) {
            const int number = faces.faces[static_cast<std::size_t>(triangle.face)].operand;
            for (std::size_t i = 0; i < 3; ++i) {
                const int from = triangle.vertices[i];
                const int to = triangle.vertices[(i + 1) % 3];
                net[{std::min(from, to), std::max(from, to), number}] += from < to ? 1 : -1;
            }
        }
        for (const auto& edge : net) {
            EXPECT_EQ(edge.second, 0);
        }
    }
};

TEST(CsgOverlay, PointsOfDifferentOperandsWithinTheToleranceAreOne) {
    const overlaid both({brick(0, 0, 0, 1, 1, 1), brick(1.0004f, 0.0004f, 0, 1, 1, 1)});
    EXPECT_EQ(both.faces.points.size(), 12u);
}

TEST(CsgOverlay, ThinOperandsKeepTheirThickness) {
    const overlaid both({brick(0, 0, 0, 1, 1, 0.0015f), brick(0, 0, 0.0007f, 1, 1, 1)});
    both.expect_closed();
    EXPECT_GE(both.faces.points.size(), 12u);
}

TEST(CsgOverlay, FacesThatCoincideHaveTheSameTriangles) {
    const overlaid both({brick(0, 0, 0, 3, 1, 2), brick(1, 1, 0, 1, 3, 2)});
    both.expect_closed();
    EXPECT_EQ(both.count_common_triangles(), 2);
}

TEST(CsgOverlay, FacesThatCrossInTheirPlaneShareTheCellsOfTheCrossing) {
    const overlaid both({brick(0, 1, 0, 3, 1, 2), brick(1, 0, 0, 1, 3, 2)});
    both.expect_closed();
    EXPECT_EQ(both.faces.points.size(), 16u + 8u);
    EXPECT_EQ(both.count_common_triangles(), 4);
}

TEST(CsgOverlay, TurnedFacesThatCrossShareTheirCellsToo) {
    support::generator random(5);
    for (int i = 0; i < 50; ++i) {
        SCOPED_TRACE(i);
        const support::frame axes = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, 20.0);
        ox_solid first;
        first.brick(origin + axes.y, axes.x * 3.0f, axes.y, axes.z * 2.0f);
        ox_solid second;
        second.brick(origin + axes.x, axes.x, axes.y * 3.0f, axes.z * 2.0f);
        const overlaid both({first, second});
        both.expect_closed();
        EXPECT_EQ(both.faces.points.size(), 16u + 8u);
        EXPECT_EQ(both.count_common_triangles(), 4);
    }
}

TEST(CsgOverlay, OneSolidTwiceHasEveryTriangleTwice) {
    const overlaid both({brick(0, 0, 0, 3, 1, 2), brick(0, 0, 0, 3, 1, 2)});
    EXPECT_EQ(both.count_common_triangles(), 12);
    EXPECT_EQ(both.triangles.size(), 24u);
}

TEST(CsgOverlay, ParallelFacesFartherThanTheToleranceAreNotOfOnePlane) {
    const overlaid both({brick(0, 0, 0, 1, 1, 1), brick(0, 0, 1.0018f, 1, 1, 1)});
    std::set<int> clusters;
    for (const scene_face& face : both.faces.faces) {
        clusters.insert(face.cluster);
    }
    EXPECT_EQ(clusters.size(), 8u);
}

TEST(CsgOverlay, PlanesDoNotDriftAlongChainsOfFaces) {
    std::vector<ox_solid> steps;
    for (int i = 0; i < 10; ++i) {
        const float height = 1.0f + static_cast<float>(i * i) * 0.0002f;
        steps.push_back(brick(static_cast<float>(i), 0, 0, 1, 1, height));
    }
    const overlaid all(steps);
    std::set<int> tops;
    for (const scene_face& face : all.faces.faces) {
        if (face.plane.normal[2] > 0.5) {
            tops.insert(face.cluster);
        }
    }
    EXPECT_GE(tops.size(), 2u);
}

TEST(CsgOverlay, RandomBricksStayClosed) {
    support::generator random(9);
    for (int i = 0; i < 40; ++i) {
        SCOPED_TRACE(i);
        std::vector<ox_solid> solids;
        for (int n = 0; n < 4; ++n) {
            const support::frame axes = support::random_frame(random);
            ox_solid solid;
            solid.brick(support::random_point(random, 1.0), axes.x, axes.y, axes.z);
            solids.push_back(solid);
        }
        overlaid(solids).expect_closed();
    }
}

TEST(CsgOverlay, AConeHasTheBoundaryOfAnyFace) {
    support::generator random(3);
    std::vector<grid_point> points;
    for (int i = 0; i < 12; ++i) {
        points.push_back({random.between(0, 5), random.between(0, 5), random.between(0, 5)});
    }
    for (int i = 0; i < 200; ++i) {
        face_boundary ring;
        const int first = random.between(0, 11);
        int from = first;
        for (int corner = random.between(2, 9); corner > 0; --corner) {
            const int to = corner == 1 ? first : random.between(0, 11);
            if (from != to) {
                ring.push_back({from, to});
            }
            from = to;
        }
        EXPECT_TRUE(is_boundary_of(ring, triangulate_alone(points, ring, {0.0, 0.0, 1.0})));
    }
}

} // namespace
