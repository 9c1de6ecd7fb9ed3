// Views of solids, in the light of a sun.

#include <examples/building/assembly.h>
#include <examples/gallery/pictures.h>
#include <examples/gallery/renderer.h>
#include <examples/gallery/shapes.h>
#include <examples/support/png_file.h>
#include <examples/town/remodelling.h>
#include <examples/town/survey.h>

#include <ox/display/ox_camera.h>
#include <ox/solid/ox_csg.h>

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

using ox::ox_3dvector;
using ox::ox_color;
using ox::ox_solid;

const ox_color plaster(0.94f, 0.92f, 0.86f);
const ox_color concrete(0.72f, 0.73f, 0.75f);
const ox_color tiles(0.72f, 0.36f, 0.26f);
const ox_color blue(0.36f, 0.58f, 0.80f);
const ox_color orange(0.93f, 0.66f, 0.33f);
const ox_color green(0.50f, 0.74f, 0.52f);

void write(const scene& drawn, const std::string& path, int width, int height, double bearing,
           double elevation) {
    ox_examples::write_png(path, drawn.render(width, height, bearing, elevation));
}

ox_solid moved(const ox_solid& solid, const ox_3dvector& way) {
    ox::ox_list<ox_3dvector> vertices = solid.get_vertices();
    for (ox_3dvector& v : vertices) {
        v += way;
    }
    ox_solid result = solid;
    result.set_vertices(vertices);
    return result;
}

std::vector<building::element> elements_of(const std::string& path) {
    const building::description d = building::read_description(path);
    ox_examples::progress steps(building::count_steps(d));
    return building::assemble(d, steps);
}

const ox_color& color_of(building::element_kind kind) {
    return kind == building::element_kind::walls  ? plaster
           : kind == building::element_kind::slab ? concrete
                                                  : tiles;
}

void draw_building(const std::string& description, const std::string& path, double bearing) {
    scene drawn;
    for (building::element& e : elements_of(description)) {
        drawn.add(e.solid, color_of(e.kind));
    }
    write(drawn, path, 1200, 800, bearing, 22);
}

ox_solid combined(const ox_solid& a, const ox_solid& b,
                  void (ox::ox_csg::*change)(const ox_solid&)) {
    ox::ox_csg csg;
    csg.unites(a);
    (csg.*change)(b);
    csg.compute();
    return csg.get_solid();
}

void draw_solid_booleans(const folders& to) {
    const ox_solid block = box(0, 0, 0, 3, 3, 3);
    const ox_solid bore = cylinder({1.5f, -0.6f, 1.9f}, {0, 4.2f, 0}, 0.9f, 48);
    scene drawn;
    const auto place = [&](int i, const ox_solid& solid, const ox_color& color) {
        ox_solid there = moved(solid, {4.6f * static_cast<float>(i), 0, 0});
        drawn.add(there, color);
    };
    place(0, combined(block, bore, &ox::ox_csg::unites), blue);
    place(1, combined(block, bore, &ox::ox_csg::substracts), green);
    place(2, combined(block, bore, &ox::ox_csg::intersects), orange);
    write(drawn, to.gallery + "/solid_booleans.png", 1200, 420, -14, 24);
}

void draw_wall(const folders& to) {
    ox::ox_csg csg;
    csg.unites(box(0, 0, 0, 12, 0.4f, 3.4f));
    csg.unites(box(7.6f, -3, 0, 0.4f, 6, 3.4f));
    csg.substracts(box(0.8f, 0, 1, 1.8f, 0.4f, 1.5f));
    csg.substracts(box(9.2f, 0, 1, 1.8f, 0.4f, 1.5f));
    csg.substracts(cylinder({3.9f, -1, 2.0f}, {0, 3, 0}, 0.6f, 48));
    contour arch = flat({5.4f, 0, 6.8f, 0});
    for (int i = 0; i <= 20; ++i) {
        const float angle = 3.14159265f * static_cast<float>(i) / 20.0f;
        arch.push_right({6.1f + 0.7f * std::cos(angle), 0, 1.8f + 0.7f * std::sin(angle)});
    }
    ox::ox_polygon profile;
    profile.add_contour(arch);
    profile.reverse();
    ox_solid door;
    door.extrusion(profile, {0, 0.4f, 0});
    csg.substracts(door);
    csg.clips({0, 0, 3.4f}, {0.06f, 0, 1.0f});
    csg.compute();
    ox_solid wall = csg.get_solid();
    scene drawn;
    drawn.add(wall, plaster);
    write(drawn, to.gallery + "/wall.png", 1200, 620, -24, 20);
}

/// The same prism from a contour that runs counter-clockwise, and from one that does not.
void draw_inside_out(const folders& to) {
    const contour outline = flat({0, 0, 3, 0, 3, 2, 1.5f, 3, 0, 2});
    scene drawn;
    for (const bool turned : {false, true}) {
        ox_solid solid = moved(prism(turned ? reversed(outline) : outline, 0, 1.8f),
                               {turned ? 4.6f : 0.0f, 0, 0});
        drawn.add(solid, blue);
    }
    write(drawn, to.figures + "/inside_out.png", 900, 400, -25, 28);
}

void draw_cut_house(const folders& to, const std::string& house) {
    scene drawn;
    for (building::element& e : elements_of(house)) {
        ox::ox_csg csg; // the corner towards the viewer is cut away, and everything above 4.4 m
        csg.unites(e.solid);
        csg.clips({0, 0, 4.2f}, {0, 0, 1});
        if (!csg.compute()) {
            continue;
        }
        ox_solid rest = csg.get_solid();
        drawn.add(rest, color_of(e.kind));
    }
    write(drawn, to.gallery + "/section_view.png", 1200, 760, -32, 36);
}

