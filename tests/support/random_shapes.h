#ifndef OX_TESTS_SUPPORT_RANDOM_SHAPES_H
#define OX_TESTS_SUPPORT_RANDOM_SHAPES_H

#include <cmath>
#include <initializer_list>

#include <ox/polygon/ox_polygon.h>
#include <ox/solid/ox_solid.h>
#include <tests/support/generator.h>

namespace support {

/// A right-handed frame of three perpendicular unit vectors.
struct frame {
    ox::ox_3dvector x{1.0f, 0.0f, 0.0f};
    ox::ox_3dvector y{0.0f, 1.0f, 0.0f};
    ox::ox_3dvector z{0.0f, 0.0f, 1.0f};
};

/// A random rotation from a random quaternion: square roots only, no sine or cosine, so the
/// frame has the same bits everywhere.
inline frame random_frame(generator& random) {
    double w = 0.0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double square = 0.0;
    while (square < 0.01 || square > 1.0) {
        w = random.real(-1.0, 1.0);
        x = random.real(-1.0, 1.0);
        y = random.real(-1.0, 1.0);
        z = random.real(-1.0, 1.0);
        square = w * w + x * x + y * y + z * z;
    }
    const double s = 2.0 / square;
    const auto vector = [](double a, double b, double c) {
        return ox::ox_3dvector(static_cast<float>(a), static_cast<float>(b), static_cast<float>(c));
    };
    frame result;
    result.x = vector(1.0 - s * (y * y + z * z), s * (x * y + w * z), s * (x * z - w * y));
    result.y = vector(s * (x * y - w * z), 1.0 - s * (x * x + z * z), s * (y * z + w * x));
    result.z = vector(s * (x * z + w * y), s * (y * z - w * x), 1.0 - s * (x * x + y * y));
    return result;
}

inline ox::ox_3dvector random_point(generator& random, double extent) {
    const double x = random.real(-extent, extent);
    const double y = random.real(-extent, extent);
    const double z = random.real(-extent, extent);
    return ox::ox_3dvector(static_cast<float>(x), static_cast<float>(y), static_cast<float>(z));
}

inline ox::ox_list<ox::ox_3dvector> contour(std::initializer_list<ox::ox_3dvector> points) {
    ox::ox_list<ox::ox_3dvector> result;
    for (const ox::ox_3dvector& point : points) {
        result.push_right(point);
    }
    return result;
}

/// The axis-parallel rectangle from (x0, y0) to (x1, y1) at height z, counter-clockwise seen
/// from above.
inline ox::ox_list<ox::ox_3dvector> rectangle(float x0, float y0, float x1, float y1,
                                              float z = 0.0f) {
    return contour({ox::ox_3dvector(x0, y0, z), ox::ox_3dvector(x1, y0, z),
                    ox::ox_3dvector(x1, y1, z), ox::ox_3dvector(x0, y1, z)});
}

inline ox::ox_polygon rectangle_polygon(float x0, float y0, float x1, float y1, float z = 0.0f) {
    ox::ox_polygon polygon;
    polygon.add_contour(rectangle(x0, y0, x1, y1, z));
    return polygon;
}

/// The axis-parallel brick between two corners.
inline ox::ox_solid brick_between(const ox::ox_3dvector& low, const ox::ox_3dvector& high) {
    ox::ox_solid solid;
    solid.brick(low, high.x - low.x, high.y - low.y, high.z - low.z);
    return solid;
}

/// A brick centred near `centre` with edges of 0.5 to 4 along the axes of the frame.
inline ox::ox_solid random_brick(generator& random, const ox::ox_3dvector& centre,
                                 const frame& axes) {
    const float a = static_cast<float>(random.real(0.5, 4.0));
    const float b = static_cast<float>(random.real(0.5, 4.0));
    const float c = static_cast<float>(random.real(0.5, 4.0));
    const ox::ox_3dvector corner =
        centre - axes.x * (a * 0.5f) - axes.y * (b * 0.5f) - axes.z * (c * 0.5f);
    ox::ox_solid solid;
    solid.brick(corner, axes.x * a, axes.y * b, axes.z * c);
    return solid;
}

/// A prism over a star-shaped base of 3 to 6 corners, extruded along the frame's z axis.
inline ox::ox_solid random_prism(generator& random, const ox::ox_3dvector& centre,
                                 const frame& axes) {
    // The corners of a hexagon in order; dropping some leaves a simple polygon.
    static const float corners[6][2] = {{1.0f, 0.0f},  {0.5f, 0.9f},   {-0.5f, 0.9f},
                                        {-1.0f, 0.0f}, {-0.5f, -0.9f}, {0.5f, -0.9f}};
    const int dropped = random.between(0, 3);
    const float height = static_cast<float>(random.real(0.5, 4.0));
    ox::ox_list<ox::ox_3dvector> base;
    for (int i = 0; i < 6; ++i) {
        const float radius = static_cast<float>(random.real(0.7, 2.5));
        // Three corners in a row are never dropped, so the base stays round its centre.
        if ((i == 1 && dropped > 0) || (i == 3 && dropped > 1) || (i == 5 && dropped > 2)) {
            continue;
        }
        base.push_right(centre + axes.x * (corners[i][0] * radius) +
                        axes.y * (corners[i][1] * radius) - axes.z * (height * 0.5f));
    }
    ox::ox_polygon polygon;
    polygon.add_contour(base);
    ox::ox_solid solid;
    solid.extrusion(polygon, axes.z * height);
    return solid;
}

/// A closed contour of `count` points of the plane z = 0, in no order: it crosses itself.
inline ox::ox_list<ox::ox_3dvector> random_tangle(generator& random, int count, int extent) {
    ox::ox_list<ox::ox_3dvector> result;
    for (int i = 0; i < count; ++i) {
        const float x = random.grid(-extent, extent);
        const float y = random.grid(-extent, extent);
        result.push_right(ox::ox_3dvector(x, y, 0.0f));
    }
    return result;
}

} // namespace support

#endif
