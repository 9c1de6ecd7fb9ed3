// Cuts a window out of a wall and prints the triangles of what is left.
#include <ox/solid/ox_solid.h>

#include <cstdio>

int main() {
    ox::ox_solid wall;
    wall.brick(ox::ox_3dvector(0, 0, 0), 4.0f, 0.3f, 2.5f); // metres: 4 long, 0.3 thick, 2.5 high

    ox::ox_solid window; // sticks out of the wall on both sides
    window.brick(ox::ox_3dvector(1.5f, -0.25f, 0.875f), 1.0f, 1.0f, 1.25f);
    wall.substracts(window);

    const ox::ox_list<ox::ox_3dvector>& vertices = wall.get_tesselation_vertices();
    for (unsigned int index : wall.get_tesselation_triangles()) {
        const ox::ox_3dvector& v = vertices[static_cast<int>(index)];
        std::printf("%.3f %.3f %.3f\n", v.x, v.y, v.z); // a corner; three make a triangle
    }
}
