#include <cmath>

#include <bench/peers/glu.h>
#include <bench/support/shape_facts.h>

#include "contours.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;

constexpr double pi = 3.14159265358979323846;

// The outline has 20 vertices a hole, and each hole 20: 100 holes in an outline of 2,000.
constexpr long vertices_a_hole = 20;
constexpr double hole_pitch = 12.0;
constexpr double hole_radius = 4.0;

// A circle whose radius swells and shrinks `waves` times by `depth`.
ox_list<ox_3dvector> wavy_circle(double x, double y, double radius, double depth, int waves,
                                 long count) {
    ox_list<ox_3dvector> contour;
    for (long i = 0; i < count; ++i) {
        const double angle = 2.0 * pi * static_cast<double>(i) / static_cast<double>(count);
        const double r = radius + depth * std::sin(waves * angle);
        contour.push_right(ox_3dvector(static_cast<float>(x + r * std::cos(angle)),
                                       static_cast<float>(y + r * std::sin(angle)), 0.0f));
    }
    return contour;
}

ox_polygon outline_with_holes(long holes) {
    const double side = std::ceil(std::sqrt(static_cast<double>(holes)));
    const double middle = 0.5 * (side - 1.0) * hole_pitch;
    ox_polygon polygon;
    polygon.add_contour(
        wavy_circle(middle, middle, 0.75 * side * hole_pitch, 2.0, 40, vertices_a_hole * holes));
    for (long i = 0; i < holes; ++i) {
        const long columns = static_cast<long>(side);
        polygon.add_contour(wavy_circle(hole_pitch * static_cast<double>(i % columns),
                                        hole_pitch * static_cast<double>(i / columns), hole_radius,
                                        0.0, 0, vertices_a_hole));
    }
    return polygon;
}

std::shared_ptr<const std::vector<peers::wide_contour>> wide_contours(ox_polygon& polygon) {
    const auto made = std::make_shared<std::vector<peers::wide_contour>>();
    const ox_3dvector* v = polygon.get_contour_vertices().get_data();
    for (const unsigned int size : polygon.get_contour_sizes()) {
        peers::wide_contour contour;
        for (unsigned int i = 0; i < size; ++i, ++v) {
            contour.push_back(
                {static_cast<double>(v->x), static_cast<double>(v->y), static_cast<double>(v->z)});
        }
        made->push_back(contour);
    }
    return made;
}

// The sweep runs along the x axis of a horizontal region.
ox_polygon row_of_squares(long squares) {
    ox_polygon polygon;
    for (long i = 0; i < squares; ++i) {
        polygon.add_contour(rectangle(0.0f, 1.5f * static_cast<float>(i), 1.0f, 1.0f));
    }
    return polygon;
}

// Teeth along the x axis on a back across it: the sweep meets the sides of all teeth at once.
ox_polygon comb(long teeth) {
    ox_list<ox_3dvector> contour;
    contour.push_right(ox_3dvector(0.0f, 0.0f, 0.0f));
    contour.push_right(ox_3dvector(0.0f, 2.0f * static_cast<float>(teeth), 0.0f));
    for (long i = teeth; i-- > 0;) {
        const float y = 2.0f * static_cast<float>(i);
        contour.push_right(ox_3dvector(1.0f, y + 2.0f, 0.0f));
        contour.push_right(ox_3dvector(1.0f, y + 1.0f, 0.0f));
        contour.push_right(ox_3dvector(5.0f, y + 1.0f, 0.0f));
        contour.push_right(ox_3dvector(5.0f, y, 0.0f));
    }
    ox_polygon polygon;
    polygon.add_contour(contour);
    return polygon;
}

contest tessellate(const ox_polygon& region) {
    const auto merged = std::make_shared<ox_polygon>(region);
    contest rules;
    rules.ours = make_contestant(
        "ox_polygon", [=] { return ox_polygon(*merged); },
        [](ox_polygon& polygon) { polygon.get_tesselation_triangles(); },
        [](ox_polygon& polygon) {
            return std::vector<fact>{
                {"triangles", polygon.get_tesselation_triangles().size() / 3.0, 0.0},
                {"area", area_of(polygon), 1e-9}};
        });
    rules.peers = {peers::glu_tessellation(wide_contours(*merged))};
    rules.goal = 1.05;
    return rules;
}

} // namespace

workload tessellation_with_holes() {
    return workload{"outline with holes tessellated",
                    "holes",
                    {25, 100, 400},
                    {25, 50, 100},
                    [](long holes) { return tessellate(outline_with_holes(holes)); }}
        .judged_from(100);
}

workload tessellation_of_a_row() {
    return workload{"row of squares tessellated",
                    "squares",
                    {250, 1000, 4000},
                    {25, 50, 100},
                    [](long squares) { return tessellate(row_of_squares(squares)); }}
        .growing_at_most(1.2)
        .judged_from(1000);
}

workload tessellation_of_a_comb() {
    return workload{"comb tessellated",
                    "teeth",
                    {500, 1000, 2000},
                    {25, 50, 100},
                    [](long teeth) { return tessellate(comb(teeth)); }}
        .growing_at_most(1.2)
        .judged_from(1000);
}

} // namespace bench
