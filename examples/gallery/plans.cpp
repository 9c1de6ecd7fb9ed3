// Plans: a storey, a slab with its beams, curves.

#include <examples/building/assembly.h>
#include <examples/building/floor_plan.h>
#include <examples/gallery/pictures.h>
#include <examples/gallery/shapes.h>
#include <examples/gallery/sheet.h>

#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/structure/ox_loadshare.h>

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;

/// The floor of a house: rooms between walls, cut out of the outline.
struct house_plan {
    ox_polygon walls = region({rectangle(0, 0, 11, 8)});
    std::vector<std::pair<std::string, ox_polygon>> rooms;

    void add_room(const std::string& name, const contour& outline) {
        rooms.emplace_back(name, region({outline}));
        walls.substracts(rooms.back().second);
    }
    void open(const contour& gap) { walls.substracts(region({gap})); }
};

house_plan plan_of_house() {
    house_plan plan;
    plan.add_room("Living",
                  flat({0.3f, 0.3f, 6.3f, 0.3f, 6.3f, 4.0f, 3.6f, 4.0f, 3.6f, 7.7f, 0.3f, 7.7f}));
    plan.add_room("Kitchen", rectangle(6.5f, 0.3f, 10.7f, 3.4f));
    plan.add_room("Hall",
                  flat({3.8f, 4.2f, 6.5f, 4.2f, 6.5f, 3.6f, 8.0f, 3.6f, 8.0f, 7.7f, 3.8f, 7.7f}));
    plan.add_room("Bath", rectangle(8.2f, 3.6f, 10.7f, 7.7f));
    for (const contour& gap :
         {rectangle(5.2f, 7.6f, 6.2f, 8.1f), rectangle(3.5f, 4.6f, 3.9f, 5.5f),
          rectangle(6.9f, 3.3f, 7.8f, 3.7f), rectangle(7.9f, 4.0f, 8.3f, 4.8f),
          rectangle(1.3f, -0.1f, 3.6f, 0.4f), rectangle(7.6f, -0.1f, 9.4f, 0.4f),
          rectangle(10.6f, 5.0f, 11.1f, 6.0f), rectangle(-0.1f, 4.0f, 0.4f, 6.0f)}) {
        plan.open(gap);
    }
    return plan;
}

/// A leaf and its swing: hinged at a point, open along one direction and closed along another.
void draw_door(sheet& page, double x, double y, double open, double closed, double width) {
    contour swing;
    for (int i = 0; i <= 12; ++i) {
        const double angle = (open + (closed - open) * i / 12) * 3.14159265 / 180;
        swing.push_right({static_cast<float>(x + width * std::cos(angle)),
                          static_cast<float>(y + width * std::sin(angle)), 0});
    }
    page.path(swing, false, ink::faint, 0.8);
    page.line(x, y, double{swing[0].x}, double{swing[0].y}, ink::line, 1.6);
}

void draw_window(sheet& page, double x0, double y0, double x1, double y1) {
    page.box(x0, y0, x1, y1, ox::ox_color(1.0f));
    const bool level = x1 - x0 > y1 - y0;
    for (const double part : {0.0, 0.5, 1.0}) {
        const double x = x0 + part * (x1 - x0), y = y0 + part * (y1 - y0);
        level ? page.line(x0, y, x1, y, ink::line, 0.8) : page.line(x, y0, x, y1, ink::line, 0.8);
    }
}

