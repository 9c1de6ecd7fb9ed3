// Who answers: a fast way gives the same answer as the library that it spares, so nothing but its
// count tells that it is still taken. And what the libraries are assumed to do.

#include <cstdint>
#include <functional>
#include <memory>

#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/plain_twins.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::internal::answered_by;
using ox::internal::answers_of;
using support::contour;
using support::rectangle;
using support::rectangle_polygon;

namespace {

std::uint64_t answers_during(answered_by who, const std::function<void()>& question) {
    const std::uint64_t before = answers_of(who);
    question();
    return answers_of(who) - before;
}

ox_list<ox_3dvector> turned_square(float x, float y) {
    return contour({ox_3dvector(x + 2, y, 0), ox_3dvector(x + 4, y + 2.5f, 0),
                    ox_3dvector(x + 1.5f, y + 4, 0), ox_3dvector(x, y + 1.5f, 0)});
}

} // namespace

TEST(OxPolygonAnswers, SingleContourThatClimbsAndFallsOnceIsMergedWithoutTheLibrary) {
    EXPECT_EQ(answers_during(answered_by::single_contour,
                             [] { rectangle_polygon(0, 0, 1, 1).get_contour_sizes(); }),
              1u);
}

TEST(OxPolygonAnswers, SideThatFallsBackByOneLevelIsMergedWithoutTheLibrary) {
    EXPECT_EQ(answers_during(answered_by::single_contour,
                             [] {
                                 ox_polygon polygon(ox_3dvector(), ox_3dvector(0, 0, 1));
                                 polygon.add_contour(contour(
                                     {ox_3dvector(0.5f, 0, 0), ox_3dvector(1.0f, 0.6f, 0),
                                      ox_3dvector(0.9999f, 0.5999f, 0), ox_3dvector(1.01f, 0.9f, 0),
                                      ox_3dvector(0.5f, 1.2f, 0), ox_3dvector(0, 0.6f, 0)}));
                                 EXPECT_EQ(polygon.get_contour_vertices().size(), 6);
                             }),
              1u);
}

TEST(OxPolygonAnswers, TopAndBottomOfOneUnitAreMergedWithoutTheLibrary) {
    EXPECT_EQ(answers_during(answered_by::single_contour,
                             [] {
                                 ox_polygon polygon(ox_3dvector(), ox_3dvector(0, 0, 1));
                                 polygon.add_contour(contour(
                                     {ox_3dvector(0.5f, 0, 0), ox_3dvector(0.5001f, 0, 0),
                                      ox_3dvector(1.0f, 0.6f, 0), ox_3dvector(0.5001f, 1.2f, 0),
                                      ox_3dvector(0.5f, 1.2f, 0), ox_3dvector(0, 0.6f, 0)}));
                                 EXPECT_EQ(polygon.get_contour_vertices().size(), 6);
                             }),
              1u);
}

TEST(OxPolygonAnswers, WallWithSeparateOpeningsIsMergedWithoutTheLibrary) {
    EXPECT_EQ(answers_during(answered_by::separate_contours,
                             [] {
                                 ox_polygon wall = rectangle_polygon(0, 0, 10, 3);
                                 wall.add_contour(rectangle(1, 1, 2, 2));
                                 wall.add_contour(rectangle(4, 1, 5, 2));
                                 wall.get_contour_sizes();
                             }),
              1u);
}

TEST(OxPolygonAnswers, OpeningCutIntoAWallIsSubtractedWithoutTheLibrary) {
    ox_polygon wall = rectangle_polygon(0, 0, 10, 3);
    ox_polygon opening = rectangle_polygon(1, 1, 2, 2);
    wall.get_area();
    opening.get_area();
    EXPECT_EQ(answers_during(answered_by::separate_contours, [&] { wall.substracts(opening); }),
              1u);
}

TEST(OxPolygonAnswers, RectanglesThatLieAsOthersDidBeforeAreKnown) {
    const auto door = [](float x) {
        ox_polygon wall = rectangle_polygon(0, 0, 10, 3);
        wall.substracts(rectangle_polygon(x, -1, x + 1.5f, 2));
    };
    door(2.0f);
    EXPECT_EQ(answers_during(answered_by::known_contours, [&] { door(7.5f); }), 1u);
}

TEST(OxPolygonAnswers, SlantedContoursThatCrossAreLeftToTheClippingLibrary) {
    EXPECT_EQ(answers_during(answered_by::clipping_library,
                             [] {
                                 ox_polygon both;
                                 both.add_contour(turned_square(0, 0));
                                 both.add_contour(turned_square(1, 1));
                                 both.get_contour_sizes();
                             }),
              1u);
}

