#ifndef OX_SOLID_INTERNAL_SEARCH_PLANE_INDEX_H
#define OX_SOLID_INTERNAL_SEARCH_PLANE_INDEX_H

#include <cstddef>
#include <vector>

#include <ox/geometry/ox_3dvector.h>
#include <ox/solid/internal/search/point_grid.h>

namespace ox::internal {

/// The plane of a face.
struct face_plane {
    ox_3dvector point;
    ox_3dvector normal;
};

/// Finds planes that may be the same: planes of one normal are kept together, sorted by their place
/// along it, and the normals in a grid.
class plane_index {
public:
    /// Sorts the planes, whose numbers must be finite. `tolerance` bounds, in model units, the
    /// distance of the normals and of each point from the other plane. O(n log n).
    plane_index(const std::vector<face_plane>& planes, float tolerance);

    /// The numbers of all planes behind plane `i` that may be the same, ascending.
    std::vector<std::size_t> find_later(std::size_t i) const;

private:
    struct member {
        double place; ///< along the normal
        std::size_t plane;
    };

    /// The planes of one normal, sorted by place.
    struct bundle {
        ox_3dvector normal;
        double reach; ///< largest Manhattan size of their points
        std::vector<member> members;
    };

    static std::vector<bundle> make_bundles(const std::vector<face_plane>& planes);
    static std::vector<ox_3dvector> normals_of(const std::vector<bundle>& bundles);

    std::vector<face_plane> planes;
    float tolerance;
    std::vector<bundle> bundles;
    point_grid normals;
};

} // namespace ox::internal

#endif