/// The face under a pixel of a camera, and the ray that found it.
void draw_pick(const folders& to) {
    ox::ox_csg csg;
    csg.unites(box(0, 0, 0, 8, 6, 6));
    csg.clips({4, 0, 6}, {-3, 0, 4});
    csg.clips({4, 0, 6}, {3, 0, 4});
    csg.unites(box(6, 1, 0, 6, 4, 2.4f)); // after the slopes, which do not cut it
    csg.compute();
    ox_solid house = csg.get_solid();
    const ox_3dvector eye(1, -9, 4.5f);
    ox::ox_camera camera(eye, {5, 2, 3}, {0, 0, 1}, 50, 800, 600);
    const ox_3dvector ray = camera.get_ray_direction(310, 180);
    int picked = -1;
    float nearest = 0;
    ox_3dvector place;
    for (int i = 0; i < house.get_faces().size(); ++i) {
        ox_3dvector hit;
        float distance = 0;
        if (house.get_faces()[i]->intersect_by_ray(eye, ray, hit, distance) &&
            (picked < 0 || distance < nearest)) {
            picked = i, nearest = distance, place = hit;
        }
    }
    scene drawn;
    for (int i = 0; i < house.get_faces().size(); ++i) {
        ox_solid face;
        face.add_face(*house.get_faces()[i]);
        drawn.add(face, i == picked ? orange : plaster);
    }
    drawn.add_rod(eye, place, 0.06f, ox_color(0.8f, 0.2f, 0.15f));
    drawn.add_ball(eye, 0.28f, ox_color(0.25f, 0.3f, 0.35f));
    drawn.add_ball(place, 0.16f, ox_color(0.8f, 0.2f, 0.15f));
    write(drawn, to.gallery + "/camera_pick.png", 1200, 700, 38, 24);
}

void draw_projection(const folders& to) {
    ox::ox_csg csg;
    csg.unites(box(0, 0, 0, 4, 4, 9));
    csg.unites(box(4, 0, 0, 6, 4, 3));
    csg.unites(cylinder({8, 2, 3}, {0, 0, 2}, 1.2f, 40));
    csg.compute();
    ox_solid house = csg.get_solid();
    scene drawn;
    drawn.add(house, plaster);
    // The outline seen from above, below it; that seen from the east, beside it.
    const auto lay = [&](const ox_3dvector& point, const ox_3dvector& normal,
                         const ox_color& color) {
        ox::ox_polygon* outline = house.project_on_plane(point, normal);
        ox_solid sheet;
        sheet.extrusion(*outline, normal * 0.05f);
        drawn.add(sheet, color);
        delete outline;
    };
    lay({0, 0, -5}, {0, 0, 1}, blue);

    lay({14, 0, 0}, {-1, 0, 0}, green);
    write(drawn, to.gallery + "/projections.png", 1000, 760, -30, 22);
}

/// A surveyed building with what was measured of it.
struct measured_building {
    ox_solid solid;
    ox::ox_box box;
    double volume;
    bool open;
};

/// Those that stand above the ground and would not dwarf all others, by ascending volume.
std::vector<measured_building> measured(std::vector<town::surveyed> survey) {
    std::vector<measured_building> buildings;
    for (town::surveyed& s : survey) {
        const ox::ox_box box = s.solid.get_bounding_box();
        if (box.size.z > 1.0f && box.size.size() < 34.0f) {
            const bool open = s.solid.get_open_edges(town::survey_tolerance).size() > 0;
            buildings.push_back({s.solid, box, s.solid.get_volume(), open});
        }
    }
    std::sort(
        buildings.begin(), buildings.end(),
        [](const measured_building& a, const measured_building& b) { return a.volume < b.volume; });
    return buildings;
}

/// From pale to blue with the logarithm of the volume; open shells are red.
ox_color color_of(const measured_building& building) {
    if (building.open) {
        return ox_color(0.85f, 0.30f, 0.24f);
    }
    const float decades = static_cast<float>(std::log10(std::max(1.0, building.volume)));
    const float share = std::clamp((decades - 1.5f) / 2.5f, 0.0f, 1.0f);
    const ox_color low(0.95f, 0.91f, 0.78f), high(0.16f, 0.38f, 0.58f);
    return ox_color(low.r + share * (high.r - low.r), low.g + share * (high.g - low.g),
                    low.b + share * (high.b - low.b));
}

/// In rows of twelve, the smallest in front.
void draw_survey(const folders& to, const std::string& path) {
    scene drawn;
    constexpr float plot = 24.0f; // metres
    int number = 0;
    for (const measured_building& building : measured(town::read_survey(path))) {
        const ox_3dvector middle =
            building.box.origin + ox_3dvector(building.box.size.x, building.box.size.y, 0) * 0.5f;
        const ox_3dvector place(plot * static_cast<float>(number % 12),
                                plot * static_cast<float>(number / 12), 0);
        ox_solid there = moved(building.solid, place - middle);
        drawn.add(there, color_of(building));
        ++number;
    }
    write(drawn, to.gallery + "/survey.png", 1200, 620, -12, 30);
}

} // namespace

void draw_views(const folders& to, const std::string& house, const std::string& lodge,
                const std::string& survey) {
    draw_building(house, to.gallery + "/house.png", -32);
    draw_building(lodge, to.gallery + "/lodge_view.png", -4);
    draw_solid_booleans(to);
    draw_wall(to);
    draw_inside_out(to);
    draw_cut_house(to, house);
    draw_pick(to);
    draw_projection(to);
    draw_survey(to, survey);
}

} // namespace gallery
