// Booleans keep the polygons of faces that would come out as they are, and sections those of the
// last one: chains of both are compared with plain versions that make every face anew.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ox/geometry/ox_matrix.h>
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

/// Expects the faces of a solid to be those of a copy, which makes them all anew.
void expect_faces_of_a_copy(ox_solid& solid) {
    ox_solid copy(solid);
    const ox_list<ox_polygon*>& faces = solid.get_faces();
    const ox_list<ox_polygon*>& expected = copy.get_faces();
    ASSERT_EQ(faces.size(), expected.size());
    for (int i = 0; i < faces.size(); ++i) {
        ox_test::expect_same_polygon(*faces[i], *expected[i]);
    }
}

void compare_section(ox_solid& fast, ox_solid& plain, const ox_3dvector& point,
                     const ox_3dvector& normal) {
    ox_test::expect_same_pieces(fast.intersect_by_plane(point, normal),
                                reference::section_pieces(plain.get_faces(), point, normal));
}

/// What random walls are made of.
struct site {
    float scale;        // model units per step of the lattice
    ox_3dvector offset; // of the lattice's origin
    support::frame axes;

    ox_solid brick(float x, float y, float z, float dx, float dy, float dz) const {
        ox_solid solid;
        solid.brick(offset + (axes.x * x + axes.y * y + axes.z * z) * scale, axes.x * (dx * scale),
                    axes.y * (dy * scale), axes.z * (dz * scale));
        return solid;
    }
};

site any_site(generator& random) {
    static const float scales[] = {1.0f, 1.0f, 1.0f, 0.01f, 0.001f, 100.0f};
    site made;
    made.scale = scales[random.between(0, 5)];
    if (random.one_in(3)) {
        made.offset = support::random_point(random, random.one_in(2) ? 20.0 : 5000.0);
    }
    if (random.one_in(3)) {
        made.axes = support::random_frame(random);
    }
    return made;
}

/// A tool on the lattice of a wall that is 12 long, 0.3 thick and 4 high: an opening that goes
/// through, a niche, or one that is flush with the wall. Tools often touch or overlap.
ox_solid any_tool(generator& random, const site& place) {
    static const float starts[] = {-0.1f, 0.15f, 0.0f};
    static const float depths[] = {0.5f, 0.5f, 0.3f};
    const int kind = random.between(0, 2);
    const float x = 0.5f * static_cast<float>(random.between(-1, 22));
    const float z = 0.5f * static_cast<float>(random.between(-1, 6));
    const float dx = 0.5f * static_cast<float>(random.between(1, 4));
    const float dz = 0.5f * static_cast<float>(random.between(1, 4));
    return place.brick(x, starts[kind], z, dx, depths[kind], dz);
}

/// Combines both solids with the tool, and compares what is printed.
void combine_both(generator& random, ox_solid& fast, ox_solid& plain, ox_solid& tool) {
    const int operation = random.between(0, 9);
    std::string expected;
    testing::internal::CaptureStdout();
    fast.set_verbose(true);
    if (operation < 7) {
        fast.substracts(tool);
        expected = reference::substracts(plain, tool);
    } else if (operation < 9) {
        fast.unites(tool);
        expected = reference::unites(plain, tool);
    } else {
        fast.intersects(tool);
        expected = reference::intersects(plain, tool);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), expected);
}

/// Changes a face that both solids show to their callers.
void change_face(generator& random, ox_solid& fast, ox_solid& plain) {
    if (fast.get_faces().size() == 0 || plain.get_faces().size() != fast.get_faces().size()) {
        return;
    }
    const int i = random.between(0, fast.get_faces().size() - 1);
    const int change = random.between(0, 3);
    const ox_3dvector somewhere = support::random_point(random, 5.0);
    for (ox_polygon* face : {fast.get_faces()[i], plain.get_faces()[i]}) {
        if (change == 0) {
            face->reverse();
        } else if (change == 1) {
            face->set_point(somewhere);
        } else if (change == 2) {
            face->set_normal(somewhere);
        } else {
            face->offset(0.125f, ox_polygon::join_miter);
        }
    }
}

/// Random booleans and sections of a wall, one after another.
void compare_walls(int rounds, std::uint64_t seed, bool are_faces_changed) {
    generator random(seed);
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        const site place = any_site(random);
        ox_solid fast = place.brick(0.0f, 0.0f, 0.0f, 12.0f, 0.3f, 4.0f);
        ox_solid plain(fast);
        for (int step = 0; step < 10; ++step) {
            ox_solid tool = any_tool(random, place);
            combine_both(random, fast, plain, tool);
            ox_test::expect_same_storage(fast, plain);
            if (random.one_in(2)) {
                const float height = 0.25f * static_cast<float>(random.between(0, 17));
                const ox_3dvector& normal = random.one_in(4) ? place.axes.x : place.axes.z;
                const ox_3dvector point = place.offset + normal * (height * place.scale);
                compare_section(fast, plain, point, normal);
            }
            if (are_faces_changed && random.one_in(4)) {
                change_face(random, fast, plain);
            }
            if (testing::Test::HasFailure()) {
                return;
            }
        }
        if (!are_faces_changed) {
            expect_faces_of_a_copy(fast);
        }
    }
}

