#include <chrono>
#include <memory>
#include <vector>

#include <bench/support/shape_facts.h>

#include "workloads.h"

// A building of storeys alike. A storey is a grid of 4 x 4 rooms of 5 x 5: 20 walls along x and 20
// along y, each 0.3 thick and with three openings. Walls run half a thickness beyond their corners
// and 0.05 into the slabs above and below them, so that everything overlaps and unites. The slabs
// are 0.2 thick. Two planes of a gable roof clip the highest storey.

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_solid;

constexpr int rooms = 4; ///< along x and along y
constexpr float room_side = 5.0f;
constexpr float side = room_side * rooms;
constexpr float thickness = 0.3f;
constexpr float storey_height = 3.2f;
constexpr float slab_height = 0.2f;
constexpr float slab_margin = 0.25f; ///< beyond the axes of the outer walls
constexpr float overlap = 0.05f;
constexpr int openings_of_wall = 3;

using wall_frame = ox_3dvector (*)(float along, float across, float up);

ox_3dvector along_x(float along, float across, float up) {
    return ox_3dvector(along, across, up);
}

ox_3dvector along_y(float along, float across, float up) {
    return ox_3dvector(across, along, up);
}

// The block from `low` to `high`, both in a wall's frame.
ox_solid block(wall_frame frame, const ox_3dvector& low, const ox_3dvector& high) {
    const ox_3dvector origin = frame(low.x, low.y, low.z);
    const ox_3dvector size = frame(high.x, high.y, high.z) - origin;
    ox_solid made;
    made.brick(origin, size.x, size.y, size.z);
    return made;
}

ox_solid make_wall(wall_frame frame, float start, float axis, float floor) {
    const float half = 0.5f * thickness;
    ox_solid wall = block(frame, ox_3dvector(start - half, axis - half, floor - overlap),
                          ox_3dvector(start + room_side + half, axis + half,
                                      floor + storey_height - slab_height + overlap));
    for (int i = 0; i < openings_of_wall; ++i) {
        const float from = start + 0.6f + 1.4f * static_cast<float>(i);
        ox_solid tool = block(frame, ox_3dvector(from, axis - thickness, floor + 0.9f),
                              ox_3dvector(from + 1.0f, axis + thickness, floor + 2.1f));
        wall.substracts(tool);
    }
    return wall;
}

std::vector<ox_solid> make_walls(float floor) {
    std::vector<ox_solid> walls;
    for (int line = 0; line <= rooms; ++line) {
        const float axis = room_side * static_cast<float>(line);
        for (int room = 0; room < rooms; ++room) {
            const float start = room_side * static_cast<float>(room);
            walls.push_back(make_wall(along_x, start, axis, floor));
            walls.push_back(make_wall(along_y, start, axis, floor));
        }
    }
    return walls;
}

ox_solid make_slab(float top) {
    return block(along_x, ox_3dvector(-slab_margin, -slab_margin, top - slab_height),
                 ox_3dvector(side + slab_margin, side + slab_margin, top));
}

class building_trial : public trial {
public:
    explicit building_trial(int nb_storeys) : storeys(nb_storeys) {}

    void run() override {
        time_phase("walls with openings", [this] { cut_walls(); });
        time_phase("walls united to storeys", [this] { unite_walls(); });
        time_phase("storeys and slabs united", [this] { unite_storeys(); });
        time_phase("clipped by the roof", [this] { clip_by_roof(); });
        time_phase("sections of all storeys", [this] { cut_sections(); });
        time_phase("triangles", [this] { building.get_tesselation_triangles(); });
    }

    std::vector<fact> facts() override {
        double area = 0.0;
        for (const std::unique_ptr<ox::ox_polygon>& piece : pieces) {
            area += area_of(*piece);
        }
        return {{"volume", volume_of(building), 1e-3}, {"area of the sections", area, 1e-3}};
    }

    std::vector<phase> phases() override { return timed; }

private:
    template <class work>
    void time_phase(const char* name, const work& do_work) {
        using clock = std::chrono::steady_clock;
        const clock::time_point start = clock::now();
        do_work();
        timed.push_back({name, std::chrono::duration<double>(clock::now() - start).count()});
    }

    static float floor_of(int storey) { return storey_height * static_cast<float>(storey); }

    void cut_walls() {
        for (int i = 0; i < storeys; ++i) {
            walls.push_back(make_walls(floor_of(i)));
        }
    }

    void unite_walls() {
        for (std::vector<ox_solid>& of_storey : walls) {
            ox_solid united;
            for (ox_solid& wall : of_storey) {
                united.unites(wall);
            }
            floors.push_back(united);
        }
    }

    void unite_storeys() {
        for (int i = 0; i < storeys; ++i) {
            ox_solid slab = make_slab(floor_of(i));
            building.unites(slab);
            building.unites(floors[static_cast<std::size_t>(i)]);
        }
    }

    // The ridge runs along y in the middle; the eaves lie 1.6 above the highest floor.
    void clip_by_roof() {
        const float eaves = floor_of(storeys - 1) + 1.6f;
        const float slope = 0.1f;
        for (const float end : {0.0f, side}) {
            ox_3dvector normal(end == 0.0f ? -slope : slope, 0.0f, 1.0f);
            normal.normalize();
            building.clip(ox_3dvector(end, 0.0f, eaves), normal);
        }
    }

    void cut_sections() {
        for (int i = 0; i < storeys; ++i) {
            for (ox::ox_polygon* piece : building.intersect_by_plane(
                     ox_3dvector(0.0f, 0.0f, floor_of(i) + 1.2f), ox_3dvector(0.0f, 0.0f, 1.0f))) {
                pieces.emplace_back(piece);
            }
        }
    }

    const int storeys;
    std::vector<std::vector<ox_solid>> walls;
    std::vector<ox_solid> floors;
    ox_solid building;
    std::vector<std::unique_ptr<ox::ox_polygon>> pieces;
    std::vector<phase> timed;
};

// The walls of a storey as lines: where they cross, the overlap counts once. Openings are 1 wide
// and leave the corners alone.
double wall_area(bool with_openings) {
    const double t = static_cast<double>(thickness);
    const double length = static_cast<double>(side) + t;
    const double lines = rooms + 1;
    const double grid = 2.0 * lines * length * t - lines * lines * t * t;
    return with_openings ? grid - 2.0 * lines * rooms * openings_of_wall * t : grid;
}

contest build(long storeys) {
    contest rules;
    rules.ours = {"ox_solid",
                  [=] { return std::make_unique<building_trial>(static_cast<int>(storeys)); }};
    rules.expected = {
        {"area of the sections", static_cast<double>(storeys) * wall_area(true), 1e-3}};
    return rules;
}

// "Linear plus 20 %" over four times the storeys: log(1.2 * 4) / log(4).
constexpr double growth_of_storeys = 1.13;

} // namespace

workload whole_building() {
    return workload{
        "building: 40 walls and 120 openings a storey", "storeys", {3, 6, 12}, {1, 2, 3}, build}
        .growing_at_most(growth_of_storeys);
}

} // namespace bench
