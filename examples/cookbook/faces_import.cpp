// An import whose faces are not quite planar: triangles first, then the solid stays closed.
#include <ox/solid/ox_csg.h>

#include <cstdio>

namespace {

// A roof in metres whose ridge was measured askew: its two slopes are not planar.
const ox::ox_3dvector corners[] = {{0, 0, 3}, {8, 0, 3}, {8, 6, 3},
                                   {0, 6, 3}, {1, 3, 5}, {7, 3.2f, 5.2f}};
const int faces[][5] = {
    {4, 3, 2, 1, 0}, {4, 0, 1, 5, 4}, {3, 1, 2, 5, 0}, {4, 2, 3, 4, 5}, {3, 3, 0, 4, 0}};

/// Adds a convex face, whole or as the triangles about its first corner.
void add_face(ox::ox_solid& solid, const int* face, bool in_triangles) {
    const int last = in_triangles ? face[0] - 1 : 2;
    for (int i = 2; i <= last; ++i) {
        ox::ox_list<ox::ox_3dvector> ring;
        if (in_triangles) {
            ring = ox::ox_make_list({corners[face[1]], corners[face[i]], corners[face[i + 1]]});
        } else {
            for (int k = 1; k <= face[0]; ++k) {
                ring.push_right(corners[face[k]]);
            }
        }
        ox::ox_polygon polygon;
        polygon.add_contour(ring); // its plane comes from the ring: what leaves it is projected
        solid.add_face(polygon);
    }
}

} // namespace

int main() {
    for (const bool in_triangles : {false, true}) {
        ox::ox_solid roof;
        for (const auto& face : faces) {
            add_face(roof, face, in_triangles);
        }
        ox::ox_csg csg;
        csg.unites(roof);
        std::printf("%s: %d open edges, %s\n", in_triangles ? "triangles" : "polygons ",
                    roof.get_open_edges(0.001f).size() / 2,
                    csg.compute() ? "combined" : "cannot be combined");
    }
}
