// Draws limits of the face-by-face booleans for docs/limits.md: in front, red, what they make of
// two solids, and behind it what `ox_csg` does.

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include <examples/building/drawing.h>
#include <examples/support/png_file.h>
#include <ox/solid/ox_csg.h>
#include <tests/support/buildings.h>

namespace {

using ox::ox_3dvector;
using ox::ox_solid;

building::element drawn(const ox_solid& solid, const ox_3dvector& shift,
                        building::element_kind kind) {
    ox::ox_list<ox_3dvector> vertices = solid.get_vertices();
    for (ox_3dvector& vertex : vertices) {
        vertex = vertex + shift;
    }
    building::element made;
    made.kind = kind;
    made.solid = solid;
    made.solid.set_vertices(vertices);
    return made;
}

/// Both results side by side.
void draw(const std::string& path, const ox_solid& face_by_face, const ox_solid& by_csg) {
    const float width = ox_solid(by_csg).get_bounding_box().size.x;
    std::vector<building::element> scene;
    scene.push_back(drawn(face_by_face, {}, building::element_kind::roof));
    scene.push_back(
        drawn(by_csg, {1.4f * width, -0.6f * width, 0.0f}, building::element_kind::walls));
    std::printf("%s: face by face %.3f, ox_csg %.3f\n", path.c_str(), face_by_face.get_volume(),
                by_csg.get_volume());
    ox_examples::write_png(path, building::draw_view(scene));
}

/// A surveyed building minus a block through its roof: face by face the pit has no floor.
void draw_pit(const std::string& path) {
    const support::building surveyed = support::read_surveyed_buildings().at(10);
    const ox_solid exact = support::exact_solid(surveyed);
    const ox::ox_box box = ox_solid(exact).get_bounding_box();
    const ox_3dvector x = ox_3dvector(0.8f, 0.6f, 0.0f) * (0.3f * box.size.x);
    const ox_3dvector y = ox_3dvector(-0.6f, 0.8f, 0.0f) * (0.3f * box.size.y);
    const ox_3dvector z(0.0f, 0.0f, 0.3f * box.size.z);
    const ox_3dvector middle =
        box.origin + box.size * 0.5f + ox_3dvector(0.0f, 0.0f, 0.4f * box.size.z);
    ox_solid block;
    block.brick(middle - (x + y + z) * 0.5f, x, y, z);
    ox_solid face_by_face = support::flattened_solid(surveyed);
    face_by_face.substracts(block);
    ox::ox_csg csg(support::survey_tolerance);
    csg.unites(exact);
    csg.substracts(block);
    csg.compute();
    draw(path, face_by_face, csg.get_solid());
}

/// A plate minus one that crosses it at little more than a degree: face by face a triangle of the
/// top stays in the air.
void draw_plates(const std::string& path) {
    const float sine = 0.02f;
    const float cosine = 0.9998f;
    const ox_3dvector tilt(cosine, 0.0f, sine);
    const ox_3dvector up(-sine, 0.0f, cosine);
    const ox_3dvector y(0.0f, 1.0f, 0.0f);
    ox_solid level;
    level.brick({-2.0f, -1.5f, -0.1f}, 4.0f, 3.0f, 0.2f);
    ox_solid askew;
    askew.brick(tilt * -1.5f - y - up * 0.1f, tilt * 4.0f, y * 2.0f, up * 0.2f);
    ox_solid face_by_face = level;
    face_by_face.substracts(askew);
    ox::ox_csg csg;
    csg.unites(level);
    csg.substracts(askew);
    csg.compute();
    draw(path, face_by_face, csg.get_solid());
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::string folder = argc > 1 ? argv[1] : ".";
        draw_pit(folder + "/pit.png");
        draw_plates(folder + "/plates.png");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}
