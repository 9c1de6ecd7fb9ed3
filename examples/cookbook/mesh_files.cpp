// A closed mesh written as STL and OBJ, and the STL file read, welded and found closed again.
#include <ox/core/ox_log.h>
#include <ox/mesh/ox_mesh.h>
#include <ox/solid/ox_csg.h>

#include <cstdio>

int main() {
    ox_log_set(false); // reading and welding log their steps otherwise

    ox::ox_solid block, notch;
    block.brick(ox::ox_3dvector(0.05f, 0.05f, 0.05f), 2.0f, 1.0f, 1.0f);
    notch.brick(ox::ox_3dvector(0.55f, 0.05f, 0.55f), 1.0f, 1.0f, 0.5f);
    ox::ox_csg csg;
    csg.unites(block);
    csg.substracts(notch);
    csg.compute();
    const ox::ox_triangle_set triangles = csg.get_triangles();
    if (!triangles.write_binary_stl("notch.stl") || !triangles.write_obj("notch.obj")) {
        return 1;
    }

    ox::ox_triangle_set read;
    if (!read.read_binary_stl("notch.stl")) {
        return 1;
    }
    std::printf("STL: %u triangles with %u corners of their own\n", read.get_nb_triangles(),
                read.get_nb_vertices());
    read.optimize(0.0001f, 10.0f); // a normal tolerance above 3.5: weld across sharp edges, too
    ox::ox_mesh mesh;
    mesh.add(read);
    mesh.build_half_edges();
    std::printf("welded: %u vertices, %s\n", read.get_nb_vertices(),
                mesh.is_closed() ? "closed" : "not closed");
}
