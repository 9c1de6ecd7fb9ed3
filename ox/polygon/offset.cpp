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

double largest_coordinate(const ClipperLib::Paths& paths) {
    double largest = 0.0;
    for (const ClipperLib::Path& path : paths) {
        for (const ClipperLib::IntPoint& p : path) {
            largest = std::max({largest, std::fabs(static_cast<double>(p.X)),
                                std::fabs(static_cast<double>(p.Y))});
        }
    }
    return largest;
}

// Not below the farthest coordinate that any join can reach.
bool stays_in_grid(const ClipperLib::Paths& paths, double delta) {
    const double reach =
        largest_coordinate(paths) + offset_miter_limit * std::fabs(delta) + offset_bounds_margin;
    return reach < static_cast<double>(grid_end);
}

// Radians by which a path turns at its vertices, left and right turns added.
double total_turning(const ClipperLib::Path& path) {
    double turning = 0.0;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const ClipperLib::DoublePoint a(path[i]);
        const ClipperLib::DoublePoint b(path[(i + 1) % path.size()]);
        const ClipperLib::DoublePoint c(path[(i + 2) % path.size()]);
        const double cross = (b.X - a.X) * (c.Y - b.Y) - (b.Y - a.Y) * (c.X - b.X);
        const double dot = (b.X - a.X) * (c.X - b.X) + (b.Y - a.Y) * (c.Y - b.Y);
        turning += std::fabs(std::atan2(cross, dot));
    }
    return turning;
}

// An arc of radius r whose chords keep within the tolerance t turns by acos(1 - t / r), which is
// sqrt(2 t / r), at each half chord.
double count_arc_vertices(const ClipperLib::Paths& paths, double delta) {
    const double vertices_per_radian =
        0.5 * std::sqrt(std::fabs(delta) / (2.0 * offset_arc_tolerance));
    double count = 0.0;
    for (const ClipperLib::Path& path : paths) {
        count += total_turning(path) * vertices_per_radian;
    }
    return count;
}

bool is_within_reach(const ClipperLib::Paths& paths, float distance, double delta,
                     ClipperLib::JoinType join) {
    if (!std::isfinite(delta) || !stays_in_grid(paths, delta)) {
        return false;
    }
    return join != ClipperLib::jtRound || (std::fabs(distance) <= largest_round_offset &&
                                           count_arc_vertices(paths, delta) <= most_arc_vertices);
}

void offset_paths(const ClipperLib::Paths& paths, ClipperLib::JoinType join, double delta,
                  ClipperLib::PolyTree& tree) {
    try {
        ClipperLib::ClipperOffset offsetter(offset_miter_limit, offset_arc_tolerance);
        for (const ClipperLib::Path& path : paths) {
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
    ClipperLib::Paths paths;
    contours_to_grid(*data, data->contour_vertices, data->contour_sizes, paths);
    ClipperLib::PolyTree tree;
    if (is_within_reach(paths, distance, delta, corner)) {
        offset_paths(paths, corner, delta, tree);
    } else if (!(distance < 0.0f)) {
        return;
    }
    rebuild_contours(*data, tree);
}

} // namespace ox
