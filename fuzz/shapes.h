#ifndef OX_FUZZ_SHAPES_H
#define OX_FUZZ_SHAPES_H

#include <cmath>

#include <fuzz/byte_reader.h>
#include <fuzz/require.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>

namespace fuzz {

/// A polygon of up to four contours, in a plane of its own for some inputs.
inline ox::ox_polygon polygon_of(byte_reader& bytes) {
    ox::ox_polygon polygon;
    if (bytes.below(8) == 0) {
        const ox::ox_3dvector point = bytes.vector();
        polygon = ox::ox_polygon(point, bytes.vector());
    }
    for (int contours = bytes.below(5); contours > 0; --contours) {
        polygon.add_contour(bytes.contour());
    }
    return polygon;
}

/// What holds for every polygon: its lists agree, and no index leads outside them.
inline void require_sound(ox::ox_polygon& polygon) {
    const ox::ox_list<unsigned int>& sizes = polygon.get_contour_sizes();
    const ox::ox_list<int>& parents = polygon.get_contour_parents();
    unsigned int vertices = 0;
    for (const unsigned int size : sizes) {
        vertices += size;
    }
    require(static_cast<int>(vertices) == polygon.get_contour_vertices().size());
    require(sizes.size() == parents.size());
    require(sizes.size() == polygon.get_contour_orientations().size());
    for (int i = 0; i < parents.size(); ++i) {
        require(parents[i] >= -1 && parents[i] < i);
    }
    const unsigned int corners =
        static_cast<unsigned int>(polygon.get_tesselation_vertices().size());
    require(polygon.get_tesselation_triangles().size() % 3 == 0);
    for (const unsigned int index : polygon.get_tesselation_triangles()) {
        require(index < corners);
    }
    require(!(polygon.get_area() < 0.0f));
}

/// Grows or shrinks a polygon, but neither by long arcs nor once it has arcs, whose crossings take
/// longer than an input may.
inline void offset(byte_reader& bytes, ox::ox_polygon& polygon) {
    constexpr float longest_round = 4.0f;
    constexpr int most_vertices = 200;
    const float distance = bytes.coordinate();
    const int join = bytes.below(4);
    const bool is_long = join == ox::ox_polygon::join_round && std::isfinite(distance) &&
                         std::fabs(distance) > longest_round;
    if (is_long || polygon.get_contour_vertices().size() > most_vertices) {
        return;
    }
    polygon.offset(distance, join);
}

/// A brick: upright and square, or of any three sides.
inline ox::ox_solid brick_of(byte_reader& bytes) {
    const bool is_upright = bytes.below(4) != 0;
    const ox::ox_3dvector origin = bytes.vector();
    const ox::ox_3dvector a = bytes.vector();
    ox::ox_solid solid;
    if (is_upright) {
        solid.brick(origin, a.x, a.y, a.z);
    } else {
        const ox::ox_3dvector b = bytes.vector();
        solid.brick(origin, a, b, bytes.vector());
    }
    return solid;
}

/// A prism over a polygon with any number of holes.
inline ox::ox_solid prism_of(byte_reader& bytes) {
    ox::ox_polygon base = polygon_of(bytes);
    ox::ox_solid solid;
    solid.extrusion(base, bytes.vector());
    return solid;
}

/// A brick, a prism, or one face after the other.
inline ox::ox_solid solid_of(byte_reader& bytes) {
    switch (bytes.below(4)) {
    case 0: {
        ox::ox_solid solid;
        for (int faces = bytes.below(7); faces > 0; --faces) {
            ox::ox_polygon face = polygon_of(bytes);
            solid.add_face(face);
        }
        return solid;
    }
    case 1:
        return prism_of(bytes);
    default:
        return brick_of(bytes);
    }
}

/// What holds for every solid: the triangles lead nowhere outside their vertices.
inline void require_sound(ox::ox_solid& solid) {
    const unsigned int corners = static_cast<unsigned int>(solid.get_tesselation_vertices().size());
    require(solid.get_tesselation_triangles().size() % 3 == 0);
    for (const unsigned int index : solid.get_tesselation_triangles()) {
        require(index < corners);
    }
    solid.get_bounding_box();
    solid.get_volume();
    solid.get_surface_area();
}

/// A set of few vertices, so that sides and places are shared; an index may be one too large.
inline ox::ox_triangle_set triangle_set_of(byte_reader& bytes) {
    const unsigned int vertex_count = bytes.byte() % 32;
    const unsigned int triangle_count = bytes.byte() % 64;
    ox::ox_triangle_set set(vertex_count, triangle_count);
    for (unsigned int i = 0; i < vertex_count; ++i) {
        set.get_vertices()[i] = bytes.vector();
    }
    for (unsigned int i = 0; i < 3 * triangle_count; ++i) {
        const unsigned int index = bytes.byte();
        set.get_triangles()[i] = index == 255 ? vertex_count : index % (vertex_count + 1);
    }
    return set;
}

} // namespace fuzz

#endif
