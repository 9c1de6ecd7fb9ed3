// The region as flags of a grid of cells, in double precision.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include <ox/internal/contour_view.h>
#include <ox/internal/sweep_window.h>
#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/crossing_count.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {

using namespace internal;
namespace {

struct point {
    double x;
    double y;
};

struct side {
    point a;
    point b;
};

double cross(const point& a, const point& b) {
    return a.x * b.y - a.y * b.x;
}

double length(const point& p) {
    return std::sqrt(p.x * p.x + p.y * p.y);
}

double square_distance(const point& p, const side& s) {
    const point along{s.b.x - s.a.x, s.b.y - s.a.y};
    const point from_start{p.x - s.a.x, p.y - s.a.y};
    const double square = along.x * along.x + along.y * along.y;
    const double projected = along.x * from_start.x + along.y * from_start.y;
    const double t = projected > 0.0 ? std::min(projected / square, 1.0) : 0.0;
    const point away{from_start.x - t * along.x, from_start.y - t * along.y};
    return away.x * away.x + away.y * away.y;
}

float float_below(double x) {
    return std::nextafter(static_cast<float>(x), -std::numeric_limits<float>::infinity());
}

float float_above(double x) {
    return std::nextafter(static_cast<float>(x), std::numeric_limits<float>::infinity());
}

/// The first cell whose centre lies right of x, in cells, of `count` cells.
int first_cell_beyond(double x, int count) {
    if (!(x >= 0.5)) {
        return 0;
    }
    const double before = std::min(std::floor(x - 0.5), static_cast<double>(count - 1));
    return static_cast<int>(before) + 1;
}

/// The flags of one region: its sides in cells (column, row), and in model units from the grid's
/// origin.
class grid_filler {
public:
    grid_filler(const ox_polygon_data& region, const ox_3dvector& origin, const ox_3dvector& dx,
                const ox_3dvector& dy)
        : polygon(region), cell_x(in_plane(dx)), cell_y(in_plane(dy)), area(cross(cell_x, cell_y)) {
        add_sides(origin);
    }

    /// False when some number would not be finite.
    bool is_regular() const { return regular && area != 0.0; }

    std::int64_t fill(bool* grid, int nx, int ny, double margin) {
        columns = nx;
        start_sweep(margin);
        std::int64_t set = 0;
        for (int j = 0; j < ny; ++j) {
            bool* const row = grid + static_cast<std::size_t>(j) * static_cast<std::size_t>(nx);
            fill_inside(row, j);
            if (margin > 0.0) {
                clear_margin(row, j, margin);
            }
            set += std::count(row, row + nx, true);
        }
        return set;
    }

private:
    point in_plane(const ox_3dvector& v) const {
        return {exact_dot(v, polygon.dx), exact_dot(v, polygon.dy)};
    }

    point in_cells(const point& p) const {
        return {cross(p, cell_y) / area, cross(cell_x, p) / area};
    }

    void add_sides(const ox_3dvector& origin) {
        const point start = in_plane(origin);
        std::vector<point> corners;
        for (const ox_3dvector& v : polygon.contour_vertices) {
            const point p = in_plane(v);
            corners.push_back({p.x - start.x, p.y - start.y});
        }
        for (const contour_view contour : contour_views(polygon.contour_sizes)) {
            for (int i = contour.first; i < contour.end; ++i) {
                add_side({corners[static_cast<std::size_t>(i)],
                          corners[static_cast<std::size_t>(contour.after(i))]});
            }
        }
    }

    void add_side(const side& s) {
        const side c{in_cells(s.a), in_cells(s.b)};
        regular = regular && std::isfinite(c.a.x) && std::isfinite(c.a.y);
        sides.push_back(s);
        cell_sides.push_back(c);
    }

