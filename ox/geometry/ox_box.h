#ifndef OX_GEOMETRY_OX_BOX_H
#define OX_GEOMETRY_OX_BOX_H

#include <iosfwd>
#include <type_traits>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

/// An axis-aligned bounding box, for quick rejection tests.
///
/// Represents the closed region from `origin`, the minimum corner, to `origin + size`, in model
/// units. A plain value of six floats. The box is empty while `size.x` is negative; a box that
/// holds a single point has the size (0, 0, 0) and is not empty. The maximum corner is computed
/// in single precision each time, so it can miss the point it was grown to by a rounding.
///
/// Degenerate input:
/// - an empty box: contains nothing, is ignored by `enlarge`; `intersects`, `plane_status` and
///   `get_vertices` do not test for it and read the six floats as they are;
/// - NaN: every comparison with it fails, so `contains` says false, `intersects` says true and
///   `enlarge` leaves the axis as it was (a first point is stored as it is).
///
/// Every operation costs constant time and may be given this box or a part of it.
///
/// \code
///   ox::ox_box box;
///   box.enlarge(ox::ox_3dvector(0.0f, 0.0f, 0.0f));
///   box.enlarge(ox::ox_3dvector(1.0f, 2.0f, 3.0f));
///   const bool inside = box.contains(ox::ox_3dvector(1.0f, 1.0f, 1.0f)); // true
/// \endcode
class ox_box {
public:
    ox_3dvector origin;                                ///< the minimum corner (model units)
    ox_3dvector size = ox_3dvector(-1.0f, 0.0f, 0.0f); ///< the extent along each axis (model units)

    /// The empty box: origin (0, 0, 0), size (-1, 0, 0).
    constexpr ox_box() noexcept = default;

    /// Makes this box empty again.
    constexpr void clear() noexcept { *this = ox_box(); }

    /// True if the box holds no point, that is, if `size.x` is negative.
    constexpr bool is_empty() const noexcept { return size.x < 0.0f; }

    /// Grows the box to include p.
    OX_EXPORT void enlarge(const ox_3dvector& p);

    /// Grows the box to include b; an empty b changes nothing.
    OX_EXPORT void enlarge(const ox_box& b);

    /// True if p lies in the box, faces included.
    OX_EXPORT bool contains(const ox_3dvector& p) const;

    /// True if the interiors overlap; boxes that only touch do not intersect.
    OX_EXPORT bool intersects(const ox_box& b) const;

    /// Side of the plane through `point` on which the box lies: 1 if all corners are on the side
    /// the normal points to or on the plane, -1 if all are strictly on the other side, 0 if the
    /// plane cuts the box. The normal need not be of unit length.
    OX_EXPORT int plane_status(const ox_3dvector& point, const ox_3dvector& normal) const;

    /// The 8 corners. Bit 0 of the index selects the maximum in x, bit 1 in y, bit 2 in z.
    OX_EXPORT ox_list<ox_3dvector> get_vertices() const;
};

static_assert(sizeof(ox_box) == 24, "six packed floats");
static_assert(std::is_standard_layout_v<ox_box>, "can be read as an array of floats");
static_assert(std::is_trivially_copyable_v<ox_box>, "a plain value");

/// True if origin and size are equal, without a tolerance (so a NaN equals nothing). Two empty
/// boxes need not be.
constexpr bool operator==(const ox_box& a, const ox_box& b) noexcept {
    return a.origin == b.origin && a.size == b.size;
}

/// True if origin or size differ, without a tolerance.
constexpr bool operator!=(const ox_box& a, const ox_box& b) noexcept {
    return !(a == b);
}

/// Writes b as "[origin + size]", each vector as "(x, y, z)".
OX_EXPORT std::ostream& operator<<(std::ostream& out, const ox_box& b);

} // namespace ox

#endif
