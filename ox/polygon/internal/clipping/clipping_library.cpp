#include <ox/polygon/internal/clipping/clipping_library.h>

#include <algorithm>
#include <cmath>
#include <new>

#include <ox/polygon/internal/tolerances.h>

namespace ox::internal {

/// Everything here relies on the library's wide, planar points.
static_assert(sizeof(ClipperLib::cInt) == 8, "compiled without use_int32");
static_assert(sizeof(ClipperLib::IntPoint) == 16, "compiled without use_xyz");

namespace {

/// The clipping library, which loses what it has made when an allocation fails while it writes its
/// answer.
class clipper : public ClipperLib::Clipper {
public:
    clipper() = default;
    clipper(const clipper&) = delete;
    clipper& operator=(const clipper&) = delete;
    ~clipper() override { DisposeAllOutRecs(); }
};

/// True if an edge was left to sweep.
bool add_paths(clipper& sweep, const grid_contours& contours, ClipperLib::PolyType group) {
    bool any_edge = false;
    ClipperLib::Path path;
    for (std::size_t i = 0; i < contours.count(); ++i) {
        path.assign(contours.begin(i), contours.end(i));
        any_edge |= sweep.AddPath(path, group, true);
    }
    return any_edge;
}

/// False when the library gave up. It catches what is thrown inside, a failed allocation too, and
/// keeps what it was to itself.
bool try_to_clip(ClipperLib::ClipType operation, const grid_contours& subjects,
                 const grid_contours& clips, ClipperLib::PolyTree& tree) {
    clipper sweep;
    const bool any_subject = add_paths(sweep, subjects, ClipperLib::ptSubject);
    const bool any_clip = add_paths(sweep, clips, ClipperLib::ptClip);
    return (!any_subject && !any_clip) ||
           sweep.Execute(operation, tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
}

// Offset: what the library could not finish in bounded time and memory is sorted out before.

double largest_coordinate(const grid_contours& contours) {
    double largest = 0.0;
    for (const ClipperLib::IntPoint& p : contours.all()) {
        largest = std::max(
            {largest, std::fabs(static_cast<double>(p.X)), std::fabs(static_cast<double>(p.Y))});
    }
    return largest;
}

/// Not below the farthest coordinate that any join can reach.
bool stays_in_grid(const grid_contours& contours, double delta) {
    const double reach =
        largest_coordinate(contours) + offset_miter_limit * std::fabs(delta) + offset_bounds_margin;
    return reach < static_cast<double>(grid_end);
}

/// True if the clipping library takes the contours as they run. It turns them round where the one
/// with the highest vertex, the left one of two, runs clockwise.
bool keeps_directions(const grid_contours& contours) {
    std::size_t outermost = 0;
    ClipperLib::IntPoint highest = contours.all().front();
    for (std::size_t i = 0; i < contours.count(); ++i) {
        for (const ClipperLib::IntPoint* p = contours.begin(i); p != contours.end(i); ++p) {
            if (p->Y > highest.Y || (p->Y == highest.Y && p->X < highest.X)) {
                highest = *p;
                outermost = i;
            }
        }
    }
    return contours.is_counter_clockwise(outermost);
}

struct turning {
    double left = 0.0; ///< radians
    double right = 0.0;
};

/// Back where it came from, a contour turns either way.
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

/// An arc of radius r whose chords keep within the tolerance t turns by acos(1 - t / r) at each
/// half chord; small arcs are drawn more coarsely.
double arc_vertices_per_radian(double delta) {
    const double radius = std::fabs(delta);
    const double tolerance = std::min(offset_arc_tolerance, offset_arc_tolerance * radius);
    const double half_chord = std::acos(1.0 - tolerance / radius);
    return std::min(0.5 / half_chord, 0.5 * radius);
}

/// Only where the moved sides come apart are they joined by an arc: at left turns of a region that
/// grows, at right turns of one that shrinks.
double count_arc_vertices(const grid_contours& contours, double delta) {
    if (delta == 0.0 || contours.all().empty()) {
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

} // namespace

/// What the library gives up once, it does when asked again, unless memory is short: of hundreds of
/// thousands of arrangements as degenerate as can be, none was beyond it.
void clip_contours(ClipperLib::ClipType operation, const grid_contours& subjects,
                   const grid_contours& clips, ClipperLib::PolyTree& tree) {
    try {
        if (try_to_clip(operation, subjects, clips, tree)) {
            return;
        }
        tree.Clear();
        if (!try_to_clip(operation, subjects, clips, tree)) {
            throw std::bad_alloc();
        }
    } catch (const ClipperLib::clipperException&) {
        tree.Clear();
    }
}

/// The library does not say when an allocation failed while it united what it had moved: its answer
/// is empty then. So one that is empty is only believed the second time.
bool offset_contours(const grid_contours& contours, ClipperLib::JoinType join, double delta,
                     ClipperLib::PolyTree& tree) {
    if (!is_within_reach(contours, delta, join)) {
        return false;
    }
    try {
        run_offset(contours, join, delta, tree);
        if (tree.ChildCount() == 0) {
            run_offset(contours, join, delta, tree);
        }
    } catch (const ClipperLib::clipperException&) {
        tree.Clear();
    }
    return true;
}

} // namespace ox::internal
