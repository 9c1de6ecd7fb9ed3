#ifndef OX_MESH_INTERNAL_SIDE_INDEX_H
#define OX_MESH_INTERNAL_SIDE_INDEX_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <ox/mesh/internal/large_array.h>

namespace ox::internal {

/// A side of a triangle: two vertex indices in order.
struct side {
    std::uint32_t start;
    std::uint32_t end;
};

/// Finds the first of a numbered sequence of sides that runs from one vertex to another.
///
/// The sides are sorted into one range for each start vertex. A short range, as at nearly every
/// vertex of a mesh, is in order of number and read through; a longer one is ordered by end vertex
/// and number and searched. Neighbouring triangles mostly name neighbouring vertices, so building
/// and searching stay close in memory, which a hash table over the sides would not.
class side_index {
public:
    /// What `first` returns when there is no such side.
    static constexpr std::uint32_t none = 0xFFFFFFFFu;

    /// Indexes the sides `side_at(0)` to `side_at(side_count - 1)`. Those with an index not below
    /// `nb_vertices` are left out. O(nb_vertices + side_count log k), k sides at a vertex.
    template <typename SideAt>
    side_index(std::uint32_t side_count, std::uint32_t nb_vertices, const SideAt& side_at)
        : range_ends(nb_vertices, 0) {
        const auto is_valid = [=](const side& side) {
            return side.start < nb_vertices && side.end < nb_vertices;
        };
        for (std::uint32_t i = 0; i < side_count; ++i) {
            const side side = side_at(i);
            if (is_valid(side)) {
                ++range_ends[side.start];
            }
        }
        std::uint32_t count_before = 0;
        for (std::uint32_t& place : range_ends) {
            const std::uint32_t count_here = place;
            place = count_before; ///< grows to the end of the range while it is filled
            count_before += count_here;
        }
        entries = make_large_array<std::uint64_t>(count_before);
        for (std::uint32_t i = 0; i < side_count; ++i) {
            const side side = side_at(i);
            if (is_valid(side)) {
                entries[range_ends[side.start]++] = entry(side.end, i);
            }
        }
        for (std::uint32_t vertex = 0; vertex < nb_vertices; ++vertex) {
            if (!is_short(vertex)) {
                std::sort(range_begin(vertex), range_end(vertex));
            }
        }
    }

    /// The smallest number of a side from `side.start` to `side.end`, `none` when there is none.
    /// O(log k), k sides at the start vertex.
    std::uint32_t first(const side& side) const {
        if (side.start >= range_ends.size()) {
            return none;
        }
        const std::uint64_t* const end = range_end(side.start);
        const std::uint64_t* found = range_begin(side.start);
        if (is_short(side.start)) {
            while (found != end && *found >> 32 != side.end) {
                ++found;
            }
        } else {
            found = std::lower_bound(found, end, entry(side.end, 0));
        }
        return found != end && *found >> 32 == side.end ? static_cast<std::uint32_t>(*found) : none;
    }

private:
    static std::uint64_t entry(std::uint32_t end, std::uint32_t number) {
        return std::uint64_t{end} << 32 | number;
    }

    /// Sides at a vertex up to which reading is as fast as searching: two cache lines.
    static constexpr std::uint32_t short_range = 16;

    std::uint32_t begin_of(std::uint32_t vertex) const {
        return vertex == 0 ? 0 : range_ends[vertex - 1];
    }

    bool is_short(std::uint32_t vertex) const {
        return range_ends[vertex] - begin_of(vertex) <= short_range;
    }

    std::uint64_t* range_begin(std::uint32_t vertex) const {
        return entries.get() + begin_of(vertex);
    }

    std::uint64_t* range_end(std::uint32_t vertex) const {
        return entries.get() + range_ends[vertex];
    }

    std::vector<std::uint32_t> range_ends; ///< in `entries`, one for each vertex
    large_array<std::uint64_t> entries;    ///< end vertex and number, by start vertex
};

} // namespace ox::internal

#endif