TEST(KeptFaces, OfWallsWithOpeningsGiveThePlainResults) {
    compare_walls(800, 1, false);
}

TEST(KeptFaces, ThatTheirCallerChangedGiveThePlainResults) {
    compare_walls(400, 2, true);
}

TEST(KeptFaces, OfASolidThatOthersAreAppendedToGiveThePlainResults) {
    ox_solid fast = ox_test::unit_brick();
    ox_solid plain(fast);
    for (int i = 1; i < 20; ++i) {
        ox_solid tool = support::brick_between(ox_3dvector(2.0f * static_cast<float>(i), 0, 0),
                                               ox_3dvector(2.0f * static_cast<float>(i) + 1, 1, 1));
        fast.unites(tool);
        reference::unites(plain, tool);
        EXPECT_TRUE(ox_test::have_same_bits(fast.get_bounding_box().origin,
                                            plain.get_bounding_box().origin));
        EXPECT_TRUE(
            ox_test::have_same_bits(fast.get_bounding_box().size, plain.get_bounding_box().size));
    }
    ox_test::expect_same_storage(fast, plain);
    expect_faces_of_a_copy(fast);
}

TEST(KeptFaces, StayWhereTheSolidIsSectionedAgainAndAgain) {
    ox_solid solid = ox_test::unit_brick();
    solid.get_faces();
    const ox_3dvector up(0.0f, 0.0f, 1.0f);
    for (int i = 0; i < 3; ++i) {
        const int before = ox_polygon::get_instanced();
        for (ox_polygon* piece : solid.intersect_by_plane(ox_3dvector(0.0f, 0.0f, 0.5f), up)) {
            EXPECT_FLOAT_EQ(piece->get_area(), 1.0f);
            delete piece;
        }
        if (i > 0) {
            EXPECT_EQ(ox_polygon::get_instanced(), before);
        }
    }
}

void section_at_half_height(ox_solid& solid, int expected_pieces) {
    const ox_list<ox_polygon*> pieces =
        solid.intersect_by_plane(ox_3dvector(0.0f, 0.0f, 0.5f), ox_3dvector(0.0f, 0.0f, 1.0f));
    EXPECT_EQ(pieces.size(), expected_pieces);
    for (ox_polygon* piece : pieces) {
        delete piece;
    }
}

TEST(KeptFaces, AreThePolygonsThatWereThereBeforeTheBoolean) {
    ox_solid wall = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(4, 0.3f, 3));
    const ox_list<ox_polygon*> before = wall.get_faces();
    ox_solid tool = support::brick_between(ox_3dvector(1, -1, 1), ox_3dvector(2, 1, 2));
    wall.substracts(tool);
    const ox_list<ox_polygon*>& after = wall.get_faces();
    for (const int untouched : {0, 1, 4, 5}) { // all but the two that were cut
        EXPECT_EQ(after[untouched], before[untouched]);
    }
    EXPECT_NE(after[2], before[2]);
    EXPECT_NE(after[3], before[3]);
}

TEST(KeptFaces, AreNotCountedAmongTheLivingPolygonsBeforeTheyAreAskedFor) {
    ox_solid wall = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(4, 0.3f, 3));
    ox_solid tool = support::brick_between(ox_3dvector(1, -1, 1), ox_3dvector(2, 1, 2));
    const int before = ox_polygon::get_instanced();
    wall.substracts(tool);
    EXPECT_EQ(ox_polygon::get_instanced(), before + 6); // the faces of the tool
    EXPECT_EQ(wall.get_faces().size(), 10);
    EXPECT_EQ(ox_polygon::get_instanced(), before + 6 + 10);
    wall.clear();
    EXPECT_EQ(ox_polygon::get_instanced(), before + 6);
}

TEST(KeptFaces, MadeForASectionAreNotCountedAmongTheLivingPolygons) {
    ox_solid solid = ox_test::unit_brick();
    solid.get_faces()[4]->reverse(); // the bottom: a section is now of the faces added again
    const int before = ox_polygon::get_instanced();
    section_at_half_height(solid, 1);
    EXPECT_EQ(ox_polygon::get_instanced(), before);
}

