#ifndef OX_TESTS_SOLID_CSG_SHAPES_H
#define OX_TESTS_SOLID_CSG_SHAPES_H

#include <cmath>
#include <cstdlib>

#include <ox/solid/ox_solid.h>
#include <tests/support/generator.h>
#include <tests/support/random_shapes.h>

namespace csg_test {

constexpr double full_turn = 6.283185307179586;

/// The point of a frame at `origin`.
inline ox::ox_3dvector point_in(const support::frame& frame, const ox::ox_3dvector& origin,
                                double x, double y, double z) {
    return origin + frame.x * static_cast<float>(x) + frame.y * static_cast<float>(y) +
           frame.z * static_cast<float>(z);
}

/// The brick between two corners of a frame at the origin, its vertices shared by index and rounded
/// to floats only: the faces that a solid's own bricks are made of are rounded to a grid.
inline ox::ox_solid brick_in(const support::frame& frame, const ox::ox_3dvector& low,
                             const ox::ox_3dvector& high) {
    const auto coordinate = [&](unsigned int axis, double x, double y, double z) {
        return static_cast<float>(x * static_cast<double>(frame.x.at(axis)) +
                                  y * static_cast<double>(frame.y.at(axis)) +
                                  z * static_cast<double>(frame.z.at(axis)));
    };
    ox::ox_list<ox::ox_3dvector> vertices;
    for (int corner = 0; corner < 8; ++corner) {
        const auto x = static_cast<double>((corner & 1) != 0 ? high.x : low.x);
        const auto y = static_cast<double>((corner & 2) != 0 ? high.y : low.y);
        const auto z = static_cast<double>((corner & 4) != 0 ? high.z : low.z);
        vertices.push_right(ox::ox_3dvector(coordinate(0, x, y, z), coordinate(1, x, y, z),
                                            coordinate(2, x, y, z)));
    }
    ox::ox_list<unsigned int> contours;
    for (const unsigned int index : {0u, 2u, 3u, 1u, 4u, 5u, 7u, 6u, 0u, 1u, 5u, 4u,
                                     2u, 6u, 7u, 3u, 0u, 4u, 6u, 2u, 1u, 3u, 7u, 5u}) {
        contours.push_right(index);
    }
    ox::ox_list<int> sizes;
    for (int face = 0; face < 6; ++face) {
        sizes.push_right(4);
    }
    ox::ox_solid brick;
    brick.set_vertices(vertices);
    brick.set_contours(contours);
    brick.set_contour_sizes(sizes);
    return brick;
}

/// A regular prism about the z axis of a frame; of many sides, a column.
inline ox::ox_solid column(const support::frame& frame, const ox::ox_3dvector& centre, int sides,
                           double radius, double height) {
    ox::ox_list<ox::ox_3dvector> base;
    for (int i = 0; i < sides; ++i) {
        const double angle = full_turn * i / sides;
        base.push_right(point_in(frame, centre, radius * std::cos(angle), radius * std::sin(angle),
                                 -height / 2.0));
    }
    ox::ox_polygon polygon;
    polygon.add_contour(base);
    ox::ox_solid solid;
    solid.extrusion(polygon, frame.z * static_cast<float>(height));
    return solid;
}

/// The volume of a regular prism.
inline double column_volume(int sides, double radius, double height) {
    return 0.5 * sides * radius * radius * std::sin(full_turn / sides) * height;
}

/// A plate with a round hole, as tall as it is thick.
inline ox::ox_solid ring(const support::frame& frame, const ox::ox_3dvector& centre, int sides,
                         double outer_radius, double inner_radius, double height) {
    ox::ox_polygon polygon;
    for (const double radius : {outer_radius, inner_radius}) {
        ox::ox_list<ox::ox_3dvector> circle;
        for (int i = 0; i < sides; ++i) {
            const double angle = full_turn * i / sides;
            circle.push_right(point_in(frame, centre, radius * std::cos(angle),
                                       radius * std::sin(angle), -height / 2.0));
        }
        polygon.add_contour(circle);
    }
    ox::ox_solid solid;
    solid.extrusion(polygon, frame.z * static_cast<float>(height));
    return solid;
}

/// Gathers triangles whose vertices are shared by index.
class triangle_builder {
public:
    unsigned int add_vertex(const ox::ox_3dvector& vertex) {
        vertices.push_right(vertex);
        return static_cast<unsigned int>(vertices.size() - 1);
    }

    void add_triangle(unsigned int a, unsigned int b, unsigned int c) {
        for (const unsigned int corner : {a, b, c}) {
            contours.push_right(corner);
        }
        sizes.push_right(3);
    }

