// What users build besides the shapes that the other rows measure: openings of other outlines,
// openings that overlap or abut, walls that stand askew, rows of other blocks. Each variant runs
// beside its twin, rectangular openings or cubes, and may take three times as long, edge for edge.

#include <array>
#include <cmath>
#include <string>

#include <bench/support/shape_facts.h>
#include <tests/solid/csg/shapes.h>

#include "wall.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;

/// Along the wall and upwards, counter-clockwise seen from the front.
using outline = std::vector<std::array<double, 2>>;
using outline_maker = outline (*)(long opening);

constexpr double most_beside_twin = 3.0; ///< edge for edge
constexpr double half_turn = csg_test::full_turn / 2.0;

double middle_of(long opening) {
    return static_cast<double>(opening_pitch) * (static_cast<double>(opening) + 0.5);
}

// Openings

outline rectangle_between(double left, double low, double right, double high) {
    return {{left, low}, {right, low}, {right, high}, {left, high}};
}

outline window(long i) {
    return rectangle_between(middle_of(i) - 0.5, 1.0, middle_of(i) + 0.5, 2.0);
}

outline door(long i) {
    return rectangle_between(middle_of(i) - 0.5, 0.0, middle_of(i) + 0.5, 2.0);
}

outline gap_of_parapet(long i) {
    return rectangle_between(middle_of(i) - 0.4, 2.5, middle_of(i) + 0.4, 3.0);
}

outline circle(long i) {
    constexpr int sides = 24;
    outline made;
    for (int side = 0; side < sides; ++side) {
        const double angle = csg_test::full_turn * side / sides;
        made.push_back({middle_of(i) + 0.5 * std::cos(angle), 1.5 + 0.5 * std::sin(angle)});
    }
    return made;
}

outline arch(long i) {
    constexpr int sides = 12;
    outline made = {{middle_of(i) - 0.5, 1.0}, {middle_of(i) + 0.5, 1.0}};
    for (int side = 0; side <= sides; ++side) {
        const double angle = half_turn * side / sides;
        made.push_back({middle_of(i) + 0.5 * std::cos(angle), 1.5 + 0.5 * std::sin(angle)});
    }
    return made;
}

outline u_shape(long i) {
    const double x = middle_of(i);
    return {{x - 0.5, 1.0},  {x + 0.5, 1.0},  {x + 0.5, 2.0},  {x + 0.25, 2.0},
            {x + 0.25, 1.4}, {x - 0.25, 1.4}, {x - 0.25, 2.0}, {x - 0.5, 2.0}};
}

outline irregular(long i) {
    constexpr int corners = 7;
    support::generator random(static_cast<std::uint64_t>(i) + 1);
    outline made;
    for (int corner = 0; corner < corners; ++corner) {
        const double angle = csg_test::full_turn * (corner + random.real(0.0, 0.6)) / corners;
        const double radius = random.real(0.3, 0.55);
        made.push_back({middle_of(i) + radius * std::cos(angle), 1.5 + radius * std::sin(angle)});
    }
    return made;
}

outline wide_window(long i) {
    return rectangle_between(middle_of(i) - 0.5, 1.0, middle_of(i) + 1.5, 2.0);
}

outline abutting_window(long i) {
    return rectangle_between(middle_of(i) - 0.75, 1.0, middle_of(i) + 0.75, 2.0);
}

// Blocks in a row, as outlines of their fronts

outline cube(long i) {
    const double x = 0.75 * static_cast<double>(i);
    return rectangle_between(x, 0.0, x + 1.0, 1.0);
}

outline jittered_block(long i) {
    support::generator random(static_cast<std::uint64_t>(i) + 1);
    const double x = 0.75 * static_cast<double>(i);
    const double low = random.real(0.0, 0.2);
    return rectangle_between(x, low, x + 1.0, 1.0 + random.real(0.0, 0.2));
}

outline hexagon(long i) {
    outline made;
    for (int side = 0; side < 6; ++side) {
        const double angle = csg_test::full_turn * side / 6;
        made.push_back(
            {0.85 * static_cast<double>(i) + 0.5 * std::cos(angle), 0.5 * std::sin(angle)});
    }
    return made;
}

outline stair(long i) {
    const double x = 0.3 * static_cast<double>(i);
    const double z = 0.17 * static_cast<double>(i);
    return rectangle_between(x, z, x + 0.35, z + 0.2);
}

outline gable(long i) {
    return {{middle_of(i) - 0.5, 2.9}, {middle_of(i) + 0.5, 2.9}, {middle_of(i), 3.6}};
}

// Solids

ox_solid prism(const support::frame& axes, const outline& front, double first_y, double last_y) {
    ox::ox_list<ox_3dvector> corners;
    for (auto corner = front.rbegin(); corner != front.rend(); ++corner) {
        corners.push_right(
            csg_test::point_in(axes, ox_3dvector(), (*corner)[0], first_y, (*corner)[1]));
    }
    ox::ox_polygon polygon;
    polygon.add_contour(corners);
    ox_solid made;
    made.extrusion(polygon, axes.y * static_cast<float>(last_y - first_y));
    return made;
}