TEST(KeptFaces, MadeForASectionAreNotTakenForFewerFaces) {
    ox_solid towers = ox_test::unit_brick();
    ox_solid second = support::brick_between(ox_3dvector(5, 0, 0), ox_3dvector(6, 1, 1));
    towers.unites(second);
    towers.get_faces()[4]->reverse(); // a bottom
    section_at_half_height(towers, 2);
    for (int i = 6; i < 12; ++i) {
        towers.get_faces()[i]->clear();
    }
    section_at_half_height(towers, 1);
}

/// All ways in which a caller may change a face that a solid shows.
std::vector<std::function<void(ox_polygon&, const ox_polygon&)>> ways_to_change() {
    return {
        [](ox_polygon& face, const ox_polygon& other) { face = other; },
        [](ox_polygon& face, const ox_polygon& other) { face = ox_polygon(other); },
        [](ox_polygon& face, const ox_polygon& other) {
            ox_polygon exchanged(other);
            exchanged.swap(face);
        },
        [](ox_polygon& face, const ox_polygon&) { ox_polygon taken(std::move(face)); },
        [](ox_polygon& face, const ox_polygon& other) {
            face.add_contour(ox_polygon(other).get_contour_vertices());
        },
        [](ox_polygon& face, const ox_polygon&) { face.clear(); },
        [](ox_polygon& face, const ox_polygon& other) { face.set_normal(other.get_normal()); },
        [](ox_polygon& face, const ox_polygon& other) { face.set_point(other.get_point()); },
        [](ox_polygon& face, const ox_polygon&) { face.reverse(); },
        [](ox_polygon& face, const ox_polygon& other) {
            ox::ox_matrix moving;
            moving.translate(other.get_point());
            face.matrix_transform(moving);
        },
        [](ox_polygon& face, const ox_polygon& other) { face.unites(other); },
        [](ox_polygon& face, const ox_polygon& other) { face.substracts(other); },
        [](ox_polygon& face, const ox_polygon& other) { face.intersects(other); },
        [](ox_polygon& face, const ox_polygon&) { face.offset(0.125f, ox_polygon::join_round); },
        [](ox_polygon& face, const ox_polygon&) { face.offset(-0.125f, ox_polygon::join_square); },
        [](ox_polygon& face, const ox_polygon&) { face.optimize_contours(0.25f); },
    };
}

/// Expects a section to be the plain one of the faces as they stand.
void expect_section_of_faces(ox_solid& solid, generator& random) {
    const ox_3dvector point = support::random_point(random, 1.0);
    const ox_3dvector normal = support::random_frame(random).x;
    compare_section(solid, solid, point, normal);
}

TEST(KeptFaces, ThatChangeInAnyWayAreSeenByTheNextSection) {
    generator random(7);
    const auto ways = ways_to_change();
    for (int round = 0; round < 3000 && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        ox_solid solid = ox_test::unit_brick();
        ox_solid tool = support::brick_between(support::random_point(random, 1.0),
                                               support::random_point(random, 1.0));
        solid.substracts(tool);
        for (int step = 0; step < 4 && solid.get_faces().size() > 0; ++step) {
            expect_section_of_faces(solid, random);
            ox_polygon& face = *solid.get_faces()[random.between(0, solid.get_faces().size() - 1)];
            const ox_polygon other(*tool.get_faces()[random.between(0, 5)]);
            const int way = random.between(0, static_cast<int>(ways.size()) - 1);
            ways[static_cast<std::size_t>(way)](face, other);
        }
        expect_section_of_faces(solid, random);
    }
}

TEST(KeptFaces, TakenOutOfASolidMayOutliveIt) {
    ox_polygon taken;
    {
        ox_solid solid = ox_test::unit_brick();
        section_at_half_height(solid, 1);
        taken = std::move(*solid.get_faces()[0]);
    }
    taken.reverse();
    EXPECT_FLOAT_EQ(taken.get_area(), 1.0f);
}

TEST(KeptFaces, ForgetTheBestCentreThatTheyHadElsewhere) {
    ox_solid solid = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(4, 4, 4));
    ox_polygon& face = *solid.get_faces()[0];
    ox::ox_matrix away;
    away.translate(ox_3dvector(0, 8, 0));
    ox::ox_matrix back;
    back.translate(ox_3dvector(0, -8, 0));
    face.matrix_transform(away);
    face.get_best_center();
    face.matrix_transform(back);
    ox_solid tool = support::brick_between(ox_3dvector(3, 3, 3), ox_3dvector(5, 5, 5));
    solid.substracts(tool);
    ox_solid copy(solid);
    EXPECT_EQ(solid.get_faces()[0]->get_best_center(), copy.get_faces()[0]->get_best_center());
}

} // namespace
