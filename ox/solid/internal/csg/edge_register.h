#ifndef OX_SOLID_INTERNAL_CSG_EDGE_REGISTER_H
#define OX_SOLID_INTERNAL_CSG_EDGE_REGISTER_H

#include <algorithm>
#include <cstdint>
#include <vector>

#include <ox/solid/internal/csg/shell.h>

namespace ox::internal::csg {

/// The edges between points without their direction, each once, numbered in the order in which they
/// are first named.
class edge_register {
public:
    edge_register();

    /// The number of the edge between two points, which is new where it was not named before.
    int find_or_add(int a, int b);

    /// The number of the edge between two points, -1 where it was not named.
    int find(int a, int b) const { return slots[slot_of({std::min(a, b), std::max(a, b)})]; }

    /// The ends of an edge, the lower index first.
    const directed_edge& ends(int edge) const { return edges[static_cast<std::size_t>(edge)]; }

    /// The number of edges.
    int size() const { return static_cast<int>(edges.size()); }

private:
    std::size_t slot_of(const directed_edge& ends) const;
    void enlarge();

    std::vector<directed_edge> edges;
    std::vector<int> slots; ///< a power of two of them: an edge, or -1; the next one where taken
};

/// Points on the inside of edges, which divide them in the same way in every face.
class edge_division {
public:
    explicit edge_division(int edge_count) : inner(static_cast<std::size_t>(edge_count)) {}

    /// Divides an edge at a point that is none of its ends.
    void add(int edge, int point);

    /// The number of points put on edges; after `sort` each counts once for an edge.
    std::size_t size() const { return count; }

    /// True if the edge is divided.
    bool divides(int edge) const { return !inner[static_cast<std::size_t>(edge)].empty(); }

    /// Puts the points of every edge in order from its lower end to its higher one, each once.
    void sort(const edge_register& edges, const std::vector<grid_point>& points);

    /// Replaces the edges of a face by their parts.
    void apply(edge_register& edges, face_boundary& face) const;

private:
    std::size_t count = 0;
    std::vector<std::vector<int>> inner;
};

/// Removes each directed edge together with one of the opposite direction, as often as there are
/// both. What is left is in the order of its lower points. O(n log n).
void cancel_opposites(face_boundary& boundary);

/// The same for the many edges between `point_count` points. O(n) while points have few edges.
void cancel_opposites(face_boundary& boundary, std::size_t point_count);

} // namespace ox::internal::csg

#endif
