#ifndef OX_SOLID_INTERNAL_OX_SOLID_STATE_H
#define OX_SOLID_INTERNAL_OX_SOLID_STATE_H

#include <memory>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/face_cache.h>
#include <ox/solid/internal/half_edges.h>
#include <ox/solid/internal/tolerances.h>

namespace ox {

class ox_solid;

/// Number of stopwatches of a solid.
constexpr int solid_chrono_count = 8;

/// The record behind a solid: its primary storage, the caches derived from it, and its settings.
struct ox_solid_state {
    explicit ox_solid_state(ox_solid* solid);
    /// A record for `solid` with a copy of the primary storage of `source`, otherwise new.
    ox_solid_state(ox_solid* solid, const ox_solid_state& source);
    ox_solid_state(const ox_solid_state&) = delete;
    ox_solid_state& operator=(const ox_solid_state&) = delete;
    ~ox_solid_state();

    /// Drops all caches. The cached faces are handed to the caller, who may still be reading one.
    face_cache invalidate();

    /// Number of vertices, 0 for a list with a negative count.
    unsigned int count_vertices() const;

    /// Appends a polygon to the primary storage as faces, one per outer boundary, each followed by
    /// the holes directly inside it; the caches are the caller's business. Returns the number of
    /// faces. O(n + c) for n vertices in c contours.
    int append_polygon(ox_polygon& polygon);

    /// Whether the primary storage has a face at this place that is the only outer contour of
    /// `polygon`, then its holes, with the same bits; moves the place behind them then. O(n).
    bool holds_face(ox_polygon& polygon, storage_place& place) const;

    /// Empties the primary storage and frees its memory; the caches are the caller's business.
    void clear_primary_storage();

    ox_solid* owner;

    // Primary storage
    ox_list<ox_3dvector> vertices;
    ox_list<unsigned int> contours;
    ox_list<int> contour_sizes;

    // Caches
    ox_box bounding_box;
    face_cache faces;
    ox_list<ox_3dvector> tesselation_vertices;
    ox_list<unsigned int> tesselation_triangles;
    std::unique_ptr<ox_solid_state> readded; ///< the solid made by adding the faces, for sections

    float tolerance = solid_tolerance;

    ox_list<ox_solid_half_edge*> half_edges; // owned; filled by build_half_edges only
    int manifold_status = 0;

    bool verbose = false;
    bool profiling = false;
    ox_chrono chronos[solid_chrono_count]; // 0 to 2 time the phases of a boolean, 3 to 7 are spare

    bool half_edges_closed = false; // every half-edge has an opposite
};

} // namespace ox

#endif
