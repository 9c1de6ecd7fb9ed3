#ifndef OX_MESH_INTERNAL_WELDING_SEARCH_GRID_H
#define OX_MESH_INTERNAL_WELDING_SEARCH_GRID_H

#include <cstdint>
#include <cstring>

#include <ox/geometry/ox_3dvector.h>
#include <ox/internal/hashing.h>

namespace ox::internal {

/// A grid of cells a few position tolerances wide that proposes which vertices may be close to
/// another. Cells have no list of their own; they are known by a 64-bit key, which two cells may
/// share.
///
/// Two positions within the tolerance of each other on every axis lie in the same cell or in two of
/// those that `keys_near` names for either of them; positions that are equal have the same key.
class search_grid {
public:
    /// The most cells that `keys_near` names.
    static constexpr int max_near = 27;

    /// The tolerance is in model units, not negative, and may be infinite.
    explicit search_grid(float tolerance);

    /// Halves the cells, which changes all keys. False, and nothing happens, when they are as
    /// narrow as they may be.
    bool halve_cells();

    /// The edge of the narrowest cells, in model units.
    double narrowest_cell_edge() const;

    /// The key of the cell that p lies in.
    std::uint64_t key_of(const ox_3dvector& p) const {
        return key_of_cell(coordinate(p.x), coordinate(p.y), coordinate(p.z));
    }

    /// The keys of all cells with positions within the tolerance of p, its own first. Returns
    /// their number; mostly there are one or two.
    int keys_near(const ox_3dvector& p, std::uint64_t (&keys)[max_near]) const;

private:
    /// Added to a double below 2^51, it leaves no bits for fractions: the sum is a whole number.
    static constexpr double rounding_to_whole = 6755399441055744.0; ///< 1.5 * 2^52

    /// The nearest whole number of cells, moved by a constant. It never decreases with the
    /// position, whatever the rounding, and is the same for 0 and -0.
    double coordinate(double position) const {
        return position * cells_per_unit + rounding_to_whole;
    }

    /// A multiplicative hash of three coordinates; its high bits are the best ones.
    static std::uint64_t key_of_cell(double x, double y, double z) {
        const std::uint64_t sum = spread(bits_of(x), bits_of(y), bits_of(z));
        return (sum ^ (sum >> 32)) * 0xD6E8FEB86659FD93u;
    }

    static std::uint64_t bits_of(double value) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return bits;
    }

    int coordinates_near(float position, double (&found)[3]) const;

    void set_cell_edge(double edge);

    double reach;
    double cell_in_reaches;
    double cells_per_unit;
};

} // namespace ox::internal

#endif
