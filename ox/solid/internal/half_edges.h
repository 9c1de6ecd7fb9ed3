#ifndef OX_SOLID_INTERNAL_HALF_EDGES_H
#define OX_SOLID_INTERNAL_HALF_EDGES_H

#include <memory>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/solid/internal/storage.h>

namespace ox {

/// A vertex with its neighbourhood; only ever pointed to.
struct ox_solid_vertex;

/// One directed edge of a contour.
struct ox_solid_half_edge {
    unsigned int start = 0;    ///< index of the vertex it leaves
    unsigned int end = 0;      ///< index of the vertex it reaches
    unsigned int position = 0; ///< place within its contour
    unsigned int contour = 0;  ///< index of its contour in the contour sizes
    unsigned int face = 0;     ///< index in the contour sizes of the face's first contour
    ox_solid_half_edge* opposite = nullptr; ///< the half-edge running the other way, or null
    ox_list<ox_solid_vertex*> vertices;     ///< vertices along the edge, empty
    ox_list<float> parameters;              ///< their places along the edge, empty
};

namespace internal {

/// The half-edges of a solid: none until they are built.
struct half_edge_set {
    std::vector<std::unique_ptr<ox_solid_half_edge>> edges;
    bool is_closed = false; ///< every half-edge has an opposite

    /// Builds the half-edges of a primary storage and joins each with its opposite: the first one
    /// that leaves its end vertex for its start vertex. Nothing happens when they are built
    /// already. A contour with an index out of range, or cut short by the end of the indices,
    /// keeps the half-edges before that place. O(n · d) for n indices and at most d half-edges at
    /// a vertex.
    void build(const solid_storage& storage);
};

} // namespace internal

} // namespace ox

#endif
