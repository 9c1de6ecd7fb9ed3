// The region as flags of a grid of cells.

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/polygon/polygon_checks.h>
#include <tests/polygon/random_regions.h>
#include <tests/reference/distributions.h>

using namespace polygon_checks;
using ox::ox_3dvector;
using ox::ox_polygon;
using random_regions::tangle;
using random_regions::tilted;
using support::rectangle;
using support::rectangle_polygon;

namespace {

constexpr float nan_value = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

struct cells {
    ox_3dvector origin = ox_3dvector(0, 0, 0);
    ox_3dvector dx = ox_3dvector(1, 0, 0);
    ox_3dvector dy = ox_3dvector(0, 1, 0);
    int nx = 4;
    int ny = 3;
    std::vector<char> flags;
    int set = 0;

    void fill(ox_polygon& polygon, float margin) {
        const std::size_t count =
            static_cast<std::size_t>(nx > 0 ? nx : 0) * static_cast<std::size_t>(ny > 0 ? ny : 0);
        const std::unique_ptr<bool[]> grid(new bool[count + 1]);
        std::fill_n(grid.get(), count + 1, true);
        set = polygon.fill_regular_grid(grid.get(), origin, dx, dy, nx, ny, margin);
        EXPECT_TRUE(grid[count]); // nothing is written beyond the grid
        flags.assign(grid.get(), grid.get() + count);
    }
};

} // namespace

TEST(OxPolygonRegularGrid, CellsWithTheirCentreInsideAreSetAndAllOthersCleared) {
    ox_polygon square = rectangle_polygon(0.75f, 0.25f, 3.25f, 1.75f);
    cells grid;
    grid.fill(square, 0);
    EXPECT_EQ(grid.set, 4);
    EXPECT_EQ(grid.flags, std::vector<char>({0, 1, 1, 0, 0, 1, 1, 0, 0, 0, 0, 0}));
}

TEST(OxPolygonRegularGrid, CentresAreHalfACellFromTheOrigin) {
    ox_polygon square = rectangle_polygon(0.4f, 0.4f, 0.6f, 0.6f);
    cells grid;
    grid.fill(square, 0);
    EXPECT_EQ(grid.set, 1);
    EXPECT_TRUE(grid.flags[0]);
}

TEST(OxPolygonRegularGrid, HolesAreNotSet) {
    ox_polygon polygon = rectangle_polygon(0, 0, 4, 3);
    polygon.add_contour(rectangle(1, 1, 3, 2));
    cells grid;
    grid.fill(polygon, 0);
    EXPECT_EQ(grid.set, 10);
    EXPECT_FALSE(grid.flags[5]);
}

TEST(OxPolygonRegularGrid, MarginKeepsCentresAwayFromTheOutlineAndFromHoles) {
    ox_polygon square = rectangle_polygon(0, 0, 8, 8);
    cells grid;
    grid.nx = 8;
    grid.ny = 8;
    grid.fill(square, 0.5f);
    EXPECT_EQ(grid.set, 64); // a centre at the margin keeps it
    grid.fill(square, 0.51f);
    EXPECT_EQ(grid.set, 36);
    grid.fill(square, 1.51f);
    EXPECT_EQ(grid.set, 16);
    grid.fill(square, 4);
    EXPECT_EQ(grid.set, 0);
    square.add_contour(rectangle(3, 3, 5, 5));
    grid.fill(square, 0.51f);
    EXPECT_EQ(grid.set, 36 - 16 + 4); // the corners of the hole are 0.71 from the nearest centres
}

TEST(OxPolygonRegularGrid, NegativeMarginAndOneThatIsNotANumberAskForTheInsideAlone) {
    ox_polygon square = rectangle_polygon(0, 0, 4, 3);
    cells grid;
    for (const float margin : {0.0f, -1.0f, -infinity, nan_value}) {
        grid.fill(square, margin);
        EXPECT_EQ(grid.set, 12);
    }
    grid.fill(square, infinity);
    EXPECT_EQ(grid.set, 0);
}

TEST(OxPolygonRegularGrid, CellsMayBeSkewAndTheGridLieBesideThePlane) {
    ox_polygon square = rectangle_polygon(0, 0, 3.75f, 2);
    cells grid;
    grid.origin = ox_3dvector(0, 0, 77);
    grid.dx = ox_3dvector(1, 0, 5);
    grid.dy = ox_3dvector(1, 1, -3);
    grid.fill(square, 0);
    EXPECT_EQ(grid.flags, std::vector<char>({1, 1, 1, 0, 1, 1, 0, 0, 0, 0, 0, 0}));
}

