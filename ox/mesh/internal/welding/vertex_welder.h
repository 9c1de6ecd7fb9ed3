#ifndef OX_MESH_INTERNAL_WELDING_VERTEX_WELDER_H
#define OX_MESH_INTERNAL_WELDING_VERTEX_WELDER_H

#include <cmath>
#include <cstddef>
#include <cstdint>

#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/mesh/internal/welding/place_table.h>
#include <ox/mesh/internal/welding/search_grid.h>
#include <ox/mesh/internal/welding/welded_leaves.h>

namespace ox::internal {

/// The welded vertices of one run, and the search for the one that a further vertex joins.
///
/// A vertex joins the first welded vertex, in order of creation, of the same octree leaf whose
/// position differs by at most the position tolerance on each axis and whose normal differs by at
/// most the normal tolerance, summed over the axes. Differences are single precision.
///
/// A leaf may hold a whole model (one far from the origin, for instance), so its vertices are not
/// scanned: they are chained by their cell of a search grid, and only the cells within the
/// tolerance are looked at. The grid merely proposes; every candidate is checked as above, and the
/// one of the smallest index wins, so the answer is that of a scan.
///
/// Most vertices of a mesh are repetitions, and these are answered from their own cell alone. A
/// welded vertex is called isolated when no other of its leaf was within the position tolerance
/// when it was made. A vertex at exactly the place of a isolated one, in the same leaf, joins it if
/// the normals agree: all that are close to the place were made later, since nothing is ever taken
/// back.
class vertex_welder {
public:
    /// A vertex on its way into the welder: the cell is `cell_of(position)`.
    struct candidate {
        ox_3dvector position;
        ox_3dvector normal;
        std::uint64_t cell;
    };

    /// A negative or NaN tolerance welds nothing.
    vertex_welder(float position_tolerance, float normal_tolerance, const welded_leaves& leaves);

    /// Tells that about `nb_vertices` vertices will follow, a few of them at each place, so that
    /// memory grows at once. O(number of welded vertices).
    void expect(std::size_t nb_vertices);

    /// Welds `count` vertices in order and writes the indices of the welded vertices that they
    /// join, or that are made from them. A vertex that is NaN, infinite or beyond any octree makes
    /// one that no other joins. O(1) each on average over positions that are not crowded by
    /// different normals.
    void weld(const candidate* vertices, std::size_t count, unsigned int* indices);

    /// The cell that a position is looked for in, until the next call of `weld`.
    std::uint64_t cell_of(const ox_3dvector& p) const { return grid.key_of(p); }

    /// The welded positions, in order of creation.
    const ox_list<ox_3dvector>& get_positions() const { return positions; }

    /// Lists the normal of the vertex that made each welded position from now on. Otherwise they
    /// are not written down while all are equal.
    void keep_normals();

    /// These normals, none unless they are kept.
    const ox_list<ox_3dvector>& get_normals() const { return normals; }

private:
    static constexpr std::uint32_t none = place_table::none;

    /// What a search of all cells within the tolerance finds.
    struct neighbours {
        bool any = false;           ///< within the position tolerance, in the same leaf
        std::uint32_t first = none; ///< of these the first one whose normal agrees
        std::size_t candidate_count = 0;
    };

    using leaf = welded_leaves::leaf;

    std::uint32_t weld_one(const candidate& v);
    std::uint32_t find_isolated(const candidate& v, const leaf& reached) const;
    neighbours find_neighbours(const candidate& v, const leaf& reached) const;
    bool is_close(const ox_3dvector& position, const ox_3dvector& p) const;

    /// True if the normal of a welded vertex agrees with n.
    bool agrees(std::uint32_t welded, const ox_3dvector& n) const {
        const ox_3dvector& normal =
            has_one_normal ? first_normal : normals.at(static_cast<int>(welded));
        return std::fabs(n.x - normal.x) + std::fabs(n.y - normal.y) + std::fabs(n.z - normal.z) <=
               normal_tolerance;
    }

    /// True if v lies at the place of a welded vertex, in its leaf, and the normals agree.
    bool is_repeated(std::uint32_t welded, const ox_3dvector& position, const candidate& v,
                     const leaf& reached) const {
        return position == v.position && agrees(welded, v.normal) &&
               leaves.shares(reached, v.position, welded, position);
    }

    std::uint32_t add_unweldable(const candidate& v);
    std::uint32_t add(const candidate& v, const leaf& reached, bool is_isolated);
    void append(const candidate& v);
    void make_room(std::size_t at_least);
    void rebuild(std::size_t room);
    void narrow_crowded_cells();

    float position_tolerance;
    float normal_tolerance;
    bool welds_nothing;
    search_grid grid;
    welded_leaves leaves;
    place_table places; ///< the isolated ones are marked
    ox_list<ox_3dvector> positions;
    ox_list<ox_3dvector> normals;
    bool keeps_normals = false; ///< set as soon as they are not all equal
    bool has_one_normal = true;
    ox_3dvector first_normal;
    std::size_t search_count = 0;    ///< since the last look at how crowded the cells are
    std::size_t candidate_count = 0; ///< that these searches looked at
};

} // namespace ox::internal

#endif
