#ifndef OX_MESH_INTERNAL_SEARCH_GRID_H
#define OX_MESH_INTERNAL_SEARCH_GRID_H

#include <cstdint>

#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// A grid of cells a few position tolerances wide that proposes which vertices may be close to
/// another. Cells have no list of their own; they are known by a 64-bit key, which two cells may
/// share.
///
/// Two positions within the tolerance of each other on every axis lie in the same cell or in two of
/// those that `keys_near` names for either of them; positions that are equal have the same key.
class oxp_search_grid {
public:
    /// The most cells that `keys_near` names.
    static constexpr int max_near = 27;

    /// The tolerance is in model units, not negative, and may be infinite.
    explicit oxp_search_grid(float tolerance);

    /// The edge of a cell, in model units.
    double cell_edge() const { return 1.0 / cells_per_unit; }

    /// The key of the cell that the finite position p lies in.
    std::uint64_t key_of(const ox_3dvector& p) const;

    /// The keys of all cells with positions within the tolerance of p, its own first. Returns
    /// their number; mostly there are one or two.
    int keys_near(const ox_3dvector& p, std::uint64_t (&keys)[max_near]) const;

private:
    double coordinate(double position) const;
    int coordinates_near(float position, double (&found)[3]) const;

    double reach;
    double cells_per_unit;
};

} // namespace ox

#endif
