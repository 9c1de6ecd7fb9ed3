#include <ox/polygon/internal/search/region_rows.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/crossing_count.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {
namespace {

constexpr double half_unit_in_last_place = 1.0 / 16777216.0;
constexpr float infinity = std::numeric_limits<float>::infinity();

/// The largest magnitude in an ascending sequence.
double largest(const std::vector<float>& ascending) {
    return static_cast<double>(std::max(std::fabs(ascending.front()), std::fabs(ascending.back())));
}

} // namespace

region_rows::region_rows(const ox_polygon_data& region, const std::vector<float>& columns,
                         const std::vector<float>& rows)
    : polygon(region), us(columns), row_count(rows.size()),
      row_slope(exact_dot(region.dx, region.dy)), row_scale(exact_dot(region.dy, region.dy)) {
    rounding = grid_point_underflow;
    for (unsigned int i = 0; i < 3; ++i) {
        const double scale = std::fabs(static_cast<double>(polygon.dy.at(i)));
        const double origin = std::fabs(static_cast<double>(polygon.point.at(i)));
        const double across = std::fabs(static_cast<double>(polygon.dx.at(i))) * largest(columns);
        const double along = scale * largest(rows);
        rounding += grid_point_underflow * scale;
        rounding += half_unit_in_last_place * scale *
                    (roundings_of_origin * origin + roundings_of_offset * across);
        reach = std::max({reach, origin, across, along, (origin + across + along) * scale});
    }
    rounding_by_row = half_unit_in_last_place * roundings_of_offset * row_scale;
    add_sides();
}

bool region_rows::is_within_reach() const {
    return reach < farthest_grid_coordinate;
}

bool region_rows::can_be_found() const {
    const double points = static_cast<double>(us.size()) * static_cast<double>(row_count);
    return is_within_reach() || points * static_cast<double>(sides.size()) <= most_far_grid_tests;
}

void region_rows::add_sides() {
    const ox_list<ox_2dvector> vertices = plane_coordinates(polygon);
    for (const contour_view contour : contour_views(polygon.contour_sizes)) {
        for (int i = contour.first; i < contour.end; ++i) {
            const ox_2dvector& a = vertices[i];
            const ox_2dvector& b = vertices[contour.after(i)];
            sides.push_back({a, b});
            window.add(std::min(a.y, b.y), std::max(a.y, b.y));
        }
    }
    window.sort();
}

/// Where the row coordinates of the points of row w lie. Both ends ascend with w: the share of w in
/// the rounding is far smaller than in the coordinate.
region_rows::row_strip region_rows::strip_of(float w) const {
    const double at_first = row_slope * static_cast<double>(us.front());
    const double at_last = row_slope * static_cast<double>(us.back());
    const double row = row_scale * static_cast<double>(w);
    const double margin = rounding + rounding_by_row * std::fabs(static_cast<double>(w));
    const double low = row + std::min(at_first, at_last) - margin;
    const double high = row + std::max(at_first, at_last) + margin;
    return {std::nextafter(static_cast<float>(low), -infinity),
            std::nextafter(static_cast<float>(high), infinity)};
}

const std::vector<column_range>& region_rows::find_inside(float w) {
    if (!is_within_reach()) {
        test_each(w);
        return inside;
    }
    const row_strip row = strip_of(w);
    active = &window.advance_to(row.low, row.high);
    find_uncertain_spans(row);
    join_overlapping_spans();
    walk(w);
    return inside;
}

void region_rows::test_each(float w) {
    answers_of(answered_by::row_point) += us.size();
    inside.clear();
    int column = 0;
    for (const float u : us) {
        if (polygon.contains(at(u, w))) {
            add_inside(column, column + 1);
        }
        ++column;
    }
}

/// The vertices in the strip belong to two sides each, so whatever line of the strip is taken, the
/// crossings of all sides with an end in it together are odd or even in number as the ends beyond
/// the strip are.
void region_rows::find_uncertain_spans(const row_strip& row) {
    spans.clear();
    uncertain_span of_ends{infinity, -infinity, false};
    for (const sweep_window::interval& i : *active) {
        const side& s = sides[static_cast<std::size_t>(i.index)];
        if (std::min(s.a.y, s.b.y) < row.low && std::max(s.a.y, s.b.y) > row.high) {
            const float x = crossing_at(s.a, s.b, row.low);
            const float y = crossing_at(s.a, s.b, row.high);
            spans.push_back({std::min(x, y), std::max(x, y), true});
            continue;
        }
        // where the crossing formula arrives at the second end, a rounding away from it
        const float arrival = s.a.x + (s.b.x - s.a.x);
        of_ends.low = std::min({of_ends.low, s.a.x, s.b.x, arrival});
        of_ends.high = std::max({of_ends.high, s.a.x, s.b.x, arrival});
        of_ends.odd ^= (s.a.y > row.high) != (s.b.y > row.high);
    }
    if (of_ends.low <= of_ends.high) {
        spans.push_back(of_ends);
    }
}

void region_rows::join_overlapping_spans() {
    std::sort(spans.begin(), spans.end(),
              [](const uncertain_span& a, const uncertain_span& b) { return a.low < b.low; });
    std::size_t joined = 0;
    for (std::size_t i = 1; i < spans.size(); ++i) {
        if (spans[i].low <= spans[joined].high) {
            spans[joined].high = std::max(spans[joined].high, spans[i].high);
            spans[joined].odd ^= spans[i].odd;
        } else {
            spans[++joined] = spans[i];
        }
    }
    spans.resize(std::min(spans.size(), joined + 1));
}

void region_rows::walk(float w) {
    inside.clear();
    int column = 0;
    bool between_is_inside = false;
    int stretched = 0;
    int tested = 0;
    for (const uncertain_span& b : spans) {
        const int first = first_column_beyond(b.low, column, w);
        if (between_is_inside) {
            add_inside(column, first);
            stretched += first - column;
        }
        const int last = first_column_beyond(b.high, first, w);
        tested += last - first;
        for (int c = first; c < last; ++c) {
            if (contains(us[static_cast<std::size_t>(c)], w)) {
                add_inside(c, c + 1);
            }
        }
        column = last;
        between_is_inside ^= b.odd;
    }
    answers_of(answered_by::row_stretch) += static_cast<std::uint64_t>(stretched);
    answers_of(answered_by::row_point) += static_cast<std::uint64_t>(tested);
}

/// The first column, not before `from`, whose point of row w lies right of x. The columns' points
/// have ascending coordinates: every rounding on the way is monotonic.
int region_rows::first_column_beyond(float x, int from, float w) const {
    const auto beyond = std::partition_point(us.begin() + from, us.end(), [&](float u) {
        return ox_dot(at(u, w) - polygon.point, polygon.dx) <= x;
    });
    return static_cast<int>(beyond - us.begin());
}

bool region_rows::contains(float u, float w) const {
    const ox_2dvector q = plane_coordinates(polygon, at(u, w));
    crossing_count crossings(q.x, q.y);
    for (const sweep_window::interval& i : *active) {
        const side& s = sides[static_cast<std::size_t>(i.index)];
        crossings.add_edge(s.a, s.b);
    }
    return crossings.is_inside();
}

void region_rows::add_inside(int first, int last) {
    if (first == last) {
        return;
    }
    if (!inside.empty() && inside.back().last == first) {
        inside.back().last = last;
    } else {
        inside.push_back({first, last});
    }
}

} // namespace ox::internal
