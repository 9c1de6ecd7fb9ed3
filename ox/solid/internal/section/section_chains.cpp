#include <ox/solid/internal/section/section_chains.h>

#include <cstddef>

#include <ox/solid/internal/search/point_grid.h>

namespace ox::internal {

namespace {

using segment_list = std::vector<section_segment>;

bool is_open(const section_segment& chain) {
    return !chain.is_closed && !chain.is_appended;
}

const section_segment& last_segment(const segment_list& segments, std::size_t chain) {
    const int last = segments[chain].last;
    return segments[last == section_segment::none ? chain : static_cast<std::size_t>(last)];
}

/// The open chain after `chain` that begins nearest to its end, within the tolerance; of equally
/// near ones the last. The number of segments when there is none.
std::size_t find_continuation(const segment_list& segments, const point_grid& starts,
                              std::size_t chain, float tolerance) {
    const ox_3dvector end = last_segment(segments, chain).end;
    std::size_t found = segments.size();
    float nearest = tolerance;
    starts.visit_near(end, [&](std::size_t i) {
        if (i <= chain || !is_open(segments[i])) {
            return;
        }
        const float distance = segments[i].start.manhattan_distance_to(end);
        if (distance < nearest ||
            (distance == nearest && (found == segments.size() || i > found))) {
            nearest = distance;
            found = i;
        }
    });
    return found;
}

/// Moves the segments of `continuation` to the end of `chain`.
void join(segment_list& segments, std::size_t chain, std::size_t continuation, float tolerance) {
    const section_segment& new_last = last_segment(segments, continuation);
    const std::size_t former_last =
        static_cast<std::size_t>(&last_segment(segments, chain) - segments.data());
    segments[former_last].next = static_cast<int>(continuation);
    segments[chain].last = static_cast<int>(&new_last - segments.data());
    segments[chain].is_closed =
        new_last.end.manhattan_distance_to(segments[chain].start) <= tolerance;
    segments[continuation].is_appended = true;
}

/// Appends one continuation to each of the `searching` chains, and leaves in the list those that
/// found one and are still open.
///
/// Chains only leave the search, by closing or by being appended: one that found no continuation
/// never will, and is not searched for again. So all passes together search at most twice per
/// segment.
void join_pass(segment_list& segments, const point_grid& starts,
               std::vector<std::size_t>& searching, float tolerance) {
    std::size_t still_searching = 0;
    for (const std::size_t chain : searching) {
        if (!is_open(segments[chain])) {
            continue;
        }
        const std::size_t continuation = find_continuation(segments, starts, chain, tolerance);
        if (continuation != segments.size()) {
            join(segments, chain, continuation, tolerance);
            searching[still_searching++] = chain;
        }
    }
    searching.resize(still_searching);
}

} // namespace

void chain_segments(std::vector<section_segment>& segments, float tolerance) {
    std::vector<ox_3dvector> first_points;
    std::vector<std::size_t> searching;
    first_points.reserve(segments.size());
    searching.reserve(segments.size());
    for (const section_segment& segment : segments) {
        searching.push_back(first_points.size());
        first_points.push_back(segment.start);
    }
    const point_grid starts(first_points, tolerance * point_grid_reach);
    while (!searching.empty()) {
        join_pass(segments, starts, searching, tolerance);
    }
}

ox_list<ox_3dvector> list_points(const std::vector<section_segment>& segments, std::size_t first) {
    const auto visit_chain = [&](auto visit) {
        for (int i = static_cast<int>(first); i != section_segment::none;) {
            const section_segment& segment = segments[static_cast<std::size_t>(i)];
            visit(segment);
            i = segment.next;
        }
    };
    int count = 0;
    visit_chain([&](const section_segment&) { count += 2; });
    ox_list<ox_3dvector> points(count);
    int filled = 0;
    visit_chain([&](const section_segment& segment) {
        points[filled++] = segment.start;
        points[filled++] = segment.end;
    });
    return points;
}

} // namespace ox::internal
