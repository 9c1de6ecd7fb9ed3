#include <ox/polygon/internal/search/center_search.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <queue>
#include <tuple>
#include <utility>
#include <vector>

#include <ox/polygon/internal/answer_counts.h>
#include <ox/polygon/internal/plane_coordinates.h>
#include <ox/polygon/internal/search/crossing_count.h>
#include <ox/polygon/internal/search/float_progression.h>
#include <ox/polygon/internal/search/outline_distance.h>
#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {

namespace {

constexpr float coarsest_step = 0.5f;
constexpr float finest_step_above = 0.05f; // halving ends when the step is no longer greater
constexpr float score_cap = 10000.0f;
constexpr float penalty_per_distance = 0.1f;

/// A block of so few candidates is cheaper to score than to divide.
constexpr std::uint64_t candidates_of_a_leaf = 64;

/// Beyond this the distances could overflow. The integer grid of the contours ends at 4.6e14.
constexpr double largest_coordinate = 1e15;

/// Axes that differ from an orthonormal pair by more were scaled, not just rounded.
constexpr double orthonormal_tolerance = 1e-4;

double length(const ox_3dvector& v) {
    return std::sqrt(exact_dot(v, v));
}

bool all_finite(const ox_list<ox_2dvector>& points) {
    return std::all_of(points.begin(), points.end(), [](const ox_2dvector& point) {
        return std::isfinite(point.x) && std::isfinite(point.y);
    });
}

class center_search {
public:
    explicit center_search(const ox_polygon_data& searched)
        : polygon(searched), vertices(plane_coordinates(searched)), low(vertices[0]),
          high(vertices[0]), outline(vertices, searched.contour_sizes),
          all_sides(outline.all_sides()) {
        for (const ox_2dvector& vertex : vertices) {
            low = ox_2dvector(std::min(low.x, vertex.x), std::min(low.y, vertex.y));
            high = ox_2dvector(std::max(high.x, vertex.x), std::max(high.y, vertex.y));
        }
        middle = (low + high) * 0.5f;
    }

    bool find(ox_3dvector& center) {
        if (!prepare_frame()) {
            return false;
        }
        prepare_grids();
        while (!open.empty() && may_win(open.top())) {
            const block b = open.top();
            open.pop();
            if (b.count() <= candidates_of_a_leaf) {
                evaluate(b);
            } else {
                split(b);
            }
        }
        if (best.grid < 0) {
            return false;
        }
        const grid& winners = grids[static_cast<std::size_t>(best.grid)];
        center = world(ox_2dvector(winners.u.at(best.u), winners.v.at(best.v)));
        return true;
    }

private:
    struct grid {
        float_progression u;
        float_progression v;
    };

    /// The place of a candidate in the order in which equal scores supersede each other.
    struct place {
        int grid;
        int u;
        int v;
        bool operator<(const place& other) const {
            return std::tie(grid, u, v) < std::tie(other.grid, other.u, other.v);
        }
    };

    /// The candidates [u_begin, u_end) x [v_begin, v_end) of a grid.
    struct block {
        int grid;
        int u_begin, u_end;
        int v_begin, v_end;
        bool inside;  ///< all of them are known to lie in the region
        double bound; ///< no candidate scores more
        std::shared_ptr<const outline_distance::side_indices> near_sides;

        place last() const { return {grid, u_end - 1, v_end - 1}; }
        std::uint64_t count() const {
            return static_cast<std::uint64_t>(u_end - u_begin) *
                   static_cast<std::uint64_t>(v_end - v_begin);
        }
    };

    struct by_bound {
        bool operator()(const block& a, const block& b) const {
            return a.bound != b.bound ? a.bound < b.bound : a.last() < b.last();
        }
    };

    /// Measures how the axes move a tested candidate, exactly and by rounding. Returns false when
    /// the coordinates are not finite or too large.
    bool prepare_frame() {
        const double axis = std::hypot(length(polygon.dx), length(polygon.dy));
        const double extent = static_cast<double>(std::fabs(low.x)) + std::fabs(low.y) +
                              std::fabs(high.x) + std::fabs(high.y);
        const double reach = length(polygon.point) + extent * axis;
        const double largest = std::hypot(extent, reach, reach * axis);
        if (!all_finite(vertices) || !(largest <= largest_coordinate)) {
            return false;
        }
        frame_uu = exact_dot(polygon.dx, polygon.dx);
        frame_uv = exact_dot(polygon.dx, polygon.dy);
        frame_vv = exact_dot(polygon.dy, polygon.dy);
        frame_scale = std::max(frame_uu, frame_vv) + std::fabs(frame_uv);
        frame_is_orthonormal = std::fabs(frame_uu - 1.0) <= orthonormal_tolerance &&
                               std::fabs(frame_vv - 1.0) <= orthonormal_tolerance &&
                               std::fabs(frame_uv) <= orthonormal_tolerance;
        // Each rounding is at most 2^-24 of its value: 24 of them on the way to the world and back,
        // 12 where a crossing is interpolated. Sides that are not measured can be nearer than their
        // end by their length.
        constexpr double rounding = 1.0 / 16777216.0;
        containment_error = 32.0 * rounding * reach * axis + 16.0 * rounding * extent +
                            static_cast<double>(shortest_side_of_center_distance);
        return true;
    }

    void prepare_grids() {
        for (float step = coarsest_step; step > finest_step_above; step *= 0.5f) {
            grids.push_back(
                {float_progression(low.x, high.x, step), float_progression(low.y, high.y, step)});
        }
        const auto all = std::make_shared<const outline_distance::side_indices>(all_sides);
        for (std::size_t i = 0; i < grids.size(); ++i) {
            consider(
                {static_cast<int>(i), 0, grids[i].u.size(), 0, grids[i].v.size(), false, 0.0, all});
        }
    }

