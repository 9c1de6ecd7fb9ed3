#ifndef OX_SOLID_INTERNAL_FACE_CACHE_H
#define OX_SOLID_INTERNAL_FACE_CACHE_H

#include <memory>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/internal/search/face_bounds.h>
#include <ox/solid/internal/search/face_tree.h>

namespace ox {

struct ox_solid_state;

/// A place in a primary storage.
struct storage_place {
    int size_index = 0; ///< of a contour among the sizes
    int index = 0;      ///< of its first vertex index
};

/// The faces of a solid as polygons, made from its primary storage when they are asked for, with
/// the bounds and the tree that searches among them.
///
/// A face is *settled* when the contours that it has are those it was made from, bit for bit. What
/// a polygon makes of its contours depends on nothing but their bits: so if a settled face is
/// added to a solid, the face made of that is the same polygon again, and needs not be made.
///
/// The polygons are the solid's, but its callers may change one that they were shown. So bounds are
/// found anew by `refresh_bounds`, once for each operation, and `is_settled` looks at the face as
/// it stands.
class face_cache {
public:
    face_cache() = default;

    /// Takes polygons for the first faces of a storage: each must be the settled face that its
    /// part of the storage makes, or null where that face is yet to be made.
    explicit face_cache(std::vector<std::unique_ptr<ox_polygon>> known);

    face_cache(face_cache&& other) noexcept = default;
    face_cache& operator=(face_cache&& other) noexcept;
    ~face_cache();

    /// The faces of the storage up to its first inconsistency, those made that were missing. The
    /// storage must stay as it is while the cache is in use. O(n) after a change.
    const ox_list<ox_polygon*>& get_list(const ox_solid_state& storage);

    /// Finds the bounds of the listed faces anew. O(n).
    const std::vector<face_bounds>& refresh_bounds();

    /// The tree over the bounds as last refreshed, or as they are now when they never were. Built
    /// at the first call after a change, in O(n log n).
    const face_tree& get_tree();

    /// Whether a face of the list is settled, and was changed by nobody since. O(n) for its n
    /// vertices.
    bool is_settled(const ox_solid_state& storage, int face) const;

    /// Hands over a face, leaving null in the list.
    std::unique_ptr<ox_polygon> release(int face);

private:
    /// Where a face begins in the storage, and what it was when it was made.
    struct origin {
        storage_place place;
        ox_3dvector normal;
        bool had_contours_of_storage;
    };

    class storage_reader;

    void make_missing_faces(const ox_solid_state& storage);
    bool has_contours_of_storage(const ox_solid_state& storage, int face) const;

    ox_list<ox_polygon*> list;
    std::vector<origin> origins;
    bool is_complete = false;
    std::vector<face_bounds> bounds;
    std::unique_ptr<face_tree> tree;
};

} // namespace ox

#endif
