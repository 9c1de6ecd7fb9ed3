#ifndef OX_SOLID_INTERNAL_FACE_CACHE_H
#define OX_SOLID_INTERNAL_FACE_CACHE_H

#include <memory>
#include <optional>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/search/face_bounds.h>
#include <ox/solid/internal/search/face_tree.h>
#include <ox/solid/internal/storage.h>

namespace ox::internal {

/// Polygons with an owner; a null one is yet to be made.
using owned_faces = std::vector<std::unique_ptr<ox_polygon>>;

/// Whom the faces of a cache are shown to.
enum class face_audience {
    caller, ///< a caller of the library: they count among the living polygons once they are shown
    nobody, ///< only the library itself: they never count
};

/// The faces of a primary storage as polygons, made when they are asked for, with the bounds and
/// the tree that searches among them. The storage must outlive the cache, which is emptied with
/// every change of the storage.
///
/// A face is *reproducible* when the contours that it has are those it was made from, bit for bit.
/// What a polygon makes of its contours depends on nothing but their bits: so if a reproducible
/// face is added to a solid, the face made of that is the same polygon again, and need not be made.
///
/// The polygons are the solid's, but its callers may change one that they were shown. Each tells
/// the cache when that happens, and what was found out about the faces is then found anew: the
/// bounds by `refresh_bounds`, once for each operation. `is_reproducible` looks at the face as it
/// stands.
class face_cache {
public:
    explicit face_cache(const solid_storage& primary_storage,
                        face_audience shown_to = face_audience::caller)
        : storage(primary_storage), audience(shown_to) {}
    face_cache(const face_cache&) = delete; // its faces know where to tell a change
    face_cache& operator=(const face_cache&) = delete;

    /// The faces of the storage up to its first contradiction, those made that are missing: all of
    /// them or, after an allocation that failed, none. O(n) after a change.
    const ox_list<ox_polygon*>& get_list();

    /// The bounds of the listed faces. O(1) unless a face has changed since the last call, O(n)
    /// then.
    const std::vector<face_bounds>& refresh_bounds();

    /// The tree over the bounds as last refreshed, or as they are now when they never were. Built
    /// at the first call after a change, in O(n log n).
    const face_tree& get_tree();

    /// True if a face of the list is reproducible, and was changed by nobody since. O(n) for its n
    /// vertices.
    bool is_reproducible(int face) const;

    /// True if the list is all reproducible. Refreshes the bounds. O(1) unless a face has changed,
    /// O(n) then.
    bool is_all_reproducible();

    /// Differs from what it was whenever the bounds were refreshed after a change.
    unsigned int get_revision() const { return revision; }

    /// Empties the cache. The faces are the caller's, who may still be reading one.
    owned_faces retire() noexcept;

    /// Takes polygons for the first faces of the storage into the empty cache: each must be the
    /// reproducible face that its part of the storage makes, or null. Until they are asked for they
    /// do not count among the living polygons.
    void keep(owned_faces known) noexcept;

private:
    /// Where a face begins in the storage, and what it was when it was made.
    struct origin {
        storage_place place;
        ox_3dvector normal;
        bool had_contours_of_storage;
    };

    void make_missing_faces();
    void show(owned_faces made, std::vector<origin> made_origins);
    bool has_contours_of(const storage_place& place, ox_polygon& face) const;
    void find_bounds();
    void watch_faces();

    const solid_storage& storage;
    const face_audience audience;
    bool is_changed = true; ///< a face may have, since all were watched; outlives the faces
    unsigned int revision = 0;
    std::optional<bool> all_reproducible; ///< none while unknown
    owned_faces faces;
    ox_list<ox_polygon*> list; ///< of the same faces, once all of them are there
    std::vector<origin> origins;
    bool is_complete = false;
    std::vector<face_bounds> bounds;
    std::unique_ptr<face_tree> tree;
};

} // namespace ox::internal

#endif
