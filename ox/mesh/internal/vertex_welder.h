#ifndef OX_MESH_INTERNAL_VERTEX_WELDER_H
#define OX_MESH_INTERNAL_VERTEX_WELDER_H

#include <cstdint>
#include <vector>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// The welded vertices of one run, and the search for the one that a further vertex joins.
///
/// A vertex joins the first welded vertex, in order of creation, of the same octree leaf whose
/// position differs by at most the position tolerance on each axis and whose normal differs by at
/// most the normal tolerance, summed over the axes. Differences are single precision.
///
/// A leaf may hold a whole model (one far from the origin, for instance), so its vertices are not
/// scanned: they are chained by a hash of their place in a grid a few tolerances wide, and only
/// the places within the tolerance are looked at. The grid merely proposes; every candidate is
/// checked as above, and the one of the smallest index wins, so the answer is that of a scan.
class oxp_vertex_welder {
public:
    /// A negative or NaN tolerance welds nothing.
    oxp_vertex_welder(float position_tolerance, float normal_tolerance);

    /// The index of the welded vertex that the finite position p with normal n joins in `leaf`,
    /// or of the one made from it. O(1) on average over positions that are not crowded by
    /// different normals.
    std::uint32_t weld(std::uint32_t leaf, const ox_3dvector& p, const ox_3dvector& n);

    /// Makes a welded vertex that no other ever joins and returns its index.
    std::uint32_t add_alone(const ox_3dvector& p, const ox_3dvector& n);

    /// The welded positions, in order of creation.
    const ox_list<ox_3dvector>& get_positions() const { return positions; }

    /// The normal of the vertex that made each welded position.
    const ox_list<ox_3dvector>& get_normals() const { return normals; }

private:
    static constexpr std::uint32_t none = 0xFFFFFFFFu;

    /// Where a welded vertex can be found.
    struct place {
        std::uint32_t leaf;
        std::uint32_t next; // in the chain of its bucket
    };

    std::uint32_t find(std::uint32_t leaf, const ox_3dvector& p, const ox_3dvector& n) const;
    std::uint32_t find_in_chain(std::uint32_t first, std::uint32_t leaf, const ox_3dvector& p,
                                const ox_3dvector& n) const;
    bool welds(std::uint32_t welded, const ox_3dvector& p, const ox_3dvector& n) const;

    double grid_coordinate(double coordinate) const;
    int grid_coordinates_near(float coordinate, double (&found)[3]) const;
    std::size_t bucket_of(std::uint32_t leaf, double x, double y, double z) const;
    void chain(std::uint32_t welded);
    void enlarge_table();

    float position_tolerance;
    float normal_tolerance;
    double search_reach;
    double search_cells_per_unit;
    ox_list<ox_3dvector> positions;
    ox_list<ox_3dvector> normals;
    std::vector<place> places;
    std::vector<std::uint32_t> buckets; // the newest welded vertex of each; a power of two
};

} // namespace ox

#endif
