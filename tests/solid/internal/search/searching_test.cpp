// The structures that booleans and sections search with: what they find is compared with a look at
// everything.

#include <ox/solid/internal/search/face_bounds.h>
#include <ox/solid/internal/search/face_tree.h>
#include <ox/solid/internal/search/plane_index.h>
#include <ox/solid/internal/section/section_chains.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <tests/reference/plane_section.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_box;
using ox::ox_polygon;
using ox::internal::face_bounds;
using support::generator;

constexpr float tolerance = 0.001f;

/// One of a few scales, from a tenth of a millimetre to a continent.
float any_scale(generator& random) {
    static const float scales[] = {0.0001f, 0.01f, 1.0f, 1.0f, 1.0f, 100.0f, 1e6f};
    return scales[random.between(0, 6)];
}

/// A triangle or quadrilateral: corners on a lattice, or anywhere.
ox_polygon any_face(generator& random, float scale) {
    ox_polygon face;
    ox::ox_list<ox_3dvector> corners;
    const bool on_lattice = random.one_in(2);
    for (int i = random.between(3, 4); i > 0; --i) {
        ox_3dvector corner = support::random_point(random, 3.0);
        if (on_lattice) {
            const int x = random.between(0, 3);
            const int y = random.between(0, 3);
            const int z = random.between(0, 3);
            corner =
                ox_3dvector(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
        }
        corners.push_right(corner * scale);
    }
    face.add_contour(corners);
    return face;
}

bool is_crossed(ox_polygon& face, const ox_3dvector& point, const ox_3dvector& normal) {
    bool has_below = false;
    bool has_other = false;
    for (const ox_3dvector& v : face.get_contour_vertices()) {
        const bool is_below = ox::ox_dot(v - point, normal) < -tolerance;
        has_below = has_below || is_below;
        has_other = has_other || !is_below;
    }
    return has_below && has_other;
}

TEST(FaceTree, FindsEveryFaceThatHasAnEdgeAcrossThePlane) {
    generator random(1);
    int crossed = 0;
    for (int round = 0; round < 10000; ++round) {
        const float scale = any_scale(random);
        std::vector<ox_polygon> faces;
        std::vector<face_bounds> bounds;
        for (int i = random.between(0, 40); i > 0; --i) {
            faces.push_back(any_face(random, scale));
            bounds.emplace_back(faces.back());
        }
        const ox::internal::face_tree tree(bounds);
        const ox_3dvector point = support::random_point(random, 2.0) * scale;
        ox_3dvector normal = support::random_frame(random).z;
        if (random.one_in(2)) {
            normal = ox_3dvector(0.0f, 0.0f, random.one_in(2) ? 1.0f : -1.0f);
        }
        const std::vector<int> found = tree.find_faces_at(point, normal, tolerance);
        EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
        for (int i = 0; i < static_cast<int>(faces.size()); ++i) {
            if (is_crossed(faces[static_cast<std::size_t>(i)], point, normal)) {
                ++crossed;
                EXPECT_TRUE(std::binary_search(found.begin(), found.end(), i)) << round;
            }
        }
    }
    EXPECT_GT(crossed, 3000);
}

TEST(FaceTree, LooksAtFewOfManyFaces) {
    std::vector<face_bounds> bounds;
    for (int i = 0; i < 1000; ++i) {
        ox_polygon face = support::rectangle_polygon(0.0f, 0.0f, 1.0f, 1.0f, static_cast<float>(i));
        bounds.emplace_back(face);
    }
    const ox::internal::face_tree tree(bounds);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    EXPECT_LE(tree.find_faces_at(ox_3dvector(0.0f, 0.0f, 500.5f), up, tolerance).size(), 1u);
}

TEST(FaceTree, FindsFacesOutOfThisWorldWhateverThePlane) {
    const ox_3dvector corner(0.0f, 0.0f, std::numeric_limits<float>::infinity());
    const std::vector<face_bounds> bounds = {face_bounds(&corner, 1), face_bounds()};
    const ox::internal::face_tree tree(bounds);
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    EXPECT_EQ(tree.find_faces_at(ox_3dvector(), up, tolerance), std::vector<int>{0});
}

TEST(FaceBounds, ThatAreApartFromABoxBelongToAFaceThatMayNotIntersectIt) {
    generator random(2);
    int apart = 0;
    for (int round = 0; round < 10000; ++round) {
        const float scale = any_scale(random);
        ox_polygon face = any_face(random, scale);
        const face_bounds bounds(face);
        ox_box box;
        box.enlarge(support::random_point(random, 3.0) * scale);
        box.enlarge(support::random_point(random, 3.0) * scale);
        if (random.one_in(3) && face.get_contour_vertices().size() > 0) {
            const ox_3dvector gap(static_cast<float>(random.real(0.0, 0.0005)), 0.0f, 0.0f);
            box = ox_box();
            box.enlarge(bounds.high + gap);
            box.enlarge(bounds.high + gap + ox_3dvector(scale, scale, scale));
        }
        if (bounds.surely_apart_from(box, face.get_contour_vertices().size())) {
            ++apart;
            EXPECT_FALSE(face.may_intersect(box)) << round;
        }
    }
    EXPECT_GT(apart, 1000);
}

bool are_coplanar(const ox::internal::face_plane& a, const ox::internal::face_plane& b) {
    const ox_3dvector difference = a.point - b.point;
    return a.normal.distance_to(b.normal) < tolerance &&
           std::fabs(ox::ox_dot(difference, a.normal)) <= tolerance &&
           std::fabs(ox::ox_dot(difference, b.normal)) <= tolerance;
}

/// Planes that are often the same but for a slight turn or shift.
std::vector<ox::internal::face_plane> any_planes(generator& random) {
    const float scale = any_scale(random);
    std::vector<ox::internal::face_plane> planes;
    for (int i = random.between(1, 40); i > 0; --i) {
        ox_3dvector normal(0.0f, 0.0f, 1.0f);
        ox_3dvector point = support::random_point(random, 1.0) * scale;
        point.z = static_cast<float>(random.between(0, 2));
        if (random.one_in(3)) {
            normal += support::random_point(random, 0.0008);
        } else if (random.one_in(5)) {
            normal = support::random_frame(random).x;
        }
        if (random.one_in(3)) {
            point.z += static_cast<float>(random.real(-0.002, 0.002));
        }
        planes.push_back({point, normal});
    }
    return planes;
}

TEST(PlaneIndex, FindsEveryLaterPlaneThatIsTheSameWithinTheTolerance) {
    generator random(4);
    int coplanar = 0;
    for (int round = 0; round < 10000; ++round) {
        const std::vector<ox::internal::face_plane> planes = any_planes(random);
        const ox::internal::plane_index index(planes, tolerance);
        for (std::size_t i = 0; i < planes.size(); ++i) {
            const std::vector<std::size_t> found = index.find_later(i);
            EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
            EXPECT_TRUE(found.empty() || found.front() > i);
            for (std::size_t j = i + 1; j < planes.size(); ++j) {
                if (are_coplanar(planes[i], planes[j])) {
                    ++coplanar;
                    EXPECT_TRUE(std::binary_search(found.begin(), found.end(), j)) << round;
                }
            }
        }
    }
    EXPECT_GT(coplanar, 10000);
}

/// Segments between points that are often within the tolerance of each other.
std::vector<reference::chain> any_segments(generator& random) {
    std::vector<reference::chain> segments;
    const int places = random.between(2, 30);
    const int jitter = random.between(0, 4);
    const bool is_far_out = random.one_in(10);
    const auto any_point = [&] {
        const float place = static_cast<float>(random.between(0, places));
        const float step = static_cast<float>(random.between(-jitter, jitter)) * 0.00025f;
        ox_3dvector point(place, 0.5f * place + step, random.one_in(2) ? step : 0.0f);
        if (is_far_out && random.one_in(5)) {
            point.x = random.any_float();
        }
        return point;
    };
    for (int i = random.between(1, 60); i > 0; --i) {
        const ox_3dvector from = any_point();
        const ox_3dvector to = any_point();
        segments.push_back({{from, to}, false});
    }
    return segments;
}

TEST(SectionChains, AreThePlainOnes) {
    generator random(3);
    for (int round = 0; round < 10000; ++round) {
        std::vector<reference::chain> plain = any_segments(random);
        std::vector<ox::internal::section_segment> chains;
        for (const reference::chain& segment : plain) {
            chains.emplace_back(segment.points[0], segment.points[1]);
        }
        reference::chain_segments(plain, tolerance);
        ox::internal::chain_segments(chains, tolerance);
        for (std::size_t i = 0; i < plain.size(); ++i) {
            ASSERT_EQ(chains[i].is_appended, plain[i].points.empty()) << round;
            if (chains[i].is_appended) {
                continue;
            }
            ASSERT_EQ(chains[i].is_closed, plain[i].closed) << round;
            ox::ox_list<ox_3dvector> points;
            for (const ox_3dvector& point : plain[i].points) {
                points.push_right(point);
            }
            ASSERT_TRUE(ox_test::have_same_bits(ox::internal::list_points(chains, i), points))
                << round;
        }
    }
}

} // namespace