TEST(OxPolygonAnswers, ConvexContourIsOneFan) {
    ox_polygon square = rectangle_polygon(0, 0, 1, 1);
    EXPECT_EQ(answers_during(answered_by::fan, [&] { square.get_area(); }), 1u);
}

TEST(OxPolygonAnswers, ShapesThatLieAsOthersDidBeforeGetTheirTriangles) {
    const auto frame = [](float size) {
        ox_polygon polygon = rectangle_polygon(0, 0, size, size + 1);
        polygon.add_contour(rectangle(1, 1, size - 1, size - 1.5f));
        polygon.get_area();
    };
    frame(4.0f);
    EXPECT_EQ(answers_during(answered_by::known_triangles, [&] { frame(5.0f); }), 1u);
}

TEST(OxPolygonAnswers, ManyVerticesAreLeftToTheTessellator) {
    ox_polygon both;
    both.add_contour(turned_square(0, 0));
    both.add_contour(turned_square(1, 1));
    both.add_contour(turned_square(2, 2));
    both.get_contour_sizes();
    EXPECT_EQ(answers_during(answered_by::tessellator, [&] { both.get_area(); }), 1u);
}

TEST(OxPolygonAnswers, MostCandidatesOfTheBestCentreAreNeverScored) {
    const double candidates = 100.0 * 40.0 / (0.0625 * 0.0625); // of the finest grid alone
    ox_polygon hall = rectangle_polygon(0, 0, 100, 40);
    std::uint64_t placed_by_block = 0;
    const std::uint64_t scored = answers_during(answered_by::centre_candidate, [&] {
        placed_by_block =
            answers_during(answered_by::centre_block, [&] { hall.get_best_center(); });
    });
    EXPECT_LT(static_cast<double>(scored), candidates / 50.0);
    EXPECT_GT(static_cast<double>(placed_by_block), candidates / 4.0);
}

TEST(OxPolygonAnswers, MostPointsOfAGridAreInsideBecauseTheirNeighbourIs) {
    ox_polygon turned;
    turned.add_contour(turned_square(0, 0));
    std::uint64_t tested = 0;
    const std::uint64_t spared = answers_during(answered_by::row_stretch, [&] {
        tested =
            answers_during(answered_by::row_point, [&] { turned.regular_distribution(0.01f); });
    });
    EXPECT_GT(spared, 70000u); // of an area of 8.5
    EXPECT_LT(tested, 2000u);  // a few in each of 400 rows
}

TEST(OxPolygonAnswers, DistancesAreMeasuredOnlyForCellsNearASide) {
    constexpr int side = 400;
    const std::unique_ptr<bool[]> cells(new bool[side * side]);
    ox_polygon square = rectangle_polygon(0, 0, 4, 4);
    const auto fill = [&](float margin) {
        return answers_during(answered_by::measured_cell, [&] {
            square.fill_regular_grid(cells.get(), ox_3dvector(), ox_3dvector(0.01f, 0, 0),
                                     ox_3dvector(0, 0.01f, 0), side, side, margin);
        });
    };
    EXPECT_EQ(fill(0.0f), 0u);
    EXPECT_GT(fill(0.05f), 4u * 4u * side);  // those within the margin
    EXPECT_LT(fill(0.05f), 4u * 13u * side); // and as many again, at most
}

// The library sorts contours by their highest level alone, so the order of those on one level is
// that of `std::sort`, which must be the one that this library is compiled with. It differs from a
// stable order only where there are more than 16.
TEST(OxPolygonAnswers, ContoursOnOneLevelComeOutInTheOrderOfTheClippingLibrarysSort) {
    for (int count = 1; count <= 120; ++count) {
        twins pair;
        pair.set_plane(ox_3dvector(), ox_3dvector(0, 0, 1));
        for (int i = 0; i < count; ++i) {
            const float x = 2.0f * static_cast<float>((i * 127) % count);
            const float height = i % 3 == 0 ? 2.0f : 1.0f;
            pair.add({ox_3dvector(x, 0, 0), ox_3dvector(x + 1, 0, 0), ox_3dvector(x + 1, height, 0),
                      ox_3dvector(x, height, 0)});
        }
        EXPECT_EQ(answers_during(answered_by::separate_contours, [&] { pair.merge(); }),
                  count > 1 ? 1u : 0u);
        expect_equal(pair.polygon, pair.plain);
        ASSERT_FALSE(HasFailure()) << count << " contours";
    }
}
