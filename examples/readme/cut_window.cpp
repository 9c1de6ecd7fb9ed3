// Unites two crossing walls, cuts a window out of them and prints the triangles of what is left.
#include <ox/solid/ox_csg.h>

#include <cstdio>

int main() {
    ox::ox_solid wall;
    wall.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 0.3f, 2.5f); // metres: 4 long, 0.3 thick, 2.5 high

    ox::ox_solid crossing_wall;
    crossing_wall.brick(ox::ox_3dvector(3, -1, 0), 0.3f, 3.0f, 2.5f);

    ox::ox_solid window; // as thick as the wall
    window.brick(ox::ox_3dvector(1.5f, 0, 0.875f), 1.0f, 0.3f, 1.25f);

    ox::ox_csg csg;
    csg.unites(wall);
    csg.unites(crossing_wall);
    csg.substracts(window);
    if (!csg.compute()) {
        return 1; // one of them is no closed solid: csg.get_problem(0) tells where
    }
    const ox::ox_triangle_set triangles = csg.get_triangles();
    for (unsigned int i = 0; i < 3 * triangles.get_nb_triangles(); ++i) {
        const ox::ox_3dvector& v = triangles.get_vertices()[triangles.get_triangles()[i]];
        std::printf("%.3f %.3f %.3f\n", v.x, v.y, v.z); // a corner; three make a triangle
    }
}
