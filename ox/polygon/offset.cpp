// Offset of the outline, on the integer grid of the polygon. What the clipping library could not
// finish in bounded time and memory is sorted out before it is asked.

#include <algorithm>
#include <cmath>

#include <ox/polygon/internal/integer_grid.h>
#include <ox/polygon/internal/ox_polygon_data.h>
#include <ox/polygon/internal/tolerances.h>
#include <ox/polygon/ox_polygon.h>

namespace ox {
namespace {

ClipperLib::JoinType to_join(int join_type) {
    switch (join_type) {
    case ox_polygon::join_round:
        return ClipperLib::jtRound;
    case ox_polygon::join_miter:
        return ClipperLib::jtMiter;
    default:
        return ClipperLib::jtSquare;
    }
}

double largest_coordinate(const grid_contours& contours) {
    double largest = 0.0;
    for (const ClipperLib::IntPoint& p : contours.all()) {
        largest = std::max(
            {largest, std::fabs(static_cast<double>(p.X)), std::fabs(static_cast<double>(p.Y))});
    }
    return largest;
}

// Not below the farthest coordinate that any join can reach.
bool stays_in_grid(const grid_contours& contours, double delta) {
    const double reach =
        largest_coordinate(contours) + offset_miter_limit * std::fabs(delta) + offset_bounds_margin;
    return reach < static_cast<double>(grid_end);
}

// Radians by which a contour turns at its vertices, left and right turns added.
double total_turning(const ClipperLib::IntPoint* contour, std::size_t size) {
    double turning = 0.0;
    for (std::size_t i = 0; i < size; ++i) {
        const ClipperLib::DoublePoint a(contour[i]);
        const ClipperLib::DoublePoint b(contour[(i + 1) % size]);
        const ClipperLib::DoublePoint c(contour[(i + 2) % size]);
        const double cross = (b.X - a.X) * (c.Y - b.Y) - (b.Y - a.Y) * (c.X - b.X);
        const double dot = (b.X - a.X) * (c.X - b.X) + (b.Y - a.Y) * (c.Y - b.Y);
        turning += std::fabs(std::atan2(cross, dot));
    }
    return turning;
}

// An arc of radius r whose chords keep within the tolerance t turns by acos(1 - t / r), which is
// sqrt(2 t / r), at each half chord.
double count_arc_vertices(const grid_contours& contours, double delta) {
    const double vertices_per_radian =
        0.5 * std::sqrt(std::fabs(delta) / (2.0 * offset_arc_tolerance));
    double count = 0.0;
    for (std::size_t i = 0; i < contours.count(); ++i) {
        count += total_turning(contours.begin(i), contours.size(i)) * vertices_per_radian;
    }
    return count;
}

bool is_within_reach(const grid_contours& contours, float distance, double delta,
                     ClipperLib::JoinType join) {
    if (!std::isfinite(delta) || !stays_in_grid(contours, delta)) {
        return false;
    }
    return join != ClipperLib::jtRound ||
           (std::fabs(distance) <= largest_round_offset &&
            count_arc_vertices(contours, delta) <= most_arc_vertices);
}

void offset_contours(const grid_contours& contours, ClipperLib::JoinType join, double delta,
                     ClipperLib::PolyTree& tree) {
    try {
        ClipperLib::ClipperOffset offsetter(offset_miter_limit, offset_arc_tolerance);
        ClipperLib::Path path;
        for (std::size_t i = 0; i < contours.count(); ++i) {
            path.assign(contours.begin(i), contours.begin(i) + contours.size(i));
            offsetter.AddPath(path, join, ClipperLib::etClosedPolygon);
        }
        offsetter.Execute(tree, delta);
    } catch (const ClipperLib::clipperException&) {
        tree.Clear();
    }
}

} // namespace

void ox_polygon::offset(float distance, int join_type) {
    data->compute_contours();
    if (data->contour_sizes.size() == 0) {
        return;
    }
    const ClipperLib::JoinType corner = to_join(join_type);
    const double delta = static_cast<double>(distance) / static_cast<double>(grid_unit);
    grid_contours contours;
    contours.append(*data, data->contour_vertices, data->contour_sizes);
    ClipperLib::PolyTree tree;
    if (is_within_reach(contours, distance, delta, corner)) {
        offset_contours(contours, corner, delta, tree);
    } else if (!(distance < 0.0f)) {
        return;
    }
    rebuild_contours(*data, tree);
}

} // namespace ox