    ox_3dvector world(const ox_2dvector& candidate) const {
        return polygon.point + candidate.x * polygon.dx + candidate.y * polygon.dy;
    }

    bool contains(const ox_2dvector& candidate) const {
        const ox_2dvector tested = plane_coordinates(polygon, world(candidate));
        return contours_contain(
            polygon.contour_sizes, [this](int i) { return vertices[i]; }, tested.x, tested.y);
    }

    exact_point tested_point(const exact_point& candidate) const {
        return {frame_uu * candidate.u + frame_uv * candidate.v,
                frame_uv * candidate.u + frame_vv * candidate.v};
    }

    /// The least distance to the outline at which the candidates of a block are tested for
    /// containment; negative when it is not known to be positive.
    double clearance(const block& b, const exact_point& centre, double distance) const {
        const grid& g = grids[static_cast<std::size_t>(b.grid)];
        const double half_u = (static_cast<double>(g.u.at(b.u_end - 1)) - g.u.at(b.u_begin)) * 0.5;
        const double half_v = (static_cast<double>(g.v.at(b.v_end - 1)) - g.v.at(b.v_begin)) * 0.5;
        const exact_point tested = tested_point(centre);
        const double tested_distance =
            frame_is_orthonormal ? distance - std::hypot(tested.u - centre.u, tested.v - centre.v)
                                 : outline.exact(tested, all_sides);
        return tested_distance - frame_scale * std::hypot(half_u, half_v) - containment_error;
    }

    double score_bound(const exact_point& centre, double radius, double distance) const {
        const double from_middle = std::hypot(centre.u - middle.x, centre.v - middle.y);
        const double penalty =
            static_cast<double>(penalty_per_distance) * std::max(0.0, from_middle - radius);
        const double bound = distance + radius - penalty + outline.rounding_error();
        return std::min(bound, static_cast<double>(score_cap));
    }

    float score(const ox_2dvector& candidate, const outline_distance::side_indices& sides) const {
        const float penalty = penalty_per_distance * candidate.distance_to(middle);
        return std::min(score_cap, outline.rounded(candidate, sides) - penalty);
    }

    /// Opens a block, unless none of its candidates can win. What it holds as near sides and as
    /// `inside` is its parent's knowledge, which is refined.
    void consider(block b) {
        if (b.u_begin == b.u_end || b.v_begin == b.v_end) {
            return;
        }
        const grid& g = grids[static_cast<std::size_t>(b.grid)];
        const ox_2dvector first(g.u.at(b.u_begin), g.v.at(b.v_begin));
        const ox_2dvector last(g.u.at(b.u_end - 1), g.v.at(b.v_end - 1));
        const exact_point centre = {(static_cast<double>(first.x) + last.x) * 0.5,
                                    (static_cast<double>(first.y) + last.y) * 0.5};
        const double radius = std::hypot(last.x - centre.u, last.y - centre.v);
        const double distance = outline.exact(centre, *b.near_sides);
        b.bound = score_bound(centre, radius, distance);
        if (!may_win(b)) {
            return;
        }
        if (!b.inside && clearance(b, centre, distance) > 0.0) {
            if (!contains(first)) {
                return;
            }
            b.inside = true;
            answers_of(answered_by::centre_block) += b.count();
        }
        b.near_sides = std::make_shared<const outline_distance::side_indices>(
            outline.nearest_within(centre, radius, distance, *b.near_sides));
        open.push(std::move(b));
    }

    void split(const block& b) {
        block lower = b;
        block upper = b;
        const int u_count = b.u_end - b.u_begin;
        const int v_count = b.v_end - b.v_begin;
        if (u_count > v_count) {
            lower.u_end = upper.u_begin = b.u_begin + u_count / 2;
        } else {
            lower.v_end = upper.v_begin = b.v_begin + v_count / 2;
        }
        consider(std::move(lower));
        consider(std::move(upper));
    }

    void evaluate(const block& b) {
        answers_of(answered_by::centre_candidate) += b.count();
        const grid& g = grids[static_cast<std::size_t>(b.grid)];
        for (int u = b.u_begin; u < b.u_end; ++u) {
            for (int v = b.v_begin; v < b.v_end; ++v) {
                const ox_2dvector candidate(g.u.at(u), g.v.at(v));
                const float candidate_score = score(candidate, *b.near_sides);
                const place here = {b.grid, u, v};
                const bool wins =
                    candidate_score > best_score || (candidate_score == best_score && best < here);
                if (wins && (b.inside || contains(candidate))) {
                    best_score = candidate_score;
                    best = here;
                }
            }
        }
    }

    bool may_win(const block& b) const {
        const double to_beat = static_cast<double>(best_score);
        return b.bound > to_beat || (b.bound == to_beat && best < b.last());
    }

    const ox_polygon_data& polygon;
    ox_list<ox_2dvector> vertices; ///< of the contours, in the frame
    ox_2dvector low;               ///< of the bounds
    ox_2dvector high;
    ox_2dvector middle;
    outline_distance outline;
    outline_distance::side_indices all_sides;

    // A candidate is tested for containment where the frame's axes bring it back to; that place
    // is the candidate itself up to rounding, unless a transformation scaled the axes.
    double frame_uu = 1.0, frame_uv = 0.0, frame_vv = 1.0;
    double frame_scale = 1.0;
    bool frame_is_orthonormal = true;
    double containment_error = 0.0;

    std::vector<grid> grids;
    std::priority_queue<block, std::vector<block>, by_bound> open;
    float best_score = 0.0f;
    place best = {-1, 0, 0};
};

} // namespace

bool find_best_center(const ox_polygon_data& polygon, ox_3dvector& center) {
    return center_search(polygon).find(center);
}

} // namespace ox::internal