void draw_floor_plan(const folders& to) {
    house_plan plan = plan_of_house();
    sheet page(1, 1, 560, 440);
    page.panel(0, "a floor plan: walls by booleans, labels at get_best_center()", -1.2, -1.5, 12.2,
               9.2);
    page.box(0, 0, 11, 8, ox::ox_color(0.97f, 0.96f, 0.93f)); // the floor, under open doors too
    for (auto& [name, room] : plan.rooms) {
        const ox_3dvector at = room.get_best_center();
        page.text(double{at.x}, double{at.y} + page.units(8), name, ink::line, 0.5, 12, true);
        page.text(double{at.x}, double{at.y} - page.units(8),
                  number(static_cast<double>(room.get_area()), 2) + " m\u00b2", ink::line, 0.5,
                  10.5);
    }
    page.fill(plan.walls, ox::ox_color(0.27f, 0.30f, 0.33f));
    draw_window(page, 1.3, 0, 3.6, 0.3);
    draw_window(page, 7.6, 0, 9.4, 0.3);
    draw_window(page, 10.7, 5, 11, 6);
    draw_window(page, 0, 4, 0.3, 6);
    draw_door(page, 5.2, 7.7, 270, 360, 1.0);
    draw_door(page, 3.6, 4.6, 180, 90, 0.9);
    draw_door(page, 6.9, 3.4, 270, 360, 0.9);
    draw_door(page, 8.2, 4.0, 0, 90, 0.8);
    for (int i = 0; i < 9; ++i) { // the stairs, from the door up
        page.line(6.9, 5.3 + 0.27 * i, 8.0, 5.3 + 0.27 * i, ink::faint, 0.9);
    }
    page.line(6.9, 5.3, 6.9, 7.46, ink::faint, 0.9);
    page.arrow(7.45, 5.1, 7.45, 7.5, ink::faint, 1.0);
    page.dimension(0, 0, 11, 0, -24, "11.00");
    page.dimension(0, 0, 0, 8, 24, "8.00");
    page.scale_bar(0, -1.25, 2, "2 m");
    page.arrow(11.75, 7.2, 11.75, 8.4, ink::line, 1.6);
    page.text(11.75, 8.7, "N", ink::line, 0.5, 12, true);
    page.save(to.gallery + "/floor_plan", to.preview("floor_plan"));
}

struct beam {
    double x0, y0, x1, y1;
    int index;
};

void draw_slab(const folders& to) {
    const contour outline = flat({0, 0, 12, 0, 12, 5, 9, 8, 0, 8}),
                  well = rectangle(6.5f, 2.5f, 8.5f, 5);
    ox_polygon slab = region({outline, well});
    ox::ox_loadshare shares;
    shares.set_slab_geometry({0, 0, 1}, {1, 0, 0});
    shares.set_slab_weight(5.0f);
    shares.add_slab_contour(outline);
    shares.add_slab_contour(well);
    std::vector<beam> beams = {
        {0, 0, 0, 7, 0}, {3, 0, 3, 7, 0}, {6, 0, 6, 7, 0}, {9, 0, 9, 6.6, 0}, {12, 0, 12, 5, 0}};
    for (beam& b : beams) {
        b.index = shares.add_beam({static_cast<float>(b.x0), static_cast<float>(b.y0), 0},
                                  {static_cast<float>(b.x1), static_cast<float>(b.y1), 0});
    }
    shares.set_image_log(true);
    shares.compute_weights(0.04f);
    int width = 0, height = 0;
    const unsigned int* pixels = shares.get_image_log(width, height);
    sheet page(1, 1, 480, 330);
    page.panel(0, "a slab of 5 kN/m\u00b2 shared among its beams", -0.6, -0.9, 12.8, 8.6);
    page.fill(slab, ox::ox_color(0.98f, 0.88f, 0.87f)); // what no share covers
    std::vector<unsigned int> colors;
    const ox::ox_color tints[] = {pale(ink::first), pale(ink::second), pale(ink::result),
                                  ox::ox_color(0.93f, 0.89f, 0.96f),
                                  ox::ox_color(0.90f, 0.92f, 0.93f)};
    for (int row = 0; row < height; ++row) { // stretches of one colour, a row of the sweep each
        for (int x = 0, end = 0; x < width; x = end) {
            const unsigned int color = pixels[row * width + x];
            for (end = x; end < width && pixels[row * width + end] == color; ++end) {
            }
            if (color == 0xFFFFFFFFu || color == 0) {
                continue;
            }
            const auto found = std::find(colors.begin(), colors.end(), color);
            const std::size_t share = static_cast<std::size_t>(found - colors.begin());
            if (found == colors.end()) {
                colors.push_back(color);
            }
            page.box(0.04 * x, 0.04 * row - 0.02, 0.04 * end, 0.04 * row + 0.04, tints[share % 5]);
        }
    }
    page.outline(slab, ink::line);
    for (const beam& b : beams) {
        page.line(b.x0, b.y0, b.x1, b.y1, ink::line, 3.2);
        page.text(b.x0, -0.45, number(static_cast<double>(shares.get_weight(b.index)), 0) + " kN",
                  ink::line, 0.5, 10, true);
    }
    const double left_over = static_cast<double>(shares.get_uncarried_weight());
    page.text(4.5, 7.5, "carried by none: " + number(left_over, 0) + " kN", ink::wrong, 0.5, 10,
              true);
    page.text(7.5, 3.75, "stair well", ink::faint, 0.5, 10);
    page.save(to.gallery + "/slab", to.preview("slab"));
}

