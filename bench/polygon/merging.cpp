#include <array>
#include <cmath>

#include <bench/peers/clipper.h>
#include <bench/support/shape_facts.h>

#include "contours.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using contour_lists = std::vector<ox_list<ox_3dvector>>;

constexpr float grid_unit = 0.0001f;

// Squares in rows and columns, as many of each.
contour_lists squares(long count, float pitch, float side) {
    const long columns = std::lround(std::ceil(std::sqrt(static_cast<double>(count))));
    contour_lists made;
    for (long i = 0; i < count; ++i) {
        made.push_back(rectangle(pitch * static_cast<float>(i % columns),
                                 pitch * static_cast<float>(i / columns), side, side));
    }
    return made;
}

// One contour more, in the middle, that touches a square.
contour_lists with_touching_contour(contour_lists contours) {
    const ox_3dvector corner = contours[contours.size() / 2][2];
    contours.push_back(rectangle(corner.x, corner.y - 0.25f, 0.25f, 0.125f));
    return contours;
}

// One contour more, aside, that climbs and falls twice.
contour_lists with_u_shape(contour_lists contours) {
    contours.push_back(rectangle(-8.0f, 0.0f, 4.0f, 4.0f));
    ox_list<ox_3dvector>& shape = contours.back();
    shape.remove_right();
    shape.remove_right();
    for (const std::array<float, 2>& c :
         {std::array<float, 2>{-4, 4}, {-5, 4}, {-5, 1}, {-7, 1}, {-7, 4}, {-8, 4}}) {
        shape.push_right(ox_3dvector(c[0], c[1], 0.0f));
    }
    return contours;
}

ClipperLib::cInt to_grid(float coordinate) {
    const float scaled = coordinate / grid_unit;
    return static_cast<ClipperLib::cInt>(scaled > 0.0f ? scaled + 0.5f : scaled - 0.5f);
}

// The integers that a polygon makes of its contours, in the frame of the first.
ClipperLib::Paths to_paths(const contour_lists& contours) {
    ox_3dvector dx, dy;
    ox_3dvector normal(0.0f, 0.0f, 1.0f);
    normal.build_axis(dx, dy);
    const ox_3dvector origin = contours.front()[0];
    ClipperLib::Paths paths;
    for (const ox_list<ox_3dvector>& contour : contours) {
        ClipperLib::Path path;
        for (const ox_3dvector& v : contour) {
            path.push_back({to_grid(ox_dot(v - origin, dx)), to_grid(ox_dot(v - origin, dy))});
        }
        paths.push_back(path);
    }
    return paths;
}

contest merge(const contour_lists& contours) {
    const auto kept = std::make_shared<const contour_lists>(contours);
    contest rules;
    rules.ours = make_contestant(
        "ox_polygon", [] { return ox_polygon(); },
        [=](ox_polygon& polygon) {
            for (const ox_list<ox_3dvector>& contour : *kept) {
                polygon.add_contour(contour);
            }
            polygon.get_contour_sizes();
        },
        [](ox_polygon& polygon) {
            return std::vector<fact>{
                {"contours", static_cast<double>(polygon.get_contour_sizes().size()), 0.0},
                {"area", area_of(polygon), 1e-4}};
        });
    rules.peers = {
        peers::clipper_even_odd_union(to_paths(contours), static_cast<double>(grid_unit))};
    rules.goal = 1.05;
    return rules;
}

} // namespace

std::vector<workload> merging_workloads() {
    return {workload{"overlapping squares merged",
                     "squares",
                     {100, 1000, 10000},
                     {100, 300, 1000},
                     [](long n) { return merge(squares(n, 0.7f, 1.0f)); }}
                .judged_from(1000),
            workload{"squares that keep apart merged",
                     "squares",
                     {1000, 10000, 100000},
                     {100, 1000, 10000},
                     [](long n) { return merge(squares(n, 1.0f, 0.5f)); }}
                .judged_from(100000),
            workload{"squares that keep apart merged with one that touches",
                     "squares",
                     {1000, 3000, 10000},
                     {100, 300, 1000},
                     [](long n) { return merge(with_touching_contour(squares(n, 1.0f, 0.5f))); }}
                .growing_at_most(1.2)
                .judged_from(1000),
            workload{"squares that keep apart merged with a U shape",
                     "squares",
                     {1000, 3000, 10000},
                     {100, 300, 1000},
                     [](long n) { return merge(with_u_shape(squares(n, 1.0f, 0.5f))); }}
                .growing_at_most(1.2)
                .judged_from(1000)};
}

} // namespace bench
