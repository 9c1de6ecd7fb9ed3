#ifndef OX_POLYGON_INTERNAL_SEARCH_REGION_ROWS_H
#define OX_POLYGON_INTERNAL_SEARCH_REGION_ROWS_H

#include <cstddef>
#include <vector>

#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_3dvector.h>
#include <ox/internal/sweep_window.h>
#include <ox/polygon/internal/ox_polygon_data.h>

namespace ox::internal {

/// Columns [first, last) of a row of grid points.
struct column_range {
    int first;
    int last;
};

/// The points of a grid in a polygon's frame that the polygon contains, row after row, without
/// testing each.
///
/// Grid point (column u, row w) is `point + u dx + w dy`, rounded to floats, and containment is
/// what `ox_polygon::contains` says of it: which works on that point's own coordinates in the
/// frame, a few roundings away from (u, w). So the points of a row lie within a thin strip, not on
/// a line. A side that spans the strip crosses the lines of all its points within one short span,
/// in which points are uncertain; sides with an end in the strip make one common span. Along a row
/// the points between spans are inside or outside together; only those within a span are tested,
/// each against the sides that reach the strip.
///
/// After O(n log n) for n sides, a row costs the sides that reach it and the points in its spans.
class region_rows {
public:
    /// The polygon must have been merged. `columns` and `rows` must ascend and not be empty; both
    /// must outlive this object.
    region_rows(const ox_polygon_data& region, const std::vector<float>& columns,
                const std::vector<float>& rows);

    /// True if the rows can be found in bounded time. So far away that sums of coordinates could
    /// overflow, each point is tested against every side, and there may be too many of both.
    bool can_be_found() const;

    /// The stretches of columns of the row w that are inside, in order. Rows must be asked for in
    /// ascending order.
    const std::vector<column_range>& find_inside(float w);

    /// Grid point (u, w) in space.
    ox_3dvector at(float u, float w) const {
        return polygon.point + u * polygon.dx + w * polygon.dy;
    }

private:
    struct side {
        ox_2dvector a;
        ox_2dvector b;
    };
    struct row_strip {
        float low;
        float high;
    };
    /// Left of `low` no point has the crossings on its left, right of `high` every point has them.
    struct uncertain_span {
        float low;
        float high;
        bool odd; ///< true if the crossings are odd in number
    };

    void add_sides();
    bool is_within_reach() const;
    void test_each(float w);
    row_strip strip_of(float w) const;
    void find_uncertain_spans(const row_strip& row);
    void join_overlapping_spans();
    void walk(float w);
    int first_column_beyond(float x, int from, float w) const;
    bool contains(float u, float w) const;
    void add_inside(int first, int last);

    const ox_polygon_data& polygon;
    const std::vector<float>& us;
    std::size_t row_count;
    std::vector<side> sides;
    sweep_window window;
    const std::vector<sweep_window::interval>* active = nullptr; ///< sides that reach the row
    double reach = 0.0;     ///< the largest number on the way of a grid point
    double rounding;        ///< model units between a point's own row coordinate and the exact one
    double rounding_by_row; ///< what each unit of the row coordinate adds to that
    double row_slope;       ///< of that coordinate along the columns: 0 for perpendicular axes
    double row_scale;       ///< of that coordinate along the rows: 1 for axes of unit length
    std::vector<uncertain_span> spans;
    std::vector<column_range> inside;
};

} // namespace ox::internal

#endif
