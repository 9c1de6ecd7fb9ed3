// Drives two solids through the operations that the bytes name, in any order.

#include <fuzz/byte_reader.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;

/// More faces than this are started anew: the booleans cost the product of the face counts.
constexpr int most_faces = 60;

void brick(byte_reader& bytes, ox_solid& solid) {
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector a = bytes.vector();
    const ox_3dvector b = bytes.vector();
    solid.brick(origin, a, b, bytes.vector());
}

void box(byte_reader& bytes, ox_solid& solid) {
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector size = bytes.vector();
    solid.brick(origin, size.x, size.y, size.z);
}

void extrusion(byte_reader& bytes, ox_solid& solid) {
    ox_polygon base;
    base.add_contour(bytes.contour());
    solid.extrusion(base, bytes.vector());
}

void face(byte_reader& bytes, ox_solid& solid) {
    ox_polygon polygon;
    polygon.add_contour(bytes.contour());
    polygon.add_contour(bytes.contour());
    solid.add_face(polygon);
}

void clip(byte_reader& bytes, ox_solid& solid) {
    const ox_3dvector point = bytes.vector();
    solid.clip(point, bytes.vector());
}

void section(byte_reader& bytes, ox_solid& solid) {
    const ox_3dvector point = bytes.vector();
    const ox_3dvector normal = bytes.vector();
    for (ox_polygon* piece : solid.intersect_by_plane(point, normal)) {
        delete piece;
    }
    delete solid.project_on_plane(point, normal);
}

/// Overwrites one entry of each primary list, so that they contradict each other.
void damage(byte_reader& bytes, ox_solid& solid) {
    ox_list<int> sizes = solid.get_contour_sizes();
    ox_list<unsigned int> contours = solid.get_contours();
    if (sizes.size() > 0) {
        sizes[bytes.byte() % sizes.size()] = static_cast<int>(bytes.byte()) - 128;
    }
    if (contours.size() > 0) {
        contours[bytes.byte() % contours.size()] = bytes.byte();
    }
    solid.set_contour_sizes(sizes);
    solid.set_contours(contours);
}

void apply_next(byte_reader& bytes, ox_solid& solid, ox_solid& other) {
    switch (bytes.byte() % 12) {
    case 0:
        solid.unites(other);
        break;
    case 1:
        solid.substracts(other);
        break;
    case 2:
        solid.intersects(other);
        break;
    case 3:
        brick(bytes, solid);
        break;
    case 4:
        box(bytes, solid);
        break;
    case 5:
        extrusion(bytes, other);
        break;
    case 6:
        face(bytes, solid);
        break;
    case 7:
        clip(bytes, solid);
        break;
    case 8:
        section(bytes, solid);
        break;
    case 9:
        damage(bytes, solid);
        break;
    case 10:
        other = solid;
        break;
    default:
        box(bytes, other);
        break;
    }
    if (solid.get_faces().size() > most_faces) {
        solid.clear();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    ox_solid solid;
    ox_solid other;
    for (int step = 0; step < 20 && bytes.has_more(); ++step) {
        apply_next(bytes, solid, other);
    }
    solid.get_tesselation_triangles();
    solid.get_bounding_box();
    return 0;
}
