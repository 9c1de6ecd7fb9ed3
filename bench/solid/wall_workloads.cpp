#include <bench/peers/cgal.h>
#include <bench/peers/clipper.h>
#include <bench/peers/occt.h>

#include <bench/support/shape_facts.h>

#include "wall.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;

constexpr double grid_unit = 0.0001;

// The grid rounds every face to 0.0001; the thinnest extent is 0.3.
constexpr double rounding = 1e-3;

// From this many openings on, corefinement takes minutes: the yardstick becomes what the clipping
// library needs for the two big faces alone.
constexpr long first_long_wall = 400;

struct wall_and_tools {
    ox_solid wall;
    std::vector<ox_solid> tools;
};

std::vector<fact> facts_of(wall_and_tools& cut) {
    return {
        {"volume", volume_of(cut.wall), rounding},
        {"area of the big faces", area_across(cut.wall, ox_3dvector(0.0f, 1.0f, 0.0f)), rounding}};
}

std::vector<fact> expected_facts(long openings) {
    const double area = static_cast<double>(opening_pitch * wall_height) - 1.0;
    const double n = static_cast<double>(openings);
    return {{"volume", n * area * static_cast<double>(wall_thickness), rounding},
            {"area of the big faces", 2.0 * n * area, rounding}};
}

ClipperLib::cInt to_grid(double length) {
    return static_cast<ClipperLib::cInt>(length / grid_unit + 0.5);
}

contestant clipper_big_faces(long openings) {
    const ClipperLib::cInt pitch = to_grid(static_cast<double>(opening_pitch));
    const ClipperLib::cInt one = to_grid(1.0);
    ClipperLib::Paths tools;
    for (long i = 0; i < openings; ++i) {
        tools.push_back(peers::rectangle_path(pitch * i + to_grid(static_cast<double>(tool_x)),
                                              to_grid(static_cast<double>(tool_z)), one, one));
    }
    contestant peer = peers::clipper_differences(
        peers::rectangle_path(0, 0, pitch * openings, to_grid(static_cast<double>(wall_height))),
        tools, 2, grid_unit, "area of the big faces");
    peer.name += ", the two big faces only";
    return peer;
}

// The library on one wall: `cut` takes the tools out of it.
contestant cut_by(long openings, void (*cut)(wall_and_tools&)) {
    return make_contestant(
        "ox_solid",
        [=] {
            return wall_and_tools{wall_solid(openings), opening_tools(openings)};
        },
        cut, facts_of);
}

contest cut_one_after_another(long openings) {
    contest rules;
    rules.ours = cut_by(openings, [](wall_and_tools& w) {
        for (ox_solid& tool : w.tools) {
            w.wall.substracts(tool);
        }
    });
    if (openings < first_long_wall) {
        rules.peers = {peers::cgal_differences(wall_mesh(openings), opening_meshes(openings)),
                       peers::occt_differences(wall_mesh(openings), opening_meshes(openings))};
        rules.goal = openings < 100 ? 0.20 : 0.06;
    } else {
        rules.peers = {clipper_big_faces(openings)};
        rules.goal = openings < 1000 ? 2.0 : 3.0;
    }
    rules.expected = expected_facts(openings);
    return rules;
}

contest cut_at_once(long openings) {
    contest rules;
    rules.ours = cut_by(openings, [](wall_and_tools& w) {
        ox_solid united;
        for (ox_solid& tool : w.tools) {
            united.unites(tool);
        }
        w.wall.substracts(united);
    });
    rules.peers = {peers::cgal_joined_difference(wall_mesh(openings), opening_meshes(openings))};
    rules.goal = 0.1;
    rules.expected = expected_facts(openings);
    return rules;
}

// Heights all over the wall, none in the plane of a face.
std::vector<double> section_heights() {
    std::vector<double> heights;
    for (int i = 0; i < 20; ++i) {
        heights.push_back(0.075 + 0.15 * i);
    }
    return heights;
}

struct sections {
    std::shared_ptr<ox_solid> wall;
    std::vector<std::unique_ptr<ox::ox_polygon>> pieces;
};

// Plain queries, which the library answers from caches, are answered once before the clock starts,
// as the slicer's tree is built before.
sections prepare_sections(std::shared_ptr<ox_solid>& wall, long openings) {
    if (wall == nullptr) {
        wall = std::make_shared<ox_solid>(wall_with_openings(openings));
        for (ox::ox_polygon* piece : wall->intersect_by_plane(ox_3dvector(0.0f, 0.0f, 0.5f),
                                                              ox_3dvector(0.0f, 0.0f, 1.0f))) {
            delete piece;
        }
    }
    return sections{wall, {}};
}

void cut_sections(sections& s) {
    for (const double height : section_heights()) {
        for (ox::ox_polygon* piece :
             s.wall->intersect_by_plane(ox_3dvector(0.0f, 0.0f, static_cast<float>(height)),
                                        ox_3dvector(0.0f, 0.0f, 1.0f))) {
            s.pieces.emplace_back(piece);
        }
    }
}

std::vector<fact> section_facts(sections& s) {
    double perimeter = 0.0;
    for (const std::unique_ptr<ox::ox_polygon>& piece : s.pieces) {
        perimeter += static_cast<double>(piece->get_perimeter());
    }
    return {{"pieces", static_cast<double>(s.pieces.size()), 0.0},
            {"perimeter", perimeter, rounding}};
}

contest horizontal_sections(long openings) {
    const auto wall = std::make_shared<std::shared_ptr<ox_solid>>();
    contest rules;
    rules.ours = make_contestant(
        "ox_solid", [=] { return prepare_sections(*wall, openings); }, cut_sections, section_facts);
    rules.peers = {
        peers::cgal_sections(wall_mesh(openings), opening_meshes(openings), section_heights())};
    rules.goal = 0.12;
    return rules;
}

} // namespace

std::vector<workload> wall_workloads() {
    return {
        workload{"wall, openings cut one after another",
                 "openings",
                 {10, 100, 400, 1000},
                 {10, 50, 100},
                 cut_one_after_another}
            .growing_at_most(2.0),
        workload{"wall, openings united, then cut at once",
                 "openings",
                 {10, 100, 400, 1000},
                 {10, 50, 100},
                 cut_at_once}
            .growing_at_most(1.3),
        workload{"wall, 20 horizontal sections",
                 "openings",
                 {100, 400, 1000},
                 {25, 50, 100},
                 horizontal_sections}
            .growing_at_most(1.0),
    };
}

} // namespace bench
