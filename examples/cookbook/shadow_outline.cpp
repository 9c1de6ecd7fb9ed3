// The shadow of a house on the ground: its faces moved along the rays of the sun, and united.
#include <ox/solid/ox_csg.h>

#include <cstdio>

int main() {
    ox::ox_solid tower, wing;
    tower.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 4.0f, 10.0f); // metres
    wing.brick(ox::ox_3dvector(4, 0, 0), 6.0f, 4.0f, 3.0f);
    ox::ox_csg csg;
    csg.unites(tower);
    csg.unites(wing);
    csg.compute();
    ox::ox_solid house = csg.get_solid();

    // Seen straight from above: the ground that it covers.
    const ox::ox_3dvector ground(0, 0, 0), up(0, 0, 1);
    ox::ox_polygon* covered = house.project_on_plane(ground, up); // the caller's
    std::printf("covered: %.1f m2\n", static_cast<double>(covered->get_area()));

    // Rays that go 1 east and 0.5 north for each metre down.
    ox::ox_polygon shadow(ground, up);
    for (ox::ox_polygon* face : house.get_faces()) {
        ox::ox_list<ox::ox_3dvector> outline;
        for (const ox::ox_3dvector& v : face->get_contour_vertices()) {
            outline.push_right({v.x + v.z, v.y + 0.5f * v.z, 0});
        }
        ox::ox_polygon cast(ground, up);
        cast.add_contour(outline); // faces seen edge-on bound nothing
        shadow.unites(cast);
    }
    std::printf("house and shadow: %.1f m2, ", static_cast<double>(shadow.get_area()));
    shadow.substracts(*covered);
    std::printf("shadow alone: %.1f m2\n", static_cast<double>(shadow.get_area()));
    delete covered;
}
