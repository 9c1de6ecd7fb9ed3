#ifndef OX_SOLID_INTERNAL_OX_SOLID_STATE_H
#define OX_SOLID_INTERNAL_OX_SOLID_STATE_H

#include <memory>

#include <ox/core/ox_chrono.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/geometry/ox_box.h>
#include <ox/solid/internal/face_cache.h>
#include <ox/solid/internal/half_edges.h>
#include <ox/solid/internal/storage.h>
#include <ox/solid/internal/tolerances.h>

namespace ox {

namespace internal {

/// The phases of a boolean, which are timed.
enum solid_phase { own_faces_phase, other_faces_phase, rebuild_phase, solid_phase_count };

/// Faces with the storage that they are made from, kept for sections of the same faces.
struct section_source {
    solid_storage storage;
    face_cache faces{storage, face_audience::nobody};
    unsigned int revision = 0; ///< of the faces that were added, when they were last compared
};

} // namespace internal

/// The record behind a solid: its primary storage, the caches derived from it, and its settings.
struct ox_solid_state {
    ox_solid_state() = default;
    /// A record with a copy of a primary storage, otherwise new.
    explicit ox_solid_state(const internal::solid_storage& primary_storage)
        : storage(primary_storage) {}
    ox_solid_state(const ox_solid_state&) = delete;
    ox_solid_state& operator=(const ox_solid_state&) = delete;

    /// Drops all caches: to be called after each change of the primary storage. The cached faces
    /// are handed to the caller, who may still be reading one.
    internal::owned_faces invalidate() noexcept;

    /// Replaces the primary storage and drops all caches. The cached faces are handed over.
    internal::owned_faces replace_storage(internal::solid_storage made) noexcept;

    /// The box around all vertices, found at the first call after a change.
    const ox_box& get_bounding_box();

    internal::solid_storage storage;

    // Caches
    ox_box bounding_box;
    internal::face_cache faces{storage};
    ox_list<ox_3dvector> tesselation_vertices;
    ox_list<unsigned int> tesselation_triangles;
    std::unique_ptr<internal::section_source> added_again; ///< made by adding the faces as they are

    float tolerance = internal::solid_tolerance;

    internal::half_edge_set half_edges; ///< built by no public operation
    int manifold_status = 0;

    bool verbose = false;
    bool profiling = false;
    ox_chrono chronos[internal::solid_phase_count];
};

} // namespace ox

#endif