struct built {
    ox_solid body;
    std::vector<ox_solid> parts;
};

/// A wall, and tools that stick out of it on both sides.
built wall_and_tools(const support::frame& axes, long count, outline_maker opening) {
    built made;
    const double length = static_cast<double>(opening_pitch) * static_cast<double>(count + 1);
    made.body = csg_test::brick_in(
        axes, ox_3dvector(), ox_3dvector(static_cast<float>(length), wall_thickness, wall_height));
    for (long i = 0; i < count; ++i) {
        made.parts.push_back(prism(axes, opening(i), -0.05, 0.35));
    }
    return made;
}

built row_of_blocks(long count, outline_maker block) {
    built made;
    for (long i = 0; i < count; ++i) {
        made.parts.push_back(prism(support::frame(), block(i), 0.0, 1.0));
    }
    return made;
}

/// Walls of four windows on top of each other.
built storeys(long count) {
    built made;
    for (long i = 0; i < count; ++i) {
        built storey = wall_and_tools(support::frame(), 4, window);
        for (ox_solid& tool : storey.parts) {
            storey.body.substracts(tool);
        }
        ox::ox_list<ox_3dvector> vertices = storey.body.get_vertices();
        for (ox_3dvector& vertex : vertices) {
            vertex.z += wall_height * static_cast<float>(i);
        }
        storey.body.set_vertices(vertices);
        made.parts.push_back(storey.body);
    }
    return made;
}

void cut_each(built& b) {
    for (ox_solid& part : b.parts) {
        b.body.substracts(part);
    }
}

void cut_united(built& b) {
    ox_solid united;
    for (ox_solid& part : b.parts) {
        united.unites(part);
    }
    b.body.substracts(united);
}

void unite_each(built& b) {
    for (ox_solid& part : b.parts) {
        b.body.unites(part);
    }
}

// Contests

using work = void (*)(built&);

contestant building(const std::string& name, const built& input, work build) {
    const auto shared = std::make_shared<const built>(input);
    return make_contestant(
        name, [shared] { return *shared; }, build, [](built&) { return std::vector<fact>(); });
}

contest beside_twin(const built& input, const built& twin, work build, double edge_ratio) {
    contest rules;
    rules.ours = building("ox_solid", input, build);
    rules.peers = {building("ox_solid, the twin", twin, build)};
    rules.goal = most_beside_twin * edge_ratio;
    return rules;
}

workload variant(const std::string& name, const char* unit, std::function<contest(long)> make,
                 double growth) {
    return workload{name, unit, {25, 50, 100}, {10, 20, 40}, make}
        .growing_at_most(growth)
        .judged_from(100);
}

workload openings_one_by_one(const char* kind, outline_maker opening) {
    const double edges = static_cast<double>(opening(0).size()) / 4.0;
    return variant(
        std::string("wall, openings one after another: ") + kind, "openings",
        [opening, edges](long count) {
            const support::frame axes;
            return beside_twin(wall_and_tools(axes, count, opening),
                               wall_and_tools(axes, count, window), cut_each, edges);
        },
        2.1);
}

workload openings_at_once(const char* kind, const support::frame& axes, outline_maker opening) {
    return variant(
        std::string("wall, openings united first: ") + kind, "openings",
        [axes, opening](long count) {
            return beside_twin(wall_and_tools(axes, count, opening),
                               wall_and_tools(support::frame(), count, window), cut_united, 1.0);
        },
        1.2);
}

workload blocks_united(const char* kind, outline_maker block) {
    const double edges = static_cast<double>(block(0).size()) / 4.0;
    return variant(
        std::string("row united: ") + kind, "blocks",
        [block, edges](long count) {
            return beside_twin(row_of_blocks(count, block), row_of_blocks(count, cube), unite_each,
                               edges);
        },
        2.1);
}

workload gables_on_a_wall() {
    return variant(
        "wall, gables united one after another", "gables",
        [](long count) {
            return beside_twin(wall_and_tools(support::frame(), count, gable),
                               row_of_blocks(count, cube), unite_each, 0.75);
        },
        2.1);
}

workload storeys_united() {
    return variant(
        "storeys of four windows united", "storeys",
        [](long count) {
            contest rules;
            rules.ours = building("ox_solid", storeys(count), unite_each);
            return rules;
        },
        2.1);
}

support::frame askew() {
    support::generator random(91);
    return support::random_frame(random);
}

} // namespace

std::vector<workload> solid_variants() {
    return {
        openings_one_by_one("round", circle),
        openings_one_by_one("arches", arch),
        openings_one_by_one("U-shaped", u_shape),
        openings_one_by_one("doors", door),
        openings_one_by_one("irregular", irregular),
        openings_one_by_one("stepped parapet", gap_of_parapet),
        gables_on_a_wall(),
        openings_at_once("askew", askew(), window),
        openings_at_once("overlapping", support::frame(), wide_window),
        openings_at_once("abutting", support::frame(), abutting_window),
        blocks_united("jittered blocks", jittered_block),
        blocks_united("hexagons", hexagon),
        blocks_united("stairs", stair),
        storeys_united(),
    };
}

} // namespace bench
