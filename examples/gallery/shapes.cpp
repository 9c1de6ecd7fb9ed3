#include <examples/gallery/shapes.h>

#include <cmath>
#include <cstdio>

namespace gallery {

contour flat(std::initializer_list<float> coordinates) {
    contour result;
    for (const float* c = coordinates.begin(); c + 1 < coordinates.end(); c += 2) {
        result.push_right({c[0], c[1], 0});
    }
    return result;
}

contour rectangle(float x0, float y0, float x1, float y1) {
    return flat({x0, y0, x1, y0, x1, y1, x0, y1});
}

contour regular(float x, float y, float radius, int corners, float turn) {
    contour result;
    for (int i = 0; i < corners; ++i) {
        const float angle = turn + 6.2831853f * static_cast<float>(i) / static_cast<float>(corners);
        result.push_right({x + radius * std::cos(angle), y + radius * std::sin(angle), 0});
    }
    return result;
}

contour reversed(const contour& c) {
    contour result;
    for (const ox::ox_3dvector& v : c) {
        result.push_left(v);
    }
    return result;
}

ox::ox_polygon region(std::initializer_list<contour> contours) {
    ox::ox_polygon polygon(ox::ox_3dvector(0, 0, 0), ox::ox_3dvector(0, 0, 1));
    for (const contour& c : contours) {
        polygon.add_contour(c);
    }
    return polygon;
}

ox::ox_solid box(float x, float y, float z, float dx, float dy, float dz) {
    ox::ox_solid solid;
    solid.brick(ox::ox_3dvector(x, y, z), dx, dy, dz);
    return solid;
}

ox::ox_solid prism(const contour& base, float z, float height) {
    contour raised = base;
    for (ox::ox_3dvector& v : raised) {
        v.z = z;
    }
    ox::ox_polygon polygon;
    polygon.add_contour(raised);
    ox::ox_solid solid;
    solid.extrusion(polygon, ox::ox_3dvector(0, 0, height));
    return solid;
}

ox::ox_solid cylinder(const ox::ox_3dvector& from, const ox::ox_3dvector& direction, float radius,
                      int sides) {
    ox::ox_3dvector axis = direction, u, v;
    axis.build_axis(u, v);
    contour circle;
    for (const ox::ox_3dvector& p : regular(0, 0, radius, sides)) {
        circle.push_right(from + u * p.x + v * p.y);
    }
    ox::ox_polygon polygon;
    polygon.add_contour(circle);
    ox::ox_solid solid;
    solid.extrusion(polygon, direction);
    return solid;
}

std::string number(double value, int decimals) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

} // namespace gallery
