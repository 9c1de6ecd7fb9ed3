// The booleans, sections and clips of random solids are compared with plain versions, bit for bit.

#include <string>

#include <gtest/gtest.h>

#include <ox/solid/ox_solid.h>
#include <tests/reference/combine.h>
#include <tests/reference/plane_section.h>
#include <tests/solid/same_polygons.h>
#include <tests/solid/solid_lists.h>
#include <tests/support/random_shapes.h>

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;
using support::generator;

using boolean = void (ox_solid::*)(ox_solid&);
using plain_boolean = std::string (*)(ox_solid&, ox_solid&);

struct boolean_pair {
    boolean fast;
    plain_boolean plain;
};

constexpr boolean_pair booleans[] = {
    {&ox_solid::unites, &reference::unites},
    {&ox_solid::substracts, &reference::substracts},
    {&ox_solid::intersects, &reference::intersects},
};

/// A brick whose corners lie on a coarse lattice: faces often coincide and edges often touch.
ox_solid lattice_brick(generator& random) {
    const float x = static_cast<float>(random.between(0, 3));
    const float y = static_cast<float>(random.between(0, 3));
    const float z = static_cast<float>(random.between(0, 3));
    const float dx = static_cast<float>(random.between(1, 3));
    const float dy = static_cast<float>(random.between(1, 3));
    const float dz = static_cast<float>(random.between(1, 3));
    ox_solid solid;
    solid.brick(ox_3dvector(x, y, z), dx, dy, dz);
    return solid;
}

ox_solid turned_solid(generator& random) {
    const ox_3dvector centre = support::random_point(random, 1.5);
    const support::frame axes = support::random_frame(random);
    return random.one_in(2) ? support::random_brick(random, centre, axes)
                            : support::random_prism(random, centre, axes);
}

/// Faces that bound nothing: triangles in no order, some flat, some out of this world.
ox_solid loose_triangles(generator& random) {
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours;
    ox_list<int> sizes;
    const int faces = random.between(1, 8);
    for (int i = 0; i < 3 * faces; ++i) {
        ox_3dvector vertex = support::random_point(random, 2.0);
        if (random.one_in(20)) {
            vertex.x = random.any_float();
        }
        vertices.push_right(vertex);
        contours.push_right(static_cast<unsigned int>(random.between(0, 3 * faces)));
        if (i % 3 == 0) {
            sizes.push_right(random.one_in(10) ? random.between(-4, 4) : 3);
        }
    }
    ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

using shape = ox_solid (*)(generator&);

/// Applies chains of random booleans to random solids, next to their plain versions.
void compare_booleans(shape make_shape, int rounds, std::uint64_t seed) {
    generator random(seed);
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        ox_solid fast = make_shape(random);
        ox_solid plain(fast);
        for (int step = 0; step < 3; ++step) {
            ox_solid other = make_shape(random);
            const boolean_pair operation = booleans[random.between(0, 2)];
            (fast.*operation.fast)(other);
            operation.plain(plain, other);
        }
        ox_test::expect_same_storage(fast, plain);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

void compare_section(ox_solid& solid, const ox_3dvector& point, const ox_3dvector& normal) {
    ox_test::expect_same_pieces(solid.intersect_by_plane(point, normal),
                                reference::section_pieces(solid.get_faces(), point, normal));
}

/// A plane of random direction through a random point, or along an axis through whole numbers, or
/// through a vertex.
void draw_plane(generator& random, const ox_solid& solid, ox_3dvector& point, ox_3dvector& normal) {
    point = support::random_point(random, 2.0);
    normal = support::random_frame(random).z;
    if (random.one_in(2)) {
        normal = ox_3dvector();
        normal[static_cast<unsigned int>(random.between(0, 2))] = random.one_in(2) ? 1.0f : -1.0f;
        const float place = static_cast<float>(random.between(0, 5));
        point = ox_3dvector(place, place, place);
    }
    if (random.one_in(4) && solid.get_vertices().size() > 0) {
        point = solid.get_vertices()[random.between(0, solid.get_vertices().size() - 1)];
    }
}

void compare_planes(shape make_shape, int rounds, std::uint64_t seed) {
    generator random(seed);
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        ox_solid fast = make_shape(random);
        ox_3dvector point;
        ox_3dvector normal;
        draw_plane(random, fast, point, normal);
        compare_section(fast, point, normal);
        ox_solid plain(fast);
        fast.clip(point, normal);
        reference::clip(plain, point, normal);
        ox_test::expect_same_storage(fast, plain);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

TEST(OxSolidDifferential, BooleansOfBricksOnALatticeEqualThePlainOnes) {
    compare_booleans(lattice_brick, 700, 1);
}

TEST(OxSolidDifferential, BooleansOfTurnedBricksAndPrismsEqualThePlainOnes) {
    compare_booleans(turned_solid, 700, 2);
}

TEST(OxSolidDifferential, BooleansOfLooseTrianglesEqualThePlainOnes) {
    compare_booleans(loose_triangles, 500, 3);
}

TEST(OxSolidDifferential, PlaneOperationsOnBricksOnALatticeEqualThePlainOnes) {
    compare_planes(lattice_brick, 1500, 4);
}

TEST(OxSolidDifferential, PlaneOperationsOnTurnedBricksAndPrismsEqualThePlainOnes) {
    compare_planes(turned_solid, 1500, 5);
}

TEST(OxSolidDifferential, PlaneOperationsOnLooseTrianglesEqualThePlainOnes) {
    compare_planes(loose_triangles, 1500, 6);
}

/// A comb has many segments in its section and many pieces.
TEST(OxSolidDifferential, SectionsOfALongCombEqualThePlainOnes) {
    generator random(7);
    ox_list<ox_3dvector> outline;
    const int teeth = 60;
    for (int i = 0; i < teeth; ++i) {
        const float x = static_cast<float>(i);
        outline.push_right(ox_3dvector(x, i % 2 == 0 ? 0.0f : 1.0f, 0.0f));
        outline.push_right(ox_3dvector(x + 1.0f, i % 2 == 0 ? 0.0f : 1.0f, 0.0f));
    }
    outline.push_right(ox_3dvector(static_cast<float>(teeth), 3.0f, 0.0f));
    outline.push_right(ox_3dvector(0.0f, 3.0f, 0.0f));
    ox_polygon profile;
    profile.add_contour(outline);
    ox_solid comb;
    comb.extrusion(profile, ox_3dvector(0.0f, 0.0f, 1.0f));
    for (int round = 0; round < 50; ++round) {
        const float height = static_cast<float>(random.between(0, 12)) * 0.25f;
        compare_section(comb, ox_3dvector(0.0f, height, 0.0f), ox_3dvector(0.0f, 1.0f, 0.0f));
        compare_section(comb, ox_3dvector(0.0f, height, 0.5f), support::random_frame(random).x);
    }
}

} // namespace
