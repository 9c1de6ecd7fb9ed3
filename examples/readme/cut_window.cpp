// Unites two crossing walls, cuts a window out of them and writes what is left as a mesh.
#include <ox/solid/ox_csg.h>

int main() {
    ox::ox_solid wall, crossing_wall, window; // in metres: length, thickness, height
    wall.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 0.3f, 2.5f);
    crossing_wall.brick(ox::ox_3dvector(3, -1, 0), 0.3f, 3.0f, 2.5f);
    window.brick(ox::ox_3dvector(1.5f, 0, 0.875f), 1.0f, 0.3f, 1.25f); // as thick as the wall

    ox::ox_csg csg;
    csg.unites(wall);
    csg.unites(crossing_wall);
    csg.substracts(window);
    if (!csg.compute()) {
        return 1; // one of them is no closed solid: csg.get_problem(0) tells where
    }
    return csg.get_triangles().write_obj("walls.obj") ? 0 : 1;
}