    void start_sweep(double margin) {
        margin_columns = margin * length(cell_y) / std::fabs(area);
        margin_rows = margin * length(cell_x) / std::fabs(area);
        double farthest = 0.0;
        for (const side& s : cell_sides) {
            farthest = std::max({farthest, std::fabs(s.a.x), std::fabs(s.a.y)});
        }
        slack = grid_cell_slack * (1.0 + farthest);
        for (const side& s : cell_sides) {
            const double low = std::min(s.a.y, s.b.y);
            const double high = std::max(s.a.y, s.b.y);
            crossed.add(float_below(low), float_above(high));
            near.add(float_below(low - margin_rows - slack),
                     float_above(high + margin_rows + slack));
        }
        crossed.sort();
        near.sort();
    }

    /// Sets the cells between every two crossings of the line through the row's centres.
    void fill_inside(bool* row, int j) {
        const double y = static_cast<double>(j) + 0.5;
        crossings.clear();
        for (const sweep_window::interval& i : crossed.advance_to(float_below(y), float_above(y))) {
            const side& s = cell_sides[static_cast<std::size_t>(i.index)];
            double x = 0.0;
            if (find_crossing(s.a, s.b, y, x)) {
                crossings.push_back(x);
            }
        }
        std::sort(crossings.begin(), crossings.end());
        std::fill(row, row + columns, false);
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            std::fill(row + first_cell_beyond(crossings[i], columns),
                      row + first_cell_beyond(crossings[i + 1], columns), true);
        }
    }

    void clear_margin(bool* row, int j, double margin) {
        const double y = static_cast<double>(j) + 0.5;
        std::int64_t measured = 0;
        for (const sweep_window::interval& i : near.advance_to(float_below(y), float_above(y))) {
            const std::size_t index = static_cast<std::size_t>(i.index);
            const point reach = columns_near(cell_sides[index], y);
            const int first = first_cell_beyond(reach.x, columns);
            const int last = first_cell_beyond(reach.y, columns);
            measured += last - first;
            for (int c = first; c < last; ++c) {
                const double x = static_cast<double>(c) + 0.5;
                const point centre{x * cell_x.x + y * cell_y.x, x * cell_x.y + y * cell_y.y};
                if (row[c] && square_distance(centre, sides[index]) < margin * margin) {
                    row[c] = false;
                }
            }
        }
        answers_of(answered_by::measured_cell) += static_cast<std::uint64_t>(measured);
    }

    /// From where to where points of the line at y can be within the margin of a side, in cells:
    /// around the part of the side whose rows the margin reaches.
    point columns_near(const side& s, double y) const {
        const side up = s.a.y <= s.b.y ? s : side{s.b, s.a};
        const double low = y - margin_rows - slack;
        const double high = y + margin_rows + slack;
        const double from = up.a.y < low ? crossing_at(up.a, up.b, low) : up.a.x;
        const double to = up.b.y > high ? crossing_at(up.a, up.b, high) : up.b.x;
        return {std::min(from, to) - margin_columns - slack,
                std::max(from, to) + margin_columns + slack};
    }

    const ox_polygon_data& polygon;
    point cell_x;
    point cell_y;
    double area;
    bool regular = true;
    int columns = 0;
    double margin_columns = 0.0; ///< the margin in cells
    double margin_rows = 0.0;
    double slack = 0.0; ///< in cells, more than rounding can move a point by
    std::vector<side> sides;
    std::vector<side> cell_sides;
    sweep_window crossed; ///< the sides that a row's line can cross
    sweep_window near;    ///< the sides whose margin reaches a row
    std::vector<double> crossings;
};

} // namespace

int ox_polygon::fill_regular_grid(bool* grid, const ox_3dvector& origin, const ox_3dvector& dx,
                                  const ox_3dvector& dy, int nx, int ny, float margin) {
    if (grid == nullptr || nx < 1 || ny < 1) {
        return 0;
    }
    data->compute_contours();
    grid_filler filler(*data, origin, dx, dy);
    if (!filler.is_regular()) {
        std::fill_n(grid, static_cast<std::int64_t>(nx) * ny, false);
        return 0;
    }
    const double kept_clear = margin > 0.0f ? static_cast<double>(margin) : 0.0;
    const std::int64_t set = filler.fill(grid, nx, ny, kept_clear);
    return static_cast<int>(std::min<std::int64_t>(set, std::numeric_limits<int>::max()));
}

} // namespace ox
