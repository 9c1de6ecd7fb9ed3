#ifndef OX_MESH_INTERNAL_EDGE_TABLE_H
#define OX_MESH_INTERNAL_EDGE_TABLE_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ox {

/// A hash table from edges, pairs of vertex indices in order, to numbers. Open addressing with
/// linear probing; entries are never removed.
class oxp_edge_table {
public:
    /// What `find` returns for an edge that was never set, so no number to store.
    static constexpr std::uint32_t absent = 0xFFFFFFFFu;

    /// An empty table with room for `nb_edges` edges before it first grows.
    explicit oxp_edge_table(std::size_t nb_edges = 0);

    /// The number of the edge from `start` to `end`, which becomes `value` when the edge is new.
    /// Amortised O(1).
    std::uint32_t find_or_add(std::uint32_t start, std::uint32_t end, std::uint32_t value);

    /// The number of the edge from `start` to `end`, `absent` when there is none. O(1).
    std::uint32_t find(std::uint32_t start, std::uint32_t end) const;

private:
    struct slot {
        std::uint32_t start;
        std::uint32_t end;
        std::uint32_t value; // absent in a free slot
    };

    /// The slot of an edge, or the free slot where it belongs.
    std::size_t slot_of(std::uint32_t start, std::uint32_t end) const;
    void enlarge();

    std::vector<slot> slots; // a power of two, at most three quarters in use
    std::size_t nb_used = 0;
};

} // namespace ox

#endif
