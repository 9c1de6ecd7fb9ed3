// A wall with two windows and an arched door, cut in one pass.
#include <ox/solid/ox_csg.h>

#include <cmath>
#include <cstdio>

namespace {

/// A door of width 1 with a round arch, as thick as the wall.
ox::ox_solid arched_door(float left, float thickness) {
    ox::ox_list<ox::ox_3dvector> outline =
        ox::ox_make_list<ox::ox_3dvector>({{left, 0, 0}, {left + 1, 0, 0}});
    for (int i = 0; i <= 16; ++i) { // from the right springing over the top to the left one
        const float angle = 3.14159265f * static_cast<float>(i) / 16.0f;
        outline.push_right(
            {left + 0.5f + 0.5f * std::cos(angle), 0, 1.8f + 0.5f * std::sin(angle)});
    }
    ox::ox_polygon profile;
    profile.add_contour(outline); // counter-clockwise seen from -y: its normal is (0, -1, 0)
    ox::ox_solid door;
    profile.reverse(); // the normal has to point to where the extrusion leads
    door.extrusion(profile, ox::ox_3dvector(0, thickness, 0));
    return door;
}

} // namespace

int main() {
    ox::ox_solid wall;
    wall.brick(ox::ox_3dvector(0, 0, 0), 8.0f, 0.3f, 2.8f);
    ox::ox_csg csg;
    csg.unites(wall);
    for (const float left : {1.0f, 5.5f}) {
        ox::ox_solid window;
        window.brick(ox::ox_3dvector(left, 0, 0.9f), 1.5f, 0.3f, 1.2f);
        csg.substracts(window); // sides that lie in the wall's own are no trouble
    }
    csg.substracts(arched_door(3.5f, 0.3f));
    if (!csg.compute()) {
        return 1; // csg.get_problem(0) tells which operand is not closed, and where
    }
    const ox::ox_solid result = csg.get_solid();
    std::printf("wall of %.3f m3, with openings %.3f m3, open edges %d\n", wall.get_volume(),
                result.get_volume(), result.get_open_edges(0).size() / 2);
}
