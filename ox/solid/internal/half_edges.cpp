#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utility>
#include <vector>

#include <ox/solid/internal/half_edges.h>
#include <ox/solid/internal/ox_solid_state.h>

namespace ox {

namespace {

/// The half-edges that leave each vertex, in the order of their making.
using outgoing_edges = std::vector<std::vector<ox_solid_half_edge*>>;

/// A contour in the primary storage.
struct contour_run {
    std::int64_t first; ///< place of its first index
    std::int64_t size;  ///< number of its indices
    unsigned int number;
    unsigned int face;
};

/// Reads the vertex index at a place of the contours; false when there is none in range.
bool read_index(const ox_solid_state& state, std::int64_t place, unsigned int& index) {
    if (place >= state.contours.size()) {
        return false;
    }
    index = state.contours[static_cast<int>(place)];
    return index < state.count_vertices();
}

void append_half_edge(ox_solid_state& state, std::unique_ptr<ox_solid_half_edge> half_edge,
                      outgoing_edges& outgoing) {
    outgoing[half_edge->start].push_back(half_edge.get());
    state.half_edges.push_right(half_edge.get());
    half_edge.release();
}

/// Makes the half-edges of one contour, up to the first index that is missing or out of range.
void build_contour(ox_solid_state& state, const contour_run& contour, outgoing_edges& outgoing) {
    for (std::int64_t j = 0; j < contour.size; ++j) {
        auto half_edge = std::make_unique<ox_solid_half_edge>();
        if (!read_index(state, contour.first + j, half_edge->start) ||
            !read_index(state, contour.first + (j + 1) % contour.size, half_edge->end)) {
            return;
        }
        half_edge->position = static_cast<unsigned int>(j);
        half_edge->contour = contour.number;
        half_edge->face = contour.face;
        append_half_edge(state, std::move(half_edge), outgoing);
    }
}

void build_contours(ox_solid_state& state, outgoing_edges& outgoing) {
    contour_run contour = {0, 0, 0, 0};
    for (const int size : state.contour_sizes) {
        if (size > 0) {
            contour.face = contour.number;
        }
        contour.size = std::abs(std::int64_t{size});
        build_contour(state, contour, outgoing);
        contour.first += contour.size;
        ++contour.number;
    }
}

ox_solid_half_edge* find_opposite(const ox_solid_half_edge& half_edge,
                                  const outgoing_edges& outgoing) {
    for (ox_solid_half_edge* candidate : outgoing[half_edge.end]) {
        if (candidate->end == half_edge.start) {
            return candidate;
        }
    }
    return nullptr;
}

void join_opposites(ox_solid_state& state, const outgoing_edges& outgoing) {
    state.half_edges_closed = true;
    for (ox_solid_half_edge* half_edge : state.half_edges) {
        if (half_edge->opposite == nullptr) {
            half_edge->opposite = find_opposite(*half_edge, outgoing);
        }
        if (half_edge->opposite == nullptr) {
            state.half_edges_closed = false;
        }
    }
}

} // namespace

void build_half_edges(ox_solid_state& state) {
    if (state.half_edges.size() > 0) {
        return;
    }
    outgoing_edges outgoing(state.count_vertices());
    build_contours(state, outgoing);
    join_opposites(state, outgoing);
}

} // namespace ox
