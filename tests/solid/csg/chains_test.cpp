// Results are operands again: chains of twelve operations that feed back what they get.

#include <cmath>
#include <iostream>

#include <gtest/gtest.h>

#include <tests/solid/csg/block_model.h>
#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/whole_boxes.h>

namespace {

using csg_test::block_model;
using csg_test::operation;
using csg_test::whole_box;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_solid;
using support::generator;

constexpr int chain_length = 12;
constexpr int lattice_side = 6;

/// Mostly unions and differences: intersections soon leave nothing.
operation random_operation(generator& random) {
    const int draw = random.between(0, 9);
    return draw < 5 ? operation::unites
                    : (draw < 9 ? operation::substracts : operation::intersects);
}

/// Runs one chain on a lattice; counts the steps whose result has another number of faces.
void run_chain(generator& random, const support::frame& frame, const ox_3dvector& origin,
               int& other_face_counts) {
    block_model model(lattice_side);
    ox_solid so_far;
    for (int step = 0; step < chain_length; ++step) {
        const whole_box box = csg_test::random_box(random, lattice_side);
        const operation with = step < 2 ? operation::unites : random_operation(random);
        apply(model, with, box);
        so_far = csg_test::combine(so_far, with, csg_test::to_brick(box, frame, origin));
        const double area = model.get_area() + 6.0 * lattice_side * lattice_side;
        ASSERT_NEAR(so_far.get_volume(), model.get_volume(),
                    (step + 1) * csg_test::volume_bound(area, area))
            << "step " << step;
        ASSERT_TRUE(csg_test::is_closed(so_far)) << "step " << step;
        other_face_counts += support::count_faces(so_far) == model.count_faces() ? 0 : 1;
    }
}

TEST(CsgChains, TwelveOperationsOnALatticeAreRightAndHaveTheFewestFaces) {
    generator random(72);
    int other_face_counts = 0;
    for (int i = 0; i < support::all_or(3000, 60); ++i) {
        SCOPED_TRACE(i);
        run_chain(random, support::frame(), ox_3dvector(), other_face_counts);
    }
    EXPECT_EQ(other_face_counts, 0);
}

TEST(CsgChains, TwelveOperationsOnATurnedLatticeAreRight) {
    generator random(73);
    int other_face_counts = 0;
    const int chains = support::all_or(3000, 60);
    for (int i = 0; i < chains; ++i) {
        SCOPED_TRACE(i);
        const support::frame frame = support::random_frame(random);
        const ox_3dvector origin = support::random_point(random, 100.0);
        run_chain(random, frame, origin, other_face_counts);
    }
    // Bricks are rounded to their faces' grids by up to a tenth of the tolerance, from where on a
    // face may come back as several.
    std::cout << other_face_counts << " of " << chains * chain_length
              << " results have more faces than they need\n";
    EXPECT_LE(other_face_counts, chains * chain_length / 4);
}

TEST(CsgChains, TwelveOperationsInGeneralPositionAddUp) {
    generator random(74);
    for (int i = 0; i < support::all_or(2000, 30); ++i) {
        SCOPED_TRACE(i);
        const ox_3dvector centre = support::random_point(random, 1.0);
        ox_solid so_far = support::random_brick(random, centre, support::random_frame(random));
        for (int step = 1; step < chain_length; ++step) {
            const ox_3dvector place = support::random_point(random, 2.0);
            const ox_solid tool =
                support::random_prism(random, place, support::random_frame(random));
            const double before = so_far.get_volume();
            const double area = so_far.get_surface_area() + tool.get_surface_area();
            const ox_solid common = csg_test::combine(so_far, operation::intersects, tool);
            const bool adds = random.one_in(2);
            so_far =
                csg_test::combine(so_far, adds ? operation::unites : operation::substracts, tool);
            const double change = (adds ? tool.get_volume() : 0.0) - common.get_volume();
            ASSERT_NEAR(so_far.get_volume(), before + change,
                        2.0 * csg_test::volume_bound(area, 0.0))
                << "step " << step;
            ASSERT_TRUE(csg_test::is_closed(so_far)) << "step " << step;
        }
    }
}

/// On a turned lattice parts that touch in a point on paper may overlap by the rounding of the
/// bricks, and are one face then.
TEST(CsgChains, OneComputeOfAllOperandsGivesWhatAChainGives) {
    generator random(75);
    const int chains = support::all_or(2000, 60);
    int fewer_face_counts = 0;
    for (int i = 0; i < chains; ++i) {
        SCOPED_TRACE(i);
        const support::frame frame = support::random_frame(random);
        block_model model(lattice_side);
        ox_csg csg;
        for (int step = 0; step < chain_length; ++step) {
            const whole_box box = csg_test::random_box(random, lattice_side);
            const operation with = step < 2 ? operation::unites : random_operation(random);
            apply(model, with, box);
            csg_test::apply(csg, with, csg_test::to_brick(box, frame, ox_3dvector()));
        }
        ASSERT_TRUE(csg.compute());
        const ox_solid result = csg.get_solid();
        EXPECT_NEAR(result.get_volume(), model.get_volume(), 0.3);
        EXPECT_TRUE(csg_test::is_closed(result));
        EXPECT_EQ(csg.get_origins().size(), support::count_faces(result));
        fewer_face_counts += support::count_faces(result) < model.count_faces() ? 1 : 0;
    }
    std::cout << fewer_face_counts << " of " << chains
              << " results have fewer faces than on paper\n";
    EXPECT_LE(fewer_face_counts, chains / 500);
}

} // namespace