ox_3dvector weighted(const contour& points, const float* weights) {
    ox_3dvector sum;
    for (int i = 0; i < points.size(); ++i) {
        sum += points[i] * weights[i];
    }
    return sum;
}

void draw_curves(const folders& to) {
    const contour points = flat({0, 0, 1, 2.2f, 2.2f, 2.6f, 3.6f, 0.4f, 5, 1.4f, 6.4f, 3, 8, 0.8f});
    const int count = points.size(), degree = 3, knots = count + degree;
    ox::ox_bezier bezier(count);
    ox::ox_bspline bspline(degree, knots);
    ox::ox_list<ox::ox_2dvector> samples;
    for (const ox_3dvector& p : points) {
        samples.push_right({p.x, p.y});
    }
    ox::ox_cubic_spline spline(samples);
    contour curves[3];
    for (int i = 0; i <= 200; ++i) {
        const float t = static_cast<float>(i) / 200.0f, all = static_cast<float>(knots);
        curves[0].push_right(weighted(points, bezier.compute(t)));
        const float inner = (3.0f + t * (all - 6.0f) * 0.9999f) / all;
        curves[1].push_right(weighted(points, bspline.compute(inner)));
        curves[2].push_right({8 * t, spline.compute(8 * t), 0});
    }
    sheet page(1, 1, 520, 240);
    page.panel(0, "three curves of the same points", -0.3, -0.7, 8.4, 3.4);
    page.path(points, false, ink::faint, 0.8, true);
    const ox::ox_color colors[] = {ink::first, ink::second, ink::result};
    const char* names[] = {"ox_bezier", "ox_bspline, degree 3", "ox_cubic_spline"};
    for (int i = 0; i < 3; ++i) {
        page.path(curves[i], false, colors[i], 2.2);
        page.line(0.4 + 2.6 * i, -0.5, 0.8 + 2.6 * i, -0.5, colors[i], 2.2);
        page.text(0.9 + 2.6 * i, -0.5, names[i], ink::line, 0, 10);
    }
    for (const ox_3dvector& p : points) {
        page.dot(double{p.x}, double{p.y}, ink::line, 3);
    }
    page.save(to.gallery + "/curves", to.preview("curves"));
}

/// The lodge cut 1.2 m above each floor.
void draw_sections(const folders& to, const std::string& lodge) {
    const building::description d = building::read_description(lodge);
    ox_examples::progress steps(building::count_steps(d));
    std::vector<building::element> elements = building::assemble(d, steps);
    sheet page(2, 1, 270, 250);
    for (std::size_t storey = 0; storey < 2; ++storey) {
        building::floor_plan plan = building::plan_of(d, elements, storey);
        page.panel(static_cast<int>(storey),
                   storey == 0 ? "ground floor, cut at 1.2 m" : "upper floor, cut at 4.1 m", 6.3,
                   5.6, 21.5, 19.6);
        for (const auto& floor : plan.floor) {
            page.fill(*floor, ox::ox_color(0.97f, 0.96f, 0.93f));
        }
        for (const auto& foot : plan.foot) {
            page.fill(*foot, ox::ox_color(0.85f, 0.86f, 0.87f));
            page.outline(*foot, ink::faint, 0.7);
        }
        for (const auto& cut : plan.cut) {
            page.fill(*cut, ox::ox_color(0.27f, 0.30f, 0.33f));
        }
        page.scale_bar(6.8, 6.3, 2, "2 m");
    }
    page.save(to.gallery + "/sections", to.preview("sections"));
}

} // namespace

void draw_plans(const folders& to, const std::string& lodge) {
    draw_floor_plan(to);
    draw_slab(to);
    draw_curves(to);
    draw_sections(to, lodge);
}

} // namespace gallery
