#ifndef OX_POLYGON_INTERNAL_CLIPPING_RECTILINEAR_PATTERN_H
#define OX_POLYGON_INTERNAL_CLIPPING_RECTILINEAR_PATTERN_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <clipper.hpp>

#include <ox/polygon/internal/clipping/contour_lists.h>
#include <ox/polygon/internal/clipping/integer_grid.h>

// What the clipping library answers for a few contours along the axes of the frame, known from an
// earlier answer.

namespace ox::internal {

/// What `rectilinear_arrangement` looks at.
constexpr std::size_t most_rectilinear_vertices = 16;
constexpr std::size_t most_rectilinear_contours = 4;

using rectilinear_key =
    std::array<std::uint8_t, 3 + most_rectilinear_contours + most_rectilinear_vertices>;

/// Tells how rectilinear contours of few vertices lie: for every vertex the ranks of its x and of
/// its y among those of all. All sides of such contours are level or upright, so the clipping
/// library compares coordinates with each other and never computes a new one: contours that lie
/// alike have answers that are alike, with each coordinate in the place of its rank. Only areas are
/// numbers of their own; they are asked for their signs, which no proportions change.
class rectilinear_arrangement {
public:
    /// Reads the contours of an operation. O(n log n) for n vertices; O(1) for too many.
    rectilinear_arrangement(ClipperLib::ClipType operation, const grid_contours& subjects,
                            const grid_contours& clips);

    /// False where some side is slanted, for too many vertices or contours, and for coordinates so
    /// far away or so close together that the library's roundings of an area could decide about its
    /// sign.
    bool is_known_by_ranks() const { return valid; }

    /// The operation, the number and sizes of the contours, and the ranks.
    const rectilinear_key& key() const { return ranks; }

    int x_rank(const ClipperLib::IntPoint& p) const { return xs.rank(p.X); }
    int y_rank(const ClipperLib::IntPoint& p) const { return ys.rank(p.Y); }
    ClipperLib::IntPoint point(int x_rank, int y_rank) const {
        return ClipperLib::IntPoint(xs.values[static_cast<std::size_t>(x_rank)],
                                    ys.values[static_cast<std::size_t>(y_rank)]);
    }

private:
    /// Different coordinates in ascending order.
    struct ranked_coordinates {
        std::array<ClipperLib::cInt, most_rectilinear_vertices> values;
        std::size_t count = 0;

        void add(ClipperLib::cInt value) { values[count++] = value; }
        void finish();
        int rank(ClipperLib::cInt value) const;
        ClipperLib::cInt smallest_step() const;
        ClipperLib::cInt reach() const;
    };

    void append(std::size_t value) { ranks[length++] = static_cast<std::uint8_t>(value); }
    bool collect(const grid_contours& contours);
    void append_ranks(const grid_contours& contours);
    bool are_areas_certain() const;

    ranked_coordinates xs;
    ranked_coordinates ys;
    rectilinear_key ranks{};
    std::size_t length = 0;
    bool valid = false;
};

/// An answer of the clipping library in ranks.
class rectilinear_pattern {
public:
    /// The answer that the tree holds for the arrangement.
    rectilinear_pattern(const ClipperLib::PolyTree& tree,
                        const rectilinear_arrangement& arrangement);

    /// The answer for an arrangement that is equal to the one it was made for.
    contour_lists apply(const plane_frame& plane, const rectilinear_arrangement& arrangement) const;

private:
    struct contour {
        std::size_t size;
        bool hole;
        int parent;
    };
    struct vertex {
        std::uint8_t x_rank;
        std::uint8_t y_rank;
    };

    std::vector<contour> contours;
    std::vector<vertex> vertices;
};

/// The pattern kept for an arrangement by this thread, null when there is none.
const rectilinear_pattern* find_rectilinear_pattern(const rectilinear_arrangement& arrangement);

/// Keeps the answer for an arrangement for this thread, unless too many are kept.
void keep_rectilinear_pattern(const rectilinear_arrangement& arrangement,
                              const ClipperLib::PolyTree& tree);

} // namespace ox::internal

#endif
