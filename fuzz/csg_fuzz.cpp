// Combines solids that the bytes describe: bricks, turned bricks, prisms, damaged primary storages,
// half-spaces and earlier results. Whatever goes in, a result is closed.

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_csg.h>
#include <ox/solid/ox_solid.h>

namespace {

using fuzz::byte_reader;
using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_list;
using ox::ox_polygon;
using ox::ox_solid;

constexpr int most_operands = 8;

/// Results of more vertices are not fed back: the time for one input is limited.
constexpr int most_vertices = 400;

ox_solid box(byte_reader& bytes) {
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector size = bytes.vector();
    ox_solid solid;
    solid.brick(origin, size.x, size.y, size.z);
    return solid;
}

ox_solid parallelepiped(byte_reader& bytes) {
    const ox_3dvector origin = bytes.vector();
    const ox_3dvector a = bytes.vector();
    const ox_3dvector b = bytes.vector();
    ox_solid solid;
    solid.brick(origin, a, b, bytes.vector());
    return solid;
}

ox_solid prism(byte_reader& bytes) {
    ox_polygon base;
    base.add_contour(bytes.contour());
    base.add_contour(bytes.contour());
    ox_solid solid;
    solid.extrusion(base, bytes.vector());
    return solid;
}

/// A closed shell of triangles whose corners lie anywhere: an octahedron with any corners.
ox_solid crumpled(byte_reader& bytes) {
    ox_list<ox_3dvector> vertices;
    for (int i = 0; i < 6; ++i) {
        vertices.push_right(bytes.vector());
    }
    ox_list<unsigned int> contours;
    ox_list<int> sizes;
    for (unsigned int i = 0; i < 4; ++i) {
        for (const unsigned int corner : {0u, 2 + i, 2 + (i + 1) % 4, 1u, 2 + (i + 1) % 4, 2 + i}) {
            contours.push_right(corner);
        }
        sizes.push_right(3);
        sizes.push_right(3);
    }
    ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

/// Overwrites one entry of each primary list, so that they contradict each other.
ox_solid damaged(byte_reader& bytes, const ox_solid& solid) {
    ox_list<ox_3dvector> vertices = solid.get_vertices();
    ox_list<unsigned int> contours = solid.get_contours();
    ox_list<int> sizes = solid.get_contour_sizes();
    if (vertices.size() > 0 && contours.size() > 0 && sizes.size() > 0) {
        vertices[bytes.byte() % vertices.size()] = bytes.vector();
        contours[bytes.byte() % contours.size()] = bytes.byte();
        sizes[bytes.byte() % sizes.size()] = static_cast<int>(bytes.byte()) - 128;
    }
    ox_solid changed;
    changed.set_vertices(vertices);
    changed.set_contours(contours);
    changed.set_contour_sizes(sizes);
    return changed;
}

ox_solid next_operand(byte_reader& bytes, const ox_solid& last) {
    switch (bytes.byte() % 8) {
    case 0:
    case 1:
        return box(bytes);
    case 2:
        return parallelepiped(bytes);
    case 3:
        return prism(bytes);
    case 4:
        return crumpled(bytes);
    case 5:
        return damaged(bytes, last);
    case 6:
        return damaged(bytes, box(bytes));
    default:
        return last;
    }
}

void apply_next(byte_reader& bytes, ox_csg& csg, ox_solid& last) {
    const int what = bytes.byte() % 8;
    if (what == 7) {
        const ox_3dvector point = bytes.vector();
        csg.clips(point, bytes.vector());
        return;
    }
    last = next_operand(bytes, last);
    if (what < 4) {
        csg.unites(last);
    } else if (what < 6) {
        csg.substracts(last);
    } else {
        csg.intersects(last);
    }
}

/// Every result is closed, and an operand that is used again without complaint.
void check_result(ox_csg& csg, ox_solid& last) {
    fuzz::require(csg.compute() == (csg.get_nb_problems() == 0));
    const ox_solid result = csg.get_solid();
    fuzz::require(result.get_open_edges(0.0f).size() == 0);
    int faces = 0;
    for (const int size : result.get_contour_sizes()) {
        faces += size > 0 ? 1 : 0;
    }
    fuzz::require(csg.get_origins().size() == faces);
    if (result.get_vertices().size() <= most_vertices) {
        last = result;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    byte_reader bytes(data, size);
    const float tolerances[] = {0.001f, 0.0f, 0.02f, 0.3f};
    ox_solid last;
    while (bytes.has_more()) {
        ox_csg csg(tolerances[bytes.byte() % 4]);
        while (bytes.has_more() && csg.get_nb_operands() < most_operands) {
            const bool is_last = bytes.byte() % 4 == 0;
            apply_next(bytes, csg, last);
            if (is_last) {
                break;
            }
        }
        check_result(csg, last);
    }
    return 0;
}
