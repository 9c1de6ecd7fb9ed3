#include <examples/building/shapes.h>

namespace building {

namespace {

ox::ox_list<ox::ox_3dvector> contour_at_height(const plan_contour& contour, double z) {
    ox::ox_list<ox::ox_3dvector> vertices;
    for (const plan_point& p : contour) {
        vertices.push_right(at_height(p, z));
    }
    return vertices;
}

} // namespace

ox::ox_3dvector at_height(const plan_point& p, double z) {
    return {static_cast<float>(p.x), static_cast<float>(p.y), static_cast<float>(z)};
}

ox::ox_polygon level_polygon(const plan_contour& outline, const std::vector<plan_contour>& holes,
                             double z) {
    ox::ox_polygon polygon(ox::ox_3dvector(0, 0, static_cast<float>(z)), ox::ox_3dvector(0, 0, 1));
    polygon.add_contour(contour_at_height(outline, z));
    for (const plan_contour& hole : holes) {
        polygon.add_contour(contour_at_height(hole, z));
    }
    return polygon;
}

} // namespace building
