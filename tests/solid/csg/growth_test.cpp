// The work of a combination grows with its operands: counted in triangles that are arranged and
// the pieces that they cut each other into, so that no clock is needed.

#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/internal/csg/exact/box_pairs.h>
#include <ox/solid/internal/csg/exact/facets.h>
#include <ox/solid/internal/csg/overlay.h>
#include <ox/solid/internal/csg/shell.h>
#include <ox/solid/internal/csg/slicing.h>
#include <ox/solid/internal/csg/snapping.h>
#include <tests/solid/csg/shapes.h>

namespace {

using csg_test::brick_in;
using ox::ox_3dvector;
using ox::ox_solid;
using support::frame;
using namespace ox::internal::csg;

constexpr float tolerance = 0.001f;

bool keep_going(double) {
    return true;
}

frame askew() {
    support::generator random(91);
    return support::random_frame(random);
}

/// What goes into an arrangement, and what comes out of it.
struct work {
    std::size_t triangles;
    std::size_t pieces;
};

/// What is arranged for a body minus tools.
arrangement_input make_input(const ox_solid& body, const std::vector<ox_solid>& tools) {
    arrangement_input input;
    std::vector<operand> operands;
    const auto add = [&](const ox_solid& solid, operation role) {
        operands.emplace_back();
        operands.back().vertices = solid.get_vertices();
        operands.back().contours = solid.get_contours();
        operands.back().contour_sizes = solid.get_contour_sizes();
        input.operations.push_back(role);
    };
    add(body, operation::unite);
    for (const ox_solid& tool : tools) {
        add(tool, operation::substract);
    }
    const working_grid grid(operands, tolerance);
    std::vector<shell> shells;
    std::vector<ox::ox_csg_problem> problems;
    for (const operand& given : operands) {
        shells.push_back(read_shell(given, 0, tolerance, grid, problems));
        weld(shells.back(), grid);
    }
    scene faces;
    std::vector<face_triangle> triangles;
    place_shells(shells, grid, keep_going, faces);
    cluster_planes(faces, grid, keep_going);
    snap_edges(faces, grid, keep_going);
    slice_long_planes(faces, keep_going);
    triangulate_faces(faces, keep_going, triangles);
    input.points = faces.points;
    for (const face_triangle& triangle : triangles) {
        input.triangles.push_back(
            {triangle.vertices, faces.faces[static_cast<std::size_t>(triangle.face)].operand});
    }
    return input;
}

work count_work(const ox_solid& body, const std::vector<ox_solid>& tools) {
    const arrangement_input input = make_input(body, tools);
    arrangement_result arranged;
    EXPECT_TRUE(arrange(input, keep_going, arranged));
    return {input.triangles.size(), arranged.pieces.size()};
}

/// The pairs of triangles whose boxes overlap: each of them is looked at.
std::size_t count_overlapping_boxes(const arrangement_input& input) {
    const progress_report report = keep_going;
    exact::progress_poll poll(report);
    poll.begin(0.0);
    const exact::facet_complex complex(input, poll);
    std::vector<exact::bounds> boxes;
    for (const exact::facet& facet : complex.facets) {
        boxes.push_back(exact::empty_bounds());
        for (const int vertex : facet.vertices) {
            const grid_point& p = input.points[static_cast<std::size_t>(vertex)];
            complex.frame.enlarge(boxes.back(), {static_cast<double>(p.x), static_cast<double>(p.y),
                                                 static_cast<double>(p.z)});
        }
    }
    std::size_t count = 0;
    exact::visit_overlapping_pairs(boxes, poll, [&count](int, int) { ++count; });
    return count;
}

/// Openings of a wall along the x axis of a frame, from a sill to a lintel and between two depths.
struct openings {
    double sill;
    double lintel;
    double front;
    double back;
};

/// A wall with room for them, minus `count` of them.
work cut_wall(const frame& axes, int count, const openings& kind) {
    std::vector<ox_solid> tools;
    for (int i = 0; i < count; ++i) {
        const float x = 1.5f * static_cast<float>(i) + 0.25f;
        tools.push_back(brick_in(
            axes, ox_3dvector(x, static_cast<float>(kind.front), static_cast<float>(kind.sill)),
            ox_3dvector(x + 1.0f, static_cast<float>(kind.back), static_cast<float>(kind.lintel))));
    }
    const float length = 1.5f * static_cast<float>(count) + 1.5f;
    return count_work(brick_in(axes, ox_3dvector(), ox_3dvector(length, 0.3f, 3.0f)), tools);
}

/// Ten times the openings cost ten times the work, a part of the ends of the wall aside.
void expect_linear(const std::function<work(int)>& cut) {
    const work few = cut(10);
    const work more = cut(100);
    const work many = cut(1000);
    EXPECT_LT(more.triangles, 11u * few.triangles);
    EXPECT_LT(many.triangles, 11u * more.triangles);
    EXPECT_LT(more.pieces, 11u * few.pieces);
    EXPECT_LT(many.pieces, 11u * more.pieces);
}

constexpr openings windows = {1.0, 2.0, -0.05, 0.35};
constexpr openings doors = {0.0, 2.0, -0.05, 0.35};
constexpr openings recessed_windows = {1.0, 2.0, 0.0, 0.1};

TEST(CsgGrowth, WindowsCostTheSameEachHoweverManyThereAre) {
    expect_linear([](int count) { return cut_wall(frame(), count, windows); });
}

TEST(CsgGrowth, DoorsThatDivideTheFootOfAWallCostTheSameEachHoweverManyThereAre) {
    expect_linear([](int count) { return cut_wall(frame(), count, doors); });
    expect_linear([](int count) { return cut_wall(askew(), count, doors); });
}

TEST(CsgGrowth, DoorsCutAboutAsManyPiecesAsWindows) {
    for (const frame& axes : {frame(), askew()}) {
        const work beside = cut_wall(axes, 100, windows);
        const work reaching = cut_wall(axes, 100, doors);
        EXPECT_LT(reaching.triangles, 3u * beside.triangles);
        EXPECT_LT(reaching.pieces, 3u * beside.pieces);
    }
}

TEST(CsgGrowth, RecessesInTheFrontOfAWallCostTheSameEachHoweverManyThereAre) {
    expect_linear([](int count) { return cut_wall(askew(), count, recessed_windows); });
}

/// Two prisms whose axes cross at a right angle.
std::vector<ox_solid> crossing_prisms(int sides) {
    const frame lying = {ox_3dvector(0.0f, 0.6f, 0.8f), ox_3dvector(0.0f, -0.8f, 0.6f),
                         ox_3dvector(1.0f, 0.0f, 0.0f)};
    return {csg_test::column(frame(), ox_3dvector(), sides, 2.0, 8.0),
            csg_test::column(lying, ox_3dvector(0.0f, 0.13f, 0.29f), sides, 1.0, 8.0)};
}

TEST(CsgGrowth, PrismsThatCrossCostTheSameForEachSide) {
    const auto cross = [](int sides) {
        const std::vector<ox_solid> prisms = crossing_prisms(sides);
        return count_work(prisms[0], {prisms[1]});
    };
    const work few = cross(100);
    const work many = cross(800);
    EXPECT_LT(many.triangles, 9u * few.triangles);
    EXPECT_LT(many.pieces, 9u * few.pieces);
}

TEST(CsgGrowth, BoxesAlongTheAxesOfPrismsOverlapAsOftenForEachSide) {
    const auto count = [](int sides) {
        const std::vector<ox_solid> prisms = crossing_prisms(sides);
        return count_overlapping_boxes(make_input(prisms[0], {prisms[1]}));
    };
    EXPECT_LT(count(800), 12u * count(100));
}

TEST(CsgGrowth, APlaneIsSlicedWhereItIsLongAndHasManyPoints) {
    const work without = cut_wall(frame(), 100, windows);
    EXPECT_EQ(without.triangles, 12u + 100u * 12u) << "windows divide no edge";
}

} // namespace
