#ifndef OX_TESTS_POLYGON_GRID_REGIONS_H
#define OX_TESTS_POLYGON_GRID_REGIONS_H

#include <cmath>
#include <cstdint>
#include <vector>

#include <ox/polygon/ox_polygon.h>
#include <tests/support/random_shapes.h>

/// Random regions of the plane z = 0, counted exactly in steps of the grid that contours lie on.
namespace grid_regions {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using support::generator;

__extension__ using wide = __int128;

/// Grid steps to a model unit.
constexpr double steps = 10000.0;

/// A vertex on the grid.
struct cell {
    std::int64_t x;
    std::int64_t y;
};

inline cell to_cell(const ox_3dvector& v) {
    return {std::llround(static_cast<double>(v.x) * steps),
            std::llround(static_cast<double>(v.y) * steps)};
}

inline std::vector<std::vector<cell>> contours_of(ox_polygon& polygon) {
    std::vector<std::vector<cell>> contours;
    int next = 0;
    for (const unsigned int size : polygon.get_contour_sizes()) {
        contours.emplace_back();
        for (unsigned int i = 0; i < size; ++i, ++next) {
            contours.back().push_back(to_cell(polygon.get_contour_vertices()[next]));
        }
    }
    return contours;
}

/// Twice the area that a contour runs around to the left, in grid cells.
inline wide doubled_area(const std::vector<cell>& contour) {
    wide sum = 0;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const cell& a = contour[i];
        const cell& b = contour[(i + 1) % contour.size()];
        sum += static_cast<wide>(a.x) * b.y - static_cast<wide>(a.y) * b.x;
    }
    return sum;
}

/// Twice the area of the triangles, in grid cells. Contours that touch themselves may run over a
/// side twice, their triangles never do.
inline wide doubled_area_of_triangles(ox_polygon& polygon) {
    const ox_list<ox_3dvector>& vertices = polygon.get_tesselation_vertices();
    const ox_list<unsigned int>& triangles = polygon.get_tesselation_triangles();
    wide sum = 0;
    for (int t = 0; t + 2 < triangles.size(); t += 3) {
        std::vector<cell> corners;
        for (int i = 0; i < 3; ++i) {
            corners.push_back(to_cell(vertices[static_cast<int>(triangles[t + i])]));
        }
        sum += doubled_area(corners);
    }
    return sum;
}

inline double perimeter(const std::vector<cell>& contour) {
    double sum = 0.0;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const cell& a = contour[i];
        const cell& b = contour[(i + 1) % contour.size()];
        sum += std::hypot(static_cast<double>(b.x - a.x), static_cast<double>(b.y - a.y));
    }
    return sum;
}

/// A contour about a point whose corners go round it: simple, star-shaped, of whole grid steps.
inline ox_list<ox_3dvector> star(generator& random, int corners, double extent) {
    const double x = random.real(-extent, extent);
    const double y = random.real(-extent, extent);
    ox_list<ox_3dvector> contour;
    for (int i = 0; i < corners; ++i) {
        // The square's outline, from 0 to 4, instead of angles.
        const double turn = 4.0 * (i + random.real(0.0, 0.9)) / corners;
        const double side = turn - std::floor(turn);
        const double radius = random.real(0.2, 1.0) * extent;
        const double u = turn < 1.0   ? 1.0 - side
                         : turn < 2.0 ? -side
                         : turn < 3.0 ? side - 1.0
                                      : side;
        const double v = turn < 1.0   ? side
                         : turn < 2.0 ? 1.0 - side
                         : turn < 3.0 ? -side
                                      : side - 1.0;
        const double grid_x = std::round((x + radius * u) * steps) / steps;
        const double grid_y = std::round((y + radius * v) * steps) / steps;
        contour.push_right(
            ox_3dvector(static_cast<float>(grid_x), static_cast<float>(grid_y), 0.0f));
    }
    return contour;
}

enum class kind { rectangles, tangles, small_stars, large_stars };

inline kind random_kind(generator& random) {
    return static_cast<kind>(random.between(0, 3));
}

/// One to three contours of a kind; the rectangles lie between whole coordinates, so that much
/// coincides.
inline ox_polygon random_polygon(generator& random, kind of) {
    ox_polygon polygon(ox_3dvector(0.0f, 0.0f, 0.0f), ox_3dvector(0.0f, 0.0f, 1.0f));
    const int contours = random.between(1, 3);
    for (int c = 0; c < contours; ++c) {
        const int corners = random.between(3, 12);
        if (of == kind::rectangles) {
            const auto x = static_cast<float>(random.between(0, 4));
            const auto y = static_cast<float>(random.between(0, 4));
            const auto width = static_cast<float>(random.between(1, 4));
            const auto height = static_cast<float>(random.between(1, 4));
            polygon.add_contour(support::rectangle(x, y, x + width, y + height));
        } else if (of == kind::tangles) {
            polygon.add_contour(support::random_tangle(random, random.between(3, 7), 4));
        } else {
            polygon.add_contour(star(random, corners, of == kind::small_stars ? 4.0 : 100.0));
        }
    }
    return polygon;
}

/// How far a corner of a result may lie from the exact crossing, in grid steps: rounding moves it
/// by half a step along each axis; the sweep takes the edges' abscissas, which it compares, rounded
/// to a step too, half a step more on one axis, and meets crossings of one beam in the order of
/// these. Twice the root of (1/2)^2 + 1.
constexpr double corner_shift = 2.2360679775;

/// How far twice the area of a result of this perimeter and number of corners may be from the exact
/// one. An edge whose ends are moved by at most s sweeps at most (length + s) * s, and a result has
/// one edge for each corner.
inline double allowed(double perimeter, double corners) {
    return 2.0 * corner_shift * (perimeter + corner_shift * corners);
}

} // namespace grid_regions

#endif
