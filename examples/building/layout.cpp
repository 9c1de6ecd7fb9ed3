#include <examples/building/layout.h>

#include <algorithm>
#include <cmath>

namespace building {

namespace {

/// The rectangle from `start` along the frame, `half_width` to both sides of the axis.
plan_contour rectangle(const wall_frame& frame, const plan_point& start, double length,
                       double half_width) {
    const plan_point end = moved(start, frame.along, length);
    return {moved(start, frame.across, -half_width), moved(end, frame.across, -half_width),
            moved(end, frame.across, half_width), moved(start, frame.across, half_width)};
}

constexpr double half_turn = 3.14159265358979323846;

/// Straight pieces of half an ellipse.
constexpr int pieces_of_half_turn = 16;

/// Points of an ellipse with upright axes, counter-clockwise from its right end through `angle`,
/// without the first one again where that is a whole turn.
plan_contour arc(const plan_point& centre, double half_width, double half_height, double angle) {
    const int pieces = static_cast<int>(std::lround(pieces_of_half_turn * angle / half_turn));
    const int count = angle > half_turn ? pieces : pieces + 1;
    plan_contour points;
    for (int i = 0; i < count; ++i) {
        const double turned = angle * i / pieces;
        points.push_back(
            {centre.x + half_width * std::cos(turned), centre.y + half_height * std::sin(turned)});
    }
    return points;
}

} // namespace

plan_point moved(const plan_point& p, const plan_point& direction, double distance) {
    return {p.x + direction.x * distance, p.y + direction.y * distance};
}

wall_frame frame_of(const wall& w) {
    const double dx = w.to.x - w.from.x;
    const double dy = w.to.y - w.from.y;
    const double length = std::hypot(dx, dy);
    if (length == 0) {
        return {};
    }
    const plan_point along = {dx / length, dy / length};
    return {along, {-along.y, along.x}, length};
}

plan_contour footprint(const wall& w) {
    const wall_frame frame = frame_of(w);
    return rectangle(frame, w.from, frame.length, w.thickness / 2);
}

plan_contour footprint(const opening& o, const wall& w) {
    const wall_frame frame = frame_of(w);
    const plan_point start = moved(w.from, frame.along, o.distance);
    return rectangle(frame, start, o.width, w.thickness / 2 + cutter_reach);
}

plan_contour elevation(const opening& o, double foot) {
    const double half_width = o.width / 2;
    if (o.shape == opening_shape::round) {
        return arc({half_width, o.height / 2}, half_width, o.height / 2, 2 * half_turn);
    }
    plan_contour outline = {{0, foot}, {o.width, foot}};
    if (o.shape == opening_shape::rectangle) {
        outline.insert(outline.end(), {{o.width, o.height}, {0, o.height}});
        return outline;
    }
    const double rise = std::min(half_width, o.height / 2);
    const plan_contour top = arc({half_width, o.height - rise}, half_width, rise, half_turn);
    outline.insert(outline.end(), top.begin(), top.end());
    return outline;
}

height_plane upper_side(const slope& s) {
    const double length = std::hypot(s.to.x - s.from.x, s.to.y - s.from.y);
    const double dx = -s.rise * (s.to.y - s.from.y) / length;
    const double dy = s.rise * (s.to.x - s.from.x) / length;
    return {dx, dy, s.level - s.from.x * dx - s.from.y * dy};
}

height_plane lower_side(const slope& s, double thickness) {
    height_plane plane = upper_side(s);
    plane.z -= thickness * std::hypot(1, s.rise);
    return plane;
}

std::vector<height_plane> ceilings(const description& d, std::size_t storey) {
    std::vector<height_plane> planes;
    for (const roof& r : d.roofs) {
        if (r.storey == storey) {
            for (const slope& s : r.slopes) {
                planes.push_back(lower_side(s, r.thickness));
            }
        }
    }
    return planes;
}

} // namespace building
