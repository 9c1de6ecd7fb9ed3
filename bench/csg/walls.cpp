// A wall with room for n openings: 1.5 n long, 0.3 thick, 3 high. Tools stick out on both sides.

#include <bench/peers/cgal.h>
#include <bench/peers/occt.h>
#include <tests/solid/csg/shapes.h>

#include "parts.h"
#include "workloads.h"

namespace bench {
namespace {

using csg_test::brick_in;
using ox::ox_3dvector;
using ox::ox_solid;
using support::frame;

constexpr float pitch = 1.5f;
constexpr float start = 0.25f; ///< of an opening in its pitch

/// Beyond, a peer that cuts one opening after another takes minutes.
constexpr long most_for_single_cuts = 100;

/// Beyond, the peer crashes where openings overlap and the wall stands askew.
constexpr long most_for_overlapping_cuts = 10;

frame askew() {
    support::generator random(91);
    return support::random_frame(random);
}

ox_solid make_wall(const frame& axes, long openings) {
    return brick_in(axes, ox_3dvector(0.0f, 0.0f, 0.0f),
                    ox_3dvector(pitch * static_cast<float>(openings), 0.3f, 3.0f));
}

/// Rectangular openings of a width from a sill to a lintel.
std::vector<ox_solid> rectangles(const frame& axes, long count, float width, float sill) {
    std::vector<ox_solid> tools;
    for (long i = 0; i < count; ++i) {
        const float x = pitch * static_cast<float>(i) + start;
        tools.push_back(
            brick_in(axes, ox_3dvector(x, -0.05f, sill), ox_3dvector(x + width, 0.35f, 2.0f)));
    }
    return tools;
}

std::vector<ox_solid> circles(const frame& axes, long count) {
    const frame across = {axes.x, -axes.z, axes.y};
    std::vector<ox_solid> tools;
    for (long i = 0; i < count; ++i) {
        tools.push_back(csg_test::column(
            across,
            csg_test::point_in(axes, ox_3dvector(),
                               static_cast<double>(pitch) * (static_cast<double>(i) + 0.5), 0.15,
                               1.5),
            16, 0.5, 0.4));
    }
    return tools;
}

/// Doors with a round arch of twelve sides.
std::vector<ox_solid> arches(const frame& axes, long count) {
    std::vector<ox_solid> tools;
    for (long i = 0; i < count; ++i) {
        const double middle = static_cast<double>(pitch) * (static_cast<double>(i) + 0.5);
        ox::ox_list<ox_3dvector> outline;
        const auto add = [&](double x, double z) {
            outline.push_right(csg_test::point_in(axes, ox_3dvector(), middle + x, -0.05, z));
        };
        // With the clock seen from the front, so that its normal is that of the way through.
        for (int side = 12; side >= 0; --side) {
            const double angle = csg_test::full_turn / 2.0 * side / 12;
            add(0.5 * std::cos(angle), 1.5 + 0.5 * std::sin(angle));
        }
        add(0.5, 1.0);
        add(-0.5, 1.0);
        ox::ox_polygon polygon;
        polygon.add_contour(outline);
        ox_solid tool;
        tool.extrusion(polygon, axes.y * 0.4f);
        tools.push_back(tool);
    }
    return tools;
}

enum class opening_kind { windows, overlapping, abutting, doors, arched, round };

std::vector<ox_solid> make_tools(const frame& axes, long count, opening_kind kind) {
    switch (kind) {
    case opening_kind::overlapping:
        return rectangles(axes, count, 2.0f, 1.0f);
    case opening_kind::abutting:
        return rectangles(axes, count, pitch, 1.0f);
    case opening_kind::doors:
        return rectangles(axes, count, 1.0f, 0.0f);
    case opening_kind::arched:
        return arches(axes, count);
    case opening_kind::round:
        return circles(axes, count);
    default:
        return rectangles(axes, count, 1.0f, 1.0f);
    }
}

parts make_parts(const frame& axes, long count, opening_kind kind) {
    return {make_wall(axes, count + 1), {}, make_tools(axes, count, kind)};
}

/// Openings that overlap or abut are no mesh together: peers cut them one after another.
bool are_disjoint(opening_kind kind) {
    return kind != opening_kind::overlapping && kind != opening_kind::abutting;
}

contest cut_in_one_pass(long count, const frame& axes, opening_kind kind) {
    const parts wall = make_parts(axes, count, kind);
    contest rules;
    rules.ours = in_one_pass(wall);
    if (are_disjoint(kind)) {
        rules.peers.push_back(
            peers::cgal_joined_difference(mesh_of(wall.body), meshes_of(wall.removed)));
    } else if (count <= (kind == opening_kind::overlapping ? most_for_overlapping_cuts
                                                           : most_for_single_cuts)) {
        rules.peers.push_back(peers::cgal_differences(mesh_of(wall.body), meshes_of(wall.removed)));
    }
    rules.goal = 0.5;
    rules.stretch = 0.25;
    return rules;
}

contest cut_like_face_by_face(long count) {
    const parts wall = make_parts(frame(), count, opening_kind::windows);
    contest rules;
    rules.ours = in_one_pass(wall);
    rules.peers = {face_by_face(wall)};
    rules.goal = 3.0;
    return rules;
}

contest cut_one_after_another(long count) {
    const parts wall = make_parts(frame(), count, opening_kind::windows);
    contest rules;
    rules.ours = one_after_another(wall);
    if (count <= most_for_single_cuts) {
        rules.peers = {
            peers::cgal_differences(mesh_of(wall.body), meshes_of(wall.removed)),
            peers::occt_differences(
                peers::box_mesh(
                    0, 0, 0, static_cast<double>(pitch) * static_cast<double>(count + 1), 0.3, 3),
                [count] {
                    std::vector<peers::triangle_mesh> boxes;
                    for (long i = 0; i < count; ++i) {
                        boxes.push_back(
                            peers::box_mesh(static_cast<double>(pitch) * static_cast<double>(i) +
                                                static_cast<double>(start),
                                            -0.05, 1, 1, 0.4, 1));
                    }
                    return boxes;
                }())};
        rules.goal = 0.5;
        rules.stretch = 0.25;
    }
    return rules;
}

workload wall_workload(const char* name, const frame& axes, opening_kind kind) {
    return workload{name,
                    "openings",
                    {10, 100, 400, 1000},
                    {10, 100},
                    [axes, kind](long count) { return cut_in_one_pass(count, axes, kind); }}
        .growing_at_most(1.1);
}

} // namespace

std::vector<workload> csg_wall_workloads() {
    return {
        wall_workload("wall, one pass", frame(), opening_kind::windows),
        wall_workload("wall askew, one pass", askew(), opening_kind::windows),
        wall_workload("wall with overlapping openings, one pass", frame(),
                      opening_kind::overlapping),
        wall_workload("wall askew with overlapping openings, one pass", askew(),
                      opening_kind::overlapping),
        wall_workload("wall with abutting openings, one pass", frame(), opening_kind::abutting),
        wall_workload("wall with doors, one pass", frame(), opening_kind::doors),
        wall_workload("wall with arched openings, one pass", frame(), opening_kind::arched),
        wall_workload("wall with round openings, one pass", frame(), opening_kind::round),
        wall_workload("wall askew with round openings, one pass", askew(), opening_kind::round),
        workload{"wall, one pass beside the face-by-face booleans",
                 "openings",
                 {10, 100, 400, 1000},
                 {10, 100},
                 cut_like_face_by_face},
        workload{"wall, one opening after another",
                 "openings",
                 {10, 100, 400},
                 {10, 50},
                 cut_one_after_another}
            .growing_at_most(2.0),
    };
}

} // namespace bench
