#include <examples/slab/shapes.h>

namespace slab {

ox::ox_3dvector flat(const plan_point& p) {
    return {static_cast<float>(p.x), static_cast<float>(p.y), 0.f};
}

ox::ox_list<ox::ox_3dvector> flat(const plan_contour& contour) {
    ox::ox_list<ox::ox_3dvector> vertices;
    for (const plan_point& p : contour) {
        vertices.push_right(flat(p));
    }
    return vertices;
}

ox::ox_polygon polygon_of(const description& d) {
    ox::ox_polygon polygon(ox::ox_3dvector(0, 0, 0), ox::ox_3dvector(0, 0, 1));
    polygon.add_contour(flat(d.outline.points));
    for (const contour& hole : d.holes) {
        polygon.add_contour(flat(hole.points));
    }
    return polygon;
}

} // namespace slab
