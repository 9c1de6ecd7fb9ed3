#include <examples/building/floor_plan.h>

namespace building {

namespace {

/// Metres above the floor: through the windows, and below their sills.
constexpr double cut_height = 1.2;
constexpr double foot_height = 0.05;

const ox::ox_3dvector up(0, 0, 1);

ox::ox_3dvector point_at(double level) {
    return {0, 0, static_cast<float>(level)};
}

/// Adds the outlines in which a level plane cuts the solid.
void add_section(polygons& list, ox::ox_solid& solid, double level) {
    for (ox::ox_polygon* section : solid.intersect_by_plane(point_at(level), up)) {
        list.emplace_back(section);
    }
}

/// Adds the shadow that the solid throws straight down onto a level plane.
void add_projection(polygons& list, ox::ox_solid& solid, double level) {
    list.emplace_back(solid.project_on_plane(point_at(level), up));
}

} // namespace

floor_plan plan_of(const description& d, std::vector<element>& elements, std::size_t storey) {
    const double level = d.storeys[storey].level;
    const bool has_next = storey + 1 < d.storeys.size();
    floor_plan plan;
    for (element& e : elements) {
        if (e.kind == element_kind::walls && e.storey == storey) {
            add_projection(plan.footprint, e.solid, level);
            add_section(plan.foot, e.solid, level + foot_height);
            add_section(plan.cut, e.solid, level + cut_height);
        } else if (e.kind == element_kind::slab && e.level == level) {
            add_projection(plan.floor, e.solid, level);
        } else if (e.kind == element_kind::slab && has_next &&
                   e.level == d.storeys[storey + 1].level) {
            add_projection(plan.overhead, e.solid, level);
        }
    }
    return plan;
}

} // namespace building
