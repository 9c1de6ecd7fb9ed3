#ifndef OX_INTERNAL_POLYGON_ACCESS_H
#define OX_INTERNAL_POLYGON_ACCESS_H

namespace ox {

class ox_polygon;

namespace internal {

/// What the areas that keep polygons of their own may do to them, beyond what callers may.
struct polygon_access {
    /// Takes a polygon out of the count of living polygons, or brings it back in: one that is only
    /// kept to save work later is nothing that a caller made. Copies of it count as usual.
    static void set_counted(ox_polygon& polygon, bool counted) noexcept;

    /// Makes `*changed` true once contours or plane change, or the polygon ends; null for no watch.
    /// The flag must live until then. Merge added contours first, that is a change.
    static void watch(ox_polygon& polygon, bool* changed) noexcept;

    /// Forgets the best centre, as if the polygon had just been made of its contours.
    static void forget_best_center(ox_polygon& polygon) noexcept;
};

} // namespace internal
} // namespace ox

#endif
