#include <cstddef>

#include <ox/solid/internal/point_grid.h>
#include <ox/solid/internal/section_chains.h>
#include <ox/solid/internal/tolerances.h>

namespace ox {

namespace {

bool is_open(const ox_solid_contour& chain) {
    return !chain.closed && chain.points.size() > 0;
}

const ox_3dvector& first_point(const ox_solid_contour& chain) {
    return chain.points[0];
}

const ox_3dvector& last_point(const ox_solid_contour& chain) {
    return chain.points[chain.points.size() - 1];
}

/// The open chain after `chain` that begins nearest to its end, within the tolerance; of equally
/// near ones the last. The number of chains when there is none.
std::size_t find_continuation(const std::vector<ox_solid_contour>& chains, const point_grid& starts,
                              std::size_t chain, float tolerance) {
    const ox_3dvector end = last_point(chains[chain]);
    std::size_t found = chains.size();
    float nearest = tolerance;
    starts.visit_near(end, [&](std::size_t i) {
        if (i <= chain || !is_open(chains[i])) {
            return;
        }
        const float distance = first_point(chains[i]).manhattan_distance_to(end);
        if (distance < nearest || (distance == nearest && (found == chains.size() || i > found))) {
            nearest = distance;
            found = i;
        }
    });
    return found;
}

/// Moves the points of `continuation` to the end of `chain`.
void join(ox_solid_contour& chain, ox_solid_contour& continuation, float tolerance) {
    for (const ox_3dvector& point : continuation.points) {
        chain.points.push_right(point);
    }
    continuation.points.clear();
    chain.closed = last_point(chain).manhattan_distance_to(first_point(chain)) <= tolerance;
}

/// Lets each of the `searching` chains take one continuation, and leaves in the list those that
/// found one and are still open.
///
/// Chains only leave the search, by closing or by being taken: one that found no continuation
/// never will, and is not searched for again. So all passes together search at most twice per
/// segment.
void join_pass(std::vector<ox_solid_contour>& chains, const point_grid& starts,
               std::vector<std::size_t>& searching, float tolerance) {
    std::size_t still_searching = 0;
    for (const std::size_t chain : searching) {
        if (!is_open(chains[chain])) {
            continue;
        }
        const std::size_t continuation = find_continuation(chains, starts, chain, tolerance);
        if (continuation != chains.size()) {
            join(chains[chain], chains[continuation], tolerance);
            searching[still_searching++] = chain;
        }
    }
    searching.resize(still_searching);
}

} // namespace

void chain_segments(std::vector<ox_solid_contour>& chains, float tolerance) {
    std::vector<ox_3dvector> first_points;
    std::vector<std::size_t> searching;
    first_points.reserve(chains.size());
    searching.reserve(chains.size());
    for (const ox_solid_contour& chain : chains) {
        searching.push_back(first_points.size());
        first_points.push_back(first_point(chain));
    }
    const point_grid starts(first_points, tolerance * point_grid_reach);
    while (!searching.empty()) {
        join_pass(chains, starts, searching, tolerance);
    }
}

} // namespace ox
