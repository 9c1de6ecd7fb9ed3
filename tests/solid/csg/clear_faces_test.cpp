// Triangles that are known to meet nothing are left out of the search for contacts. Most triangles
// of a mesh are, and none of them has a contact.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/clear_faces.h>
#include <ox/solid/internal/csg/exact/contacts.h>
#include <tests/solid/csg/laid_scene.h>
#include <tests/solid/csg/shapes.h>

namespace {

using csg_test::laid_scene;
using ox::ox_3dvector;
using ox::ox_solid;
using support::generator;
using namespace ox::internal::csg;

/// The triangles of a scene as an arrangement takes them, none of them known to be clear.
arrangement_input make_input(const laid_scene& laid) {
    arrangement_input input;
    input.points = laid.faces.points;
    for (const face_triangle& triangle : laid.triangles) {
        input.triangles.push_back(
            {triangle.vertices, laid.faces.faces[static_cast<std::size_t>(triangle.face)].operand});
    }
    return input;
}

/// For each triangle, true where something is imposed on it or on one of its sides.
std::vector<bool> find_touched(const laid_scene& laid) {
    const arrangement_input input = make_input(laid);
    const progress_report report = csg_test::keep_going;
    exact::progress_poll poll(report);
    exact::facet_complex complex(input, poll);
    exact::side_planes planes(complex);
    const exact::contact_list contacts = exact::find_contacts(complex, planes, poll);
    std::vector<bool> is_side_touched(static_cast<std::size_t>(complex.edges.count()), false);
    for (const exact::side_point& imposed : contacts.side_points) {
        is_side_touched[static_cast<std::size_t>(imposed.side)] = true;
    }
    std::vector<bool> is_facet_touched = contacts.has_coincidence;
    for (const exact::facet_segment& imposed : contacts.segments) {
        is_facet_touched[static_cast<std::size_t>(imposed.facet)] = true;
    }
    for (const exact::facet_point& imposed : contacts.points) {
        is_facet_touched[static_cast<std::size_t>(imposed.facet)] = true;
    }
    std::vector<bool> is_touched(input.triangles.size(), false);
    for (std::size_t f = 0; f < complex.facets.size(); ++f) {
        const exact::facet& facet = complex.facets[f];
        is_touched[static_cast<std::size_t>(facet.triangle)] =
            is_facet_touched[f] ||
            std::any_of(facet.sides.begin(), facet.sides.end(),
                        [&](int side) { return is_side_touched[static_cast<std::size_t>(side)]; });
    }
    return is_touched;
}

/// Expects that no triangle that is clear is touched; gives the number of clear ones.
std::size_t expect_clear_ones_untouched(const laid_scene& laid) {
    const std::vector<bool> is_clear = find_clear_triangles(laid.faces, laid.triangles);
    const std::vector<bool> is_touched = find_touched(laid);
    EXPECT_EQ(is_clear.size(), laid.triangles.size());
    std::size_t count = 0;
    for (std::size_t t = 0; t < is_clear.size(); ++t) {
        EXPECT_FALSE(is_clear[t] && is_touched[t]) << "triangle " << t;
        count += is_clear[t] ? 1 : 0;
    }
    return count;
}

ox_solid ball(const ox_3dvector& centre) {
    return csg_test::sphere(centre, 24, 3.0);
}

TEST(CsgClearFaces, MostTrianglesOfSpheresThatCrossAreClear) {
    const laid_scene laid({ball(ox_3dvector()), ball(ox_3dvector(1.9f, 1.3f, 0.8f))});
    EXPECT_GT(expect_clear_ones_untouched(laid), laid.triangles.size() * 3 / 4);
}

TEST(CsgClearFaces, AllTrianglesOfALoneSphereAreClear) {
    const laid_scene laid({ball(ox_3dvector())});
    EXPECT_EQ(expect_clear_ones_untouched(laid), laid.triangles.size());
}

TEST(CsgClearFaces, TrianglesThatCrossOthersOfTheirOwnOperandAreNotClear) {
    const laid_scene laid(
        {csg_test::in_one_storage(ball(ox_3dvector()), ball(ox_3dvector(1.9f, 1.3f, 0.8f)))});
    const std::size_t clear_count = expect_clear_ones_untouched(laid);
    EXPECT_GT(clear_count, laid.triangles.size() / 2);
    EXPECT_LT(clear_count, laid.triangles.size());
}

/// A fan of triangles from one point that turns twice about it before it comes back to the first.
TEST(CsgClearFaces, TrianglesOfAFanThatTurnsTwiceAreNotClear) {
    csg_test::triangle_builder made;
    const int count = 10;
    const unsigned int top = made.add_vertex(ox_3dvector(0.0f, 0.0f, 1.0f));
    const unsigned int bottom = made.add_vertex(ox_3dvector(0.0f, 0.0f, -1.0f));
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * csg_test::full_turn * i / count + 0.05 * (i < count / 2 ? 1 : 0);
        made.add_vertex(ox_3dvector(static_cast<float>(2.0 * std::cos(angle)),
                                    static_cast<float>(2.0 * std::sin(angle)),
                                    0.1f * static_cast<float>(i % 3)));
    }
    for (int i = 0; i < count; ++i) {
        const auto from = static_cast<unsigned int>(2 + i);
        const auto to = static_cast<unsigned int>(2 + (i + 1) % count);
        made.add_triangle(top, from, to);
        made.add_triangle(bottom, to, from);
    }
    EXPECT_EQ(expect_clear_ones_untouched(laid_scene({made.build()})), 0u);
}

TEST(CsgClearFaces, NoClearTriangleOfRandomSolidsHasAContact) {
    generator random(96);
    std::size_t clear_count = 0;
    for (int i = 0; i < 150; ++i) {
        SCOPED_TRACE(i);
        std::vector<ox_solid> solids;
        for (int k = 0; k < 3; ++k) {
            solids.push_back(random.one_in(2) ? csg_test::random_solid(random)
                                              : csg_test::sphere(support::random_point(random, 2.0),
                                                                 random.between(3, 12), 1.5));
        }
        if (random.one_in(3)) {
            solids[0] = csg_test::in_one_storage(solids[0], solids[1]);
        }
        clear_count += expect_clear_ones_untouched(laid_scene(solids));
    }
    EXPECT_GT(clear_count, 0u);
}

TEST(CsgClearFaces, TrianglesNextToADividedFaceAreNotClear) {
    laid_scene laid({ball(ox_3dvector())});
    scene_face& divided = laid.faces.faces.front();
    divided.is_divided = true;
    const std::vector<bool> is_clear = find_clear_triangles(laid.faces, laid.triangles);
    for (std::size_t t = 0; t < is_clear.size(); ++t) {
        const std::array<int, 3>& corners = laid.triangles[t].vertices;
        const bool is_next = std::any_of(
            divided.boundary.begin(), divided.boundary.end(), [&](const directed_edge& edge) {
                return std::find(corners.begin(), corners.end(), edge[0]) != corners.end();
            });
        EXPECT_FALSE(is_next && is_clear[t]) << "triangle " << t;
    }
    EXPECT_GT(std::count(is_clear.begin(), is_clear.end(), true), 0);
}

} // namespace
