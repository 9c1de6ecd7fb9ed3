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

// Whether the clipping library takes the contours as they run: those whose lowest contour runs
// clockwise it turns round first.
bool keeps_directions(const grid_contours& contours) {
    std::size_t lowest_contour = 0;
    ClipperLib::IntPoint lowest = contours.all().front();
    for (std::size_t i = 0; i < contours.count(); ++i) {
        for (const ClipperLib::IntPoint* p = contours.begin(i); p != contours.end(i); ++p) {
            if (p->Y > lowest.Y || (p->Y == lowest.Y && p->X < lowest.X)) {
                lowest = *p;
                lowest_contour = i;
            }
        }
    }
    return contours.is_counter_clockwise(lowest_contour);
}

struct turning {
    double left = 0.0; // radians
    double right = 0.0;
};

// Back where it came from, a contour turns either way.
void add_turning(const ClipperLib::IntPoint* contour, std::size_t size, turning& sum) {
    for (std::size_t i = 0; i < size; ++i) {
        const ClipperLib::DoublePoint a(contour[i]);
        const ClipperLib::DoublePoint b(contour[(i + 1) % size]);
        const ClipperLib::DoublePoint c(contour[(i + 2) % size]);
        const double cross = (b.X - a.X) * (c.Y - b.Y) - (b.Y - a.Y) * (c.X - b.X);
        const double dot = (b.X - a.X) * (c.X - b.X) + (b.Y - a.Y) * (c.Y - b.Y);
        const double angle = std::atan2(cross, dot);
        sum.left += cross == 0.0 ? std::fabs(angle) : std::max(angle, 0.0);
        sum.right += cross == 0.0 ? std::fabs(angle) : std::max(-angle, 0.0);
    }
}

// An arc of radius r whose chords keep within the tolerance t turns by acos(1 - t / r) at each half
// chord; small arcs are drawn more coarsely.
double arc_vertices_per_radian(double delta) {
    const double radius = std::fabs(delta);
    const double tolerance = std::min(offset_arc_tolerance, offset_arc_tolerance * radius);
    const double half_chord = std::acos(1.0 - tolerance / radius);
    return std::min(0.5 / half_chord, 0.5 * radius);
}

// Only where the moved sides come apart are they joined by an arc: at left turns of a region that
// grows, at right turns of one that shrinks.
double count_arc_vertices(const grid_contours& contours, double delta) {
    if (delta == 0.0) {
        return 0.0;
    }
    turning sum;
    for (std::size_t i = 0; i < contours.count(); ++i) {
        add_turning(contours.begin(i), contours.size(i), sum);
    }
    const bool at_left_turns = (delta > 0.0) == keeps_directions(contours);
    return (at_left_turns ? sum.left : sum.right) * arc_vertices_per_radian(delta);
}

bool is_within_reach(const grid_contours& contours, double delta, ClipperLib::JoinType join) {
    return std::isfinite(delta) && stays_in_grid(contours, delta) &&
           (join != ClipperLib::jtRound ||
            count_arc_vertices(contours, delta) <= most_arc_vertices);
}

void run_offset(const grid_contours& contours, ClipperLib::JoinType join, double delta,
                ClipperLib::PolyTree& tree) {
    ClipperLib::ClipperOffset offsetter(offset_miter_limit, offset_arc_tolerance);
    ClipperLib::Path path;
    for (std::size_t i = 0; i < contours.count(); ++i) {
        path.assign(contours.begin(i), contours.end(i));
        offsetter.AddPath(path, join, ClipperLib::etClosedPolygon);
    }
    offsetter.Execute(tree, delta);
}

// The library does not say when an allocation failed while it united what it had moved: its answer
// is empty then. So one that is empty is only believed the second time.
void offset_contours(const grid_contours& contours, ClipperLib::JoinType join, double delta,
                     ClipperLib::PolyTree& tree) {
    try {
        run_offset(contours, join, delta, tree);
        if (tree.ChildCount() == 0) {
            run_offset(contours, join, delta, tree);
        }
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
    if (is_within_reach(contours, delta, corner)) {
        offset_contours(contours, corner, delta, tree);
    } else if (!(distance < 0.0f)) {
        return;
    }
    rebuild_contours(*data, tree);
}

} // namespace ox
