// Simple faces are cut without the sweep that all others need: into the same triangles.

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/monotone_face.h>
#include <ox/solid/internal/csg/planar_triangulation.h>
#include <tests/support/generator.h>

namespace {

using namespace ox::internal::csg;

using triangles_of_face = std::vector<std::array<int, 3>>;

/// Points of the plane z = 0 and rings of them.
struct scattered_faces {
    std::vector<grid_point> points;
    std::vector<face_boundary> faces;
};

/// Points on a grid of so few values that many coincide or lie in a line.
scattered_faces random_faces(support::generator& random, int point_count, int face_count) {
    scattered_faces made;
    const int extent = random.one_in(2) ? 4 : 1000;
    for (int i = 0; i < point_count; ++i) {
        const int x = random.between(0, extent);
        const int y = random.between(0, extent);
        made.points.push_back({x, y, 0});
    }
    for (int f = 0; f < face_count; ++f) {
        std::vector<int> ring;
        for (int i = 0; i < point_count; ++i) {
            if (face_count == 1 || random.between(0, 4) > 1) {
                ring.push_back(i);
            }
        }
        for (std::size_t i = ring.size(); i-- > 1;) {
            std::swap(ring[i],
                      ring[static_cast<std::size_t>(random.between(0, static_cast<int>(i)))]);
        }
        made.faces.emplace_back();
        for (std::size_t i = 0; i < ring.size(); ++i) {
            made.faces.back().push_back({ring[i], ring[(i + 1) % ring.size()]});
        }
        std::sort(made.faces.back().begin(), made.faces.back().end());
    }
    return made;
}

/// The triangles of the sweep over the regions of all faces; false where it cannot cut them.
bool sweep(const scattered_faces& given, std::vector<triangles_of_face>& triangles) {
    std::vector<planar_point> places;
    for (const grid_point& point : given.points) {
        places.push_back({point.x, point.y});
    }
    std::vector<region_edge> edges;
    for (std::size_t f = 0; f < given.faces.size(); ++f) {
        for (const directed_edge& edge : given.faces[f]) {
            edges.push_back({edge[0], edge[1], static_cast<int>(f)});
        }
    }
    std::vector<covered_triangle> covered;
    triangles.assign(given.faces.size(), {});
    const bool is_cut = triangulate_regions(places, edges, covered);
    for (const covered_triangle& t : covered) {
        const std::array<int, 3>& v = t.vertices;
        triangles[static_cast<std::size_t>(t.region)].push_back(
            t.winding > 0 ? v : std::array<int, 3>{v[0], v[2], v[1]});
    }
    return is_cut;
}

bool cut(const scattered_faces& given, const face_boundary& face, monotone_face& read,
         triangles_of_face& triangles) {
    return read.read(given.points, face, planar_view({0.0, 0.0, 1.0})) &&
           read.triangulate(triangles);
}

TEST(CsgMonotoneFace, FacesThatItCutsHaveTheTrianglesOfTheSweep) {
    support::generator random(71);
    int answered = 0;
    for (int i = 0; i < 20000; ++i) {
        const scattered_faces given = random_faces(random, random.between(3, 7), 1);
        monotone_face face;
        triangles_of_face triangles;
        std::vector<triangles_of_face> expected;
        if (cut(given, given.faces[0], face, triangles)) {
            ++answered;
            ASSERT_TRUE(sweep(given, expected));
            ASSERT_EQ(triangles, expected[0]);
        }
    }
    EXPECT_GT(answered, 2000);
}

TEST(CsgMonotoneFace, TwoThatLieBesideEachOtherHaveTheTrianglesOfTheCommonSweep) {
    support::generator random(72);
    int answered = 0;
    for (int i = 0; i < 20000; ++i) {
        const scattered_faces given = random_faces(random, random.between(4, 7), 2);
        std::array<monotone_face, 2> faces;
        std::vector<triangles_of_face> triangles(2);
        std::vector<triangles_of_face> expected;
        if (cut(given, given.faces[0], faces[0], triangles[0]) &&
            cut(given, given.faces[1], faces[1], triangles[1]) &&
            (faces[0].has_outside(faces[1]) || faces[1].has_outside(faces[0]))) {
            ++answered;
            ASSERT_TRUE(sweep(given, expected));
            ASSERT_EQ(triangles, expected);
        }
    }
    EXPECT_GT(answered, 200);
}

TEST(CsgMonotoneFace, ConvexFacesOfSevenCornersAreCut) {
    const scattered_faces given = {
        {{0, 0, 0}, {4, -3, 0}, {9, -2, 0}, {12, 3, 0}, {9, 7, 0}, {5, 8, 0}, {1, 5, 0}},
        {{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 0}}}};
    monotone_face face;
    triangles_of_face triangles;
    EXPECT_TRUE(cut(given, given.faces[0], face, triangles));
    EXPECT_EQ(triangles.size(), 5u);
}

TEST(CsgMonotoneFace, AFaceThatTurnsBackIsLeftToTheSweep) {
    const scattered_faces given = {{{0, 0, 0}, {9, 0, 0}, {5, 5, 0}, {9, 9, 0}, {0, 9, 0}},
                                   {{{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 0}}}};
    monotone_face face;
    triangles_of_face triangles;
    EXPECT_FALSE(cut(given, given.faces[0], face, triangles));
}

} // namespace