TEST(OxPolygonRegularGrid, MirroredCellsAreFilledToo) {
    ox_polygon square = rectangle_polygon(0, 0, 2, 2);
    cells grid;
    grid.origin = ox_3dvector(2, 2, 0);
    grid.dx = ox_3dvector(-1, 0, 0);
    grid.dy = ox_3dvector(0, -1, 0);
    grid.fill(square, 0.25f);
    EXPECT_EQ(grid.flags, std::vector<char>({1, 1, 0, 0, 1, 1, 0, 0, 0, 0, 0, 0}));
}

TEST(OxPolygonRegularGrid, EmptyPolygonClearsTheGrid) {
    ox_polygon empty;
    cells grid;
    grid.fill(empty, 0);
    EXPECT_EQ(grid.set, 0);
    EXPECT_EQ(grid.flags, std::vector<char>(12, 0));
    ox_polygon without_contour(ox_3dvector(1, 2, 3), ox_3dvector(0, 0, 1));
    grid.fill(without_contour, 1);
    EXPECT_EQ(grid.flags, std::vector<char>(12, 0));
}

TEST(OxPolygonRegularGrid, CellsWithoutAnAreaOrNotFiniteClearTheGrid) {
    ox_polygon square = rectangle_polygon(0, 0, 4, 3);
    for (const ox_3dvector& dx :
         {ox_3dvector(0, 0, 0), ox_3dvector(0, 2, 0), ox_3dvector(nan_value, 0, 0),
          ox_3dvector(infinity, 0, 0), ox_3dvector(0, 0, 1)}) {
        cells grid;
        grid.dx = dx;
        grid.fill(square, 0.1f);
        EXPECT_EQ(grid.set, 0);
        EXPECT_EQ(grid.flags, std::vector<char>(12, 0));
    }
    cells grid;
    grid.origin = ox_3dvector(nan_value, 0, 0);
    grid.fill(square, 0);
    EXPECT_EQ(grid.set, 0);
}

TEST(OxPolygonRegularGrid, CellsTooSmallForTheCoordinatesAreAnswered) {
    ox_polygon far = rectangle_polygon(1e6f, 1e6f, 1e6f + 10, 1e6f + 10);
    cells grid;
    grid.dx = ox_3dvector(1e-30f, 0, 0);
    grid.dy = ox_3dvector(0, 1e-30f, 0);
    grid.fill(far, 0);
    EXPECT_EQ(grid.set, 0);
    grid.origin = ox_3dvector(1e6f + 5, 1e6f + 5, 0);
    grid.fill(far, 1);
    EXPECT_EQ(grid.set, 12);
}

TEST(OxPolygonRegularGrid, NullGridAndCountsBelow1SetNothing) {
    ox_polygon square = rectangle_polygon(0, 0, 4, 3);
    EXPECT_EQ(square.fill_regular_grid(nullptr, ox_3dvector(), ox_3dvector(1, 0, 0),
                                       ox_3dvector(0, 1, 0), 4, 3, 0),
              0);
    for (const int count : {0, -1, std::numeric_limits<int>::min()}) {
        cells grid;
        grid.nx = count;
        grid.fill(square, 0);
        EXPECT_EQ(grid.set, 0);
        grid.nx = 4;
        grid.ny = count;
        grid.fill(square, 0);
        EXPECT_EQ(grid.set, 0);
    }
}

TEST(OxPolygonRegularGrid, AgreesWithThePlainVersionOnRandomRegionsAndGrids) {
    support::generator random(457);
    for (int round = 0; round < 10000; ++round) {
        ox_polygon flat = tangle(random, random.between(3, 10), 3);
        ox_polygon polygon = random.one_in(2) ? flat : tilted(random, flat, 10.0f);
        if (!reference::has_reproducible_frame(polygon)) {
            continue;
        }
        cells grid;
        grid.nx = random.between(1, 20);
        grid.ny = random.between(1, 20);
        const bool aligned = random.one_in(2);
        grid.origin = aligned ? ox_3dvector(-3, -3, 0) : support::random_point(random, 3.0);
        grid.dx = aligned ? ox_3dvector(0.25f, 0, 0) : support::random_point(random, 0.5);
        grid.dy = aligned ? ox_3dvector(0, 0.5f, 0) : support::random_point(random, 0.5);
        const float margin = random.one_in(3) ? 0.0f : random.grid(0, 1);
        grid.fill(polygon, margin);
        std::vector<bool> expected;
        EXPECT_EQ(grid.set, reference::fill_regular_grid(polygon, expected, grid.origin, grid.dx,
                                                         grid.dy, grid.nx, grid.ny, margin));
        ASSERT_EQ(grid.flags, std::vector<char>(expected.begin(), expected.end()))
            << "round " << round;
    }
}
