#include <ox/solid/internal/half_edges.h>

#include <cstdint>
#include <cstdlib>
#include <utility>

namespace ox::internal {

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
bool read_index(const solid_storage& storage, std::int64_t place, unsigned int& index) {
    if (place >= storage.contours.size()) {
        return false;
    }
    index = storage.contours[static_cast<int>(place)];
    return index < storage.count_vertices();
}

/// Makes the half-edges of one contour, up to the first index that is missing or out of range.
void build_contour(half_edge_set& set, const solid_storage& storage, const contour_run& contour,
                   outgoing_edges& outgoing) {
    for (std::int64_t j = 0; j < contour.size; ++j) {
        auto half_edge = std::make_unique<ox_solid_half_edge>();
        if (!read_index(storage, contour.first + j, half_edge->start) ||
            !read_index(storage, contour.first + (j + 1) % contour.size, half_edge->end)) {
            return;
        }
        half_edge->position = static_cast<unsigned int>(j);
        half_edge->contour = contour.number;
        half_edge->face = contour.face;
        outgoing[half_edge->start].push_back(half_edge.get());
        set.edges.push_back(std::move(half_edge));
    }
}

void build_contours(half_edge_set& set, const solid_storage& storage, outgoing_edges& outgoing) {
    contour_run contour = {0, 0, 0, 0};
    for (const int size : storage.contour_sizes) {
        if (size > 0) {
            contour.face = contour.number;
        }
        contour.size = std::abs(std::int64_t{size});
        build_contour(set, storage, contour, outgoing);
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

} // namespace

void half_edge_set::build(const solid_storage& storage) {
    if (!edges.empty()) {
        return;
    }
    outgoing_edges outgoing(storage.count_vertices());
    build_contours(*this, storage, outgoing);
    is_closed = true;
    for (const std::unique_ptr<ox_solid_half_edge>& half_edge : edges) {
        half_edge->opposite = find_opposite(*half_edge, outgoing);
        is_closed = is_closed && half_edge->opposite != nullptr;
    }
}

} // namespace ox::internal
