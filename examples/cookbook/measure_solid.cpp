// Volume and surface of a solid, and where it is open.
#include <ox/solid/ox_solid.h>

#include <cstdio>

namespace {

void report(const char* name, const ox::ox_solid& solid) {
    const ox::ox_list<ox::ox_3dvector> open = solid.get_open_edges(0.001f);
    std::printf("%s: %.3f m3, %.3f m2, %s\n", name, solid.get_volume(), solid.get_surface_area(),
                open.empty() ? "closed" : "open at");
    for (int i = 0; i + 1 < open.size(); i += 2) {
        std::printf("  (%g, %g, %g) to (%g, %g, %g)\n", static_cast<double>(open[i].x),
                    static_cast<double>(open[i].y), static_cast<double>(open[i].z),
                    static_cast<double>(open[i + 1].x), static_cast<double>(open[i + 1].y),
                    static_cast<double>(open[i + 1].z));
    }
}

} // namespace

int main() {
    ox::ox_solid tank;
    tank.brick(ox::ox_3dvector(0, 0, 0), 2.0f, 1.0f, 1.5f); // metres
    report("tank", tank);

    ox::ox_solid without_lid;
    for (ox::ox_polygon* face : tank.get_faces()) {
        if (face->get_normal().z < 0.5f) { // all but the one that looks up
            without_lid.add_face(*face);
        }
    }
    report("without lid", without_lid);

    ox::ox_solid inside_out;
    for (const ox::ox_polygon* face : tank.get_faces()) {
        ox::ox_polygon turned = *face; // a copy: the faces of a solid are its own
        turned.reverse();
        inside_out.add_face(turned);
    }
    report("inside out", inside_out);
}