    ox::ox_solid build() const {
        ox::ox_solid solid;
        solid.set_vertices(vertices);
        solid.set_contours(contours);
        solid.set_contour_sizes(sizes);
        return solid;
    }

private:
    ox::ox_list<ox::ox_3dvector> vertices;
    ox::ox_list<unsigned int> contours;
    ox::ox_list<int> sizes;
};

/// A sphere of `rows` rings of 2 `rows` triangles or twice as many, its poles along z.
inline ox::ox_solid sphere(const ox::ox_3dvector& centre, int rows, double radius) {
    triangle_builder made;
    const int columns = 2 * rows;
    const support::frame frame;
    for (int row = 1; row < rows; ++row) {
        const double polar = full_turn / 2.0 * row / rows;
        for (int c = 0; c < columns; ++c) {
            const double angle = full_turn * c / columns;
            made.add_vertex(point_in(frame, centre, radius * std::sin(polar) * std::cos(angle),
                                     radius * std::sin(polar) * std::sin(angle),
                                     radius * std::cos(polar)));
        }
    }
    const unsigned int top = made.add_vertex(point_in(frame, centre, 0.0, 0.0, radius));
    const unsigned int bottom = made.add_vertex(point_in(frame, centre, 0.0, 0.0, -radius));
    const auto at = [&](int row, int c) {
        return static_cast<unsigned int>((row - 1) * columns + c % columns);
    };
    for (int c = 0; c < columns; ++c) {
        made.add_triangle(top, at(1, c), at(1, c + 1));
        made.add_triangle(bottom, at(rows - 1, c + 1), at(rows - 1, c));
        for (int row = 1; row + 1 < rows; ++row) {
            made.add_triangle(at(row, c), at(row + 1, c), at(row + 1, c + 1));
            made.add_triangle(at(row, c), at(row + 1, c + 1), at(row, c + 1));
        }
    }
    return made.build();
}

/// A pyramid over a regular base.
inline ox::ox_solid pyramid(const support::frame& frame, const ox::ox_3dvector& centre, int sides,
                            double radius, double height) {
    triangle_builder made;
    for (int i = 0; i < sides; ++i) {
        const double angle = full_turn * i / sides;
        made.add_vertex(
            point_in(frame, centre, radius * std::cos(angle), radius * std::sin(angle), 0.0));
    }
    const unsigned int apex = made.add_vertex(point_in(frame, centre, 0.0, 0.0, height));
    const unsigned int foot = made.add_vertex(centre);
    for (int i = 0; i < sides; ++i) {
        const auto from = static_cast<unsigned int>(i);
        const auto to = static_cast<unsigned int>((i + 1) % sides);
        made.add_triangle(from, to, apex);
        made.add_triangle(to, from, foot);
    }
    return made.build();
}

/// A closed solid of a random kind and placing near the origin: a brick, a prism, a column, a ring,
/// a pyramid or a sphere.
inline ox::ox_solid random_solid(support::generator& random) {
    const support::frame frame = support::random_frame(random);
    const ox::ox_3dvector centre = support::random_point(random, 1.5);
    const int kind = random.between(0, 9);
    const int sides = random.between(5, 32);
    const double radius = random.real(0.5, 2.0);
    const double height = random.real(0.5, 3.0);
    switch (kind) {
    case 0:
    case 1:
    case 2:
        return support::random_prism(random, centre, frame);
    case 3:
        return column(frame, centre, sides, radius, height);
    case 4:
        return ring(frame, centre, sides, radius, 0.6 * radius, height);
    case 5:
        return pyramid(frame, centre, sides, radius, height);
    case 6:
        return sphere(centre, 6, radius);
    default:
        return support::random_brick(random, centre, frame);
    }
}

/// The frame turned by `degrees` about the direction between its x and y axes that `share` (0 to 1)
/// names.
inline support::frame tilted(const support::frame& frame, double share, double degrees) {
    const double angle = degrees * full_turn / 360.0;
    const double along = full_turn * share;
    const auto turned = [&](const ox::ox_3dvector& v) {
        // Rodrigues' formula about the axis k.
        const ox::ox_3dvector k = frame.x * static_cast<float>(std::cos(along)) +
                                  frame.y * static_cast<float>(std::sin(along));
        return v * static_cast<float>(std::cos(angle)) +
               ox::ox_cross(k, v) * static_cast<float>(std::sin(angle)) +
               k * (ox::ox_dot(k, v) * static_cast<float>(1.0 - std::cos(angle)));
    };
    return {turned(frame.x), turned(frame.y), turned(frame.z)};
}

/// The same shell with its faces turned inside out.
inline ox::ox_solid inside_out(const ox::ox_solid& solid) {
    ox::ox_list<unsigned int> contours;
    int first = 0;
    for (const int size : solid.get_contour_sizes()) {
        for (int i = std::abs(size) - 1; i >= 0; --i) {
            contours.push_right(solid.get_contours()[first + i]);
        }
        first += std::abs(size);
    }
    ox::ox_solid turned = solid;
    turned.set_contours(contours);
    return turned;
}

/// The shells of both solids in one primary storage.
inline ox::ox_solid in_one_storage(const ox::ox_solid& a, const ox::ox_solid& b) {
    ox::ox_list<ox::ox_3dvector> vertices = a.get_vertices();
    ox::ox_list<unsigned int> contours = a.get_contours();
    ox::ox_list<int> sizes = a.get_contour_sizes();
    const auto base = static_cast<unsigned int>(vertices.size());
    for (const ox::ox_3dvector& vertex : b.get_vertices()) {
        vertices.push_right(vertex);
    }
    for (const unsigned int index : b.get_contours()) {
        contours.push_right(base + index);
    }
    for (const int size : b.get_contour_sizes()) {
        sizes.push_right(size);
    }
    ox::ox_solid both;
    both.set_vertices(vertices);
    both.set_contours(contours);
    both.set_contour_sizes(sizes);
    return both;
}

} // namespace csg_test

#endif
