#include <ox/polygon/internal/search/containment_index.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <ox/internal/contour_view.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/crossing_count.h>

namespace ox::internal {

namespace {

constexpr std::size_t sides_of_run = 16;
constexpr std::size_t chains_of_parent = 8;

/// Fewer sides are counted as fast without an index, and making one costs a few questions.
constexpr int fewest_indexed_vertices = 64;
constexpr int questions_before_index = 8;

/// Below it no sum or product of a crossing overflows.
constexpr float farthest_indexed_coordinate = 1e37f;

/// A crossing lies between the ends of its side but for three roundings, each of 2^-24 of twice the
/// largest coordinate. Where numbers are so small that they lose digits, the second one is more.
constexpr float crossing_rounding = 1.0f / (1 << 20);
constexpr float smallest_crossing_margin = 1e-36f;

bool is_near_enough(float coordinate) {
    return std::fabs(coordinate) < farthest_indexed_coordinate; // not if it is NaN
}

} // namespace

containment_index::containment_index(const ox_polygon_data& region) : all() {
    take_points(region);
    if (!reliable) {
        return;
    }
    chain_list contours;
    std::size_t first = 0;
    for (const contour_view contour : contour_views(region.contour_sizes)) {
        if (contour.size() > 0) {
            const std::size_t last = first + static_cast<std::size_t>(contour.size());
            contours.push_back(make_contour(first, last));
            first = last + 1;
        }
    }
    all = join(std::move(contours), ends::meet);
}

void containment_index::take_points(const ox_polygon_data& region) {
    points.reserve(static_cast<std::size_t>(region.contour_vertices.size()) +
                   static_cast<std::size_t>(region.contour_sizes.size()));
    for (const contour_view contour : contour_views(region.contour_sizes)) {
        const std::size_t begin = points.size();
        for (int i = contour.first; i < contour.end; ++i) {
            const ox_2dvector q = plane_coordinates(region, region.contour_vertices[i]);
            reliable = reliable && is_near_enough(q.x) && is_near_enough(q.y);
            margin = std::max(margin, std::fabs(q.x));
            points.push_back(q);
        }
        if (points.size() > begin) {
            points.push_back(points[begin]);
        }
    }
    margin = margin * crossing_rounding + smallest_crossing_margin;
}

/// The sides from a first point to its repetition.
containment_index::chain containment_index::make_contour(std::size_t begin, std::size_t last) {
    chain_list runs;
    for (std::size_t first = begin; first < last; first += sides_of_run) {
        runs.push_back(make_run(first, std::min(first + sides_of_run, last)));
    }
    return join(std::move(runs), ends::differ);
}

/// The sides from one point to another.
containment_index::chain containment_index::make_run(std::size_t first, std::size_t last) const {
    const auto begin = points.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = points.begin() + static_cast<std::ptrdiff_t>(last) + 1;
    const auto [left, right] = std::minmax_element(
        begin, end, [](const ox_2dvector& a, const ox_2dvector& b) { return a.x < b.x; });
    const auto [low, high] = std::minmax_element(
        begin, end, [](const ox_2dvector& a, const ox_2dvector& b) { return a.y < b.y; });
    return {left->x - margin,
            right->x + margin,
            low->y,
            high->y,
            points[first].y,
            points[last].y,
            first,
            last,
            true};
}

/// Level above level, until one chain is left.
containment_index::chain containment_index::join(chain_list level, ends chain_ends) {
    while (level.size() > 1) {
        chain_list parents;
        for (std::size_t first = 0; first < level.size(); first += chains_of_parent) {
            parents.push_back(
                make_parent(level, first, std::min(first + chains_of_parent, level.size())));
            if (chain_ends == ends::meet) {
                parents.back().end = parents.back().start;
            }
        }
        level.swap(parents);
    }
    return level.empty() ? chain() : level.front();
}

containment_index::chain containment_index::make_parent(const chain_list& level, std::size_t first,
                                                        std::size_t end) {
    chain parent = level[first];
    parent.end = level[end - 1].end;
    parent.first = chains.size();
    parent.last = parent.first + (end - first);
    parent.is_run = false;
    for (std::size_t i = first; i < end; ++i) {
        const chain& c = level[i];
        parent.left = std::min(parent.left, c.left);
        parent.right = std::max(parent.right, c.right);
        parent.low = std::min(parent.low, c.low);
        parent.high = std::max(parent.high, c.high);
        chains.push_back(c);
    }
    return parent;
}

bool containment_index::contains(const ox_2dvector& p) const {
    return is_left_odd(all, p);
}

/// True if the chain's crossings left of the point are odd in number.
bool containment_index::is_left_odd(const chain& c, const ox_2dvector& p) const {
    if (p.x < c.left || p.y < c.low || p.y > c.high) {
        return false;
    }
    if (p.x > c.right) {
        return (c.start > p.y) != (c.end > p.y);
    }
    if (c.is_run) {
        return is_left_odd_in_run(c, p);
    }
    bool odd = false;
    for (std::size_t i = c.first; i < c.last; ++i) {
        odd = odd != is_left_odd(chains[i], p);
    }
    return odd;
}

bool containment_index::is_left_odd_in_run(const chain& run, const ox_2dvector& p) const {
    bool odd = false;
    for (std::size_t i = run.first; i < run.last; ++i) {
        float at = 0.0f;
        if (find_crossing(points[i], points[i + 1], p.y, at) && p.x > at) {
            odd = !odd;
        }
    }
    return odd;
}

lazy_containment_index::lazy_containment_index() = default;
lazy_containment_index::lazy_containment_index(const lazy_containment_index& /*other*/) {}
lazy_containment_index::~lazy_containment_index() = default;

void lazy_containment_index::forget() noexcept {
    asked = 0;
    index.reset();
}

const containment_index* lazy_containment_index::find(const ox_polygon_data& region) {
    if (region.contour_vertices.size() < fewest_indexed_vertices) {
        return nullptr;
    }
    if (!index && ++asked > questions_before_index) {
        index = std::make_unique<containment_index>(region);
        asked = 0;
    }
    return index && index->is_reliable() ? index.get() : nullptr;
}

} // namespace ox::internal
