// Every surveyed building that is closed within two centimetres can be clipped, drilled, dug under,
// given a dormer and joined with a neighbour; of the others a place is told where they are open.

#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>
#include <tests/support/buildings.h>

namespace {

using csg_test::operation;
using ox::ox_3dvector;
using ox::ox_box;
using ox::ox_csg;
using ox::ox_solid;
using support::survey_tolerance;

/// A building with what the laws of volumes need.
struct surveyed_solid {
    std::string name;
    ox_solid solid;
    double volume;
    double area;
    ox_3dvector centre;
    ox_3dvector size;
};

surveyed_solid survey(const support::building& building) {
    surveyed_solid made = {building.name, support::exact_solid(building), 0.0, 0.0, {}, {}};
    made.volume = made.solid.get_volume();
    made.area = made.solid.get_surface_area();
    const ox_box box = made.solid.get_bounding_box();
    made.centre = box.origin + box.size * 0.5f;
    made.size = box.size;
    return made;
}

class CsgBuildings : public ::testing::Test {
protected:
    void SetUp() override {
        for (const support::building& building : support::read_surveyed_buildings()) {
            const surveyed_solid made = survey(building);
            const bool is_closed = made.solid.get_open_edges(survey_tolerance).size() == 0;
            (is_closed ? closed : open).push_back(made);
        }
        ASSERT_GT(closed.size(), 100u);
        ASSERT_GT(open.size(), 100u);
    }

    std::vector<surveyed_solid> closed;
    std::vector<surveyed_solid> open;
};

/// Surveyed faces are uneven by up to the tolerance, so it is the bound over the whole surface.
double survey_bound(double area) {
    return area * static_cast<double>(survey_tolerance);
}

ox_solid combine_surveyed(const ox_solid& a, operation with, const ox_solid& b) {
    return csg_test::combine(a, with, b, survey_tolerance);
}

/// A brick of these shares of the building's box, `lift` heights above its centre.
ox_solid brick_at(const surveyed_solid& building, const support::frame& axes, float share,
                  float lift) {
    const ox_3dvector size = building.size * share;
    const ox_3dvector middle = building.centre + ox_3dvector(0.0f, 0.0f, building.size.z * lift);
    ox_solid brick;
    brick.brick(middle - (axes.x * size.x + axes.y * size.y + axes.z * size.z) * 0.5f,
                axes.x * size.x, axes.y * size.y, axes.z * size.z);
    return brick;
}

/// Union, difference and intersection with `tool` make up building and tool.
void expect_laws(const surveyed_solid& building, const ox_solid& tool) {
    SCOPED_TRACE(building.name);
    const ox_solid united = combine_surveyed(building.solid, operation::unites, tool);
    const ox_solid rest = combine_surveyed(building.solid, operation::substracts, tool);
    const ox_solid common = combine_surveyed(building.solid, operation::intersects, tool);
    const double bound = survey_bound(building.area + tool.get_surface_area());
    EXPECT_NEAR(rest.get_volume() + common.get_volume(), building.volume, bound);
    EXPECT_NEAR(united.get_volume() + common.get_volume(), building.volume + tool.get_volume(),
                bound);
    for (const ox_solid* result : {&united, &rest, &common}) {
        EXPECT_TRUE(csg_test::is_closed(*result));
    }
}

support::frame turned_about_the_vertical() {
    return {ox_3dvector(0.8f, 0.6f, 0.0f), ox_3dvector(-0.6f, 0.8f, 0.0f),
            ox_3dvector(0.0f, 0.0f, 1.0f)};
}

TEST_F(CsgBuildings, ClippedHalvesMakeUpTheWhole) {
    for (const surveyed_solid& building : closed) {
        SCOPED_TRACE(building.name);
        double sum = 0.0;
        for (const float side : {1.0f, -1.0f}) {
            ox_csg csg(survey_tolerance);
            csg.unites(building.solid);
            csg.clips(building.centre, ox_3dvector(0.3f, 0.2f, 1.0f) * side);
            ASSERT_TRUE(csg.compute());
            const ox_solid half = csg.get_solid();
            EXPECT_TRUE(csg_test::is_closed(half));
            EXPECT_GT(half.get_volume(), 0.0);
            sum += half.get_volume();
        }
        EXPECT_NEAR(sum, building.volume, survey_bound(building.area));
    }
}

TEST_F(CsgBuildings, ABrickInGeneralPositionObeysTheLaws) {
    support::generator random(8);
    const support::frame axes = support::random_frame(random);
    for (const surveyed_solid& building : closed) {
        expect_laws(building, brick_at(building, axes, 0.4f, 0.0f));
    }
}

TEST_F(CsgBuildings, ACellarUnderTheFloorObeysTheLaws) {
    for (const surveyed_solid& building : closed) {
        expect_laws(building, brick_at(building, support::frame(), 0.7f, -0.6f));
    }
}

TEST_F(CsgBuildings, ADormerThroughTheRoofObeysTheLaws) {
    for (const surveyed_solid& building : closed) {
        expect_laws(building, brick_at(building, turned_about_the_vertical(), 0.3f, 0.4f));
    }
}

TEST_F(CsgBuildings, ANeighbourThatOverlapsObeysTheLaws) {
    for (std::size_t i = 0; i + 1 < closed.size(); ++i) {
        expect_laws(closed[i], closed[i + 1].solid);
    }
}

TEST_F(CsgBuildings, ACopyBesideTheWallObeysTheLaws) {
    for (const surveyed_solid& building : closed) {
        ox::ox_list<ox_3dvector> vertices = building.solid.get_vertices();
        for (ox_3dvector& vertex : vertices) {
            vertex.x += building.size.x;
        }
        ox_solid neighbour = building.solid;
        neighbour.set_vertices(vertices);
        expect_laws(building, neighbour);
    }
}

TEST_F(CsgBuildings, WithItselfABuildingIsItselfAndWithoutItselfNothing) {
    for (const surveyed_solid& building : closed) {
        SCOPED_TRACE(building.name);
        const double bound = survey_bound(building.area);
        EXPECT_NEAR(
            combine_surveyed(building.solid, operation::unites, building.solid).get_volume(),
            building.volume, bound);
        EXPECT_NEAR(
            combine_surveyed(building.solid, operation::intersects, building.solid).get_volume(),
            building.volume, bound);
        EXPECT_EQ(support::count_faces(
                      combine_surveyed(building.solid, operation::substracts, building.solid)),
                  0);
    }
}

TEST_F(CsgBuildings, AnOpenBuildingIsRefusedWithAPlace) {
    for (const surveyed_solid& building : open) {
        SCOPED_TRACE(building.name);
        ox_csg csg(survey_tolerance);
        csg.unites(closed.front().solid);
        csg.unites(building.solid);
        EXPECT_FALSE(csg.compute());
        EXPECT_EQ(csg.get_solid().get_contour_sizes().size(), 0);
        ASSERT_GT(csg.get_nb_problems(), 0);
        EXPECT_EQ(csg.get_problem(0).operand, 1);
        EXPECT_EQ(csg.get_problem(0).kind, ox::ox_csg_problem::problem_open_edge);
        EXPECT_FALSE(csg.get_problem(0).from == csg.get_problem(0).to);
    }
}

} // namespace
