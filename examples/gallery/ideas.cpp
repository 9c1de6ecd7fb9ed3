// What a polygon is, and what can be done with it.

#include <examples/gallery/pictures.h>
#include <examples/gallery/shapes.h>
#include <examples/gallery/sheet.h>

#include <cmath>

namespace gallery {

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;

void show(sheet& page, ox_polygon& polygon, const ox::ox_color& color) {
    page.fill(polygon, pale(color));
    page.outline(polygon, color);
}

void draw_contours(const folders& to) {
    const contour lake = rectangle(0, 0, 10, 8), island = regular(5, 4, 3, 6),
                  pond = rectangle(4, 3, 6, 5);
    sheet page(3, 1, 190, 150);
    page.panel(0, "added: three contours", -0.5, -0.5, 10.5, 8.5);
    for (const contour* c : {&lake, &island, &pond}) {
        page.run(*c, ink::line);
    }
    page.panel(1, "the region, by even-odd", -0.5, -0.5, 10.5, 8.5);
    ox_polygon water = region({lake, island, pond});
    show(page, water, ink::first);
    page.text(1.3, 1, "0: outline", ink::line, 0.1, 9.5);
    page.text(5, 6, "1: hole in 0", ink::line, 0.5, 9.5);
    page.text(5, 4, "2: in 1", ink::line, 0.5, 9.5);
    page.panel(2, "overlaps drop out", -0.5, -0.5, 10.5, 8.5);
    ox_polygon both = region({rectangle(0.5f, 0.5f, 6.5f, 5.5f), rectangle(4, 3, 9.5f, 7.5f)});
    show(page, both, ink::first);
    page.text(5.25, 4.25, "twice", ink::line, 0.5, 9.5);
    page.save(to.figures + "/contours", to.preview("contours"));
}

/// The eye of an arrow that points to the viewer, or its feathers.
void normal_sign(sheet& page, double x, double y, bool towards) {
    page.circle(x, y, page.units(8), ink::second);
    if (towards) {
        page.dot(x, y, ink::second, 3);
        return;
    }
    const double r = page.units(5.6);
    page.line(x - r, y - r, x + r, y + r, ink::second, 1.2);
    page.line(x - r, y + r, x + r, y - r, ink::second, 1.2);
}

void draw_direction(const folders& to) {
    const contour door = flat({2, 0, 4, 0, 4, 3.4f, 3.5f, 4.2f, 2.5f, 4.2f, 2, 3.4f});
    sheet page(2, 1, 220, 160);
    for (const bool turned : {false, true}) {
        const contour run = turned ? reversed(door) : door;
        page.panel(turned ? 1 : 0,
                   turned ? "clockwise: away from you" : "counter-clockwise: towards you", 0, -0.4,
                   6, 4.6);
        ox_polygon polygon;
        polygon.add_contour(run);
        page.fill(polygon, pale(ink::first));
        page.run(run, ink::first);
        normal_sign(page, 3, 2, polygon.get_normal().z > 0);
    }
    page.save(to.figures + "/direction", to.preview("direction"));
}

void draw_frame(const folders& to) {
    sheet page(2, 1, 220, 170);
    const contour outline = flat({1.2f, 0.6f, 5.4f, 1.2f, 4.6f, 4.2f, 1.8f, 3.6f});
    ox_polygon polygon = region({outline});
    page.panel(0, "the plane's point, and two axes", -0.6, -0.6, 6.4, 4.8);
    show(page, polygon, ink::first);
    page.arrow(0, 0, 2.2, 0, ink::second);
    page.arrow(0, 0, 0, 2.2, ink::second);
    page.text(2.35, 0, "dx", ink::second, 0.0);
    page.text(0, 2.5, "dy", ink::second);
    page.dot(0, 0, ink::second);
    page.text(0.15, -0.35, "get_point()", ink::line, 0.0, 9.5);
    page.panel(1, "vertices lie on a grid of 0.0001", -0.4, -0.4, 4.4, 3.0);
    for (int x = 0; x <= 4; ++x) {
        for (int y = 0; y <= 2; ++y) {
            page.dot(x, y, ink::faint, 1.6);
        }
    }
    // In units of the grid: where a vertex was given, and where the merge leaves it.
    ox_polygon fine = region({flat({0.00013f, 0.00024f, 1, 0, 1, 1}), flat({3, 3, 4, 3, 4, 4})});
    const ox_3dvector* kept = &fine.get_contour_vertices()[0];
    for (const ox_3dvector& v : fine.get_contour_vertices()) {
        kept = v.x + v.y < kept->x + kept->y ? &v : kept;
    }
    page.arrow(1.3, 2.4, double{kept->x} * 1e4, double{kept->y} * 1e4, ink::first);
    page.dot(1.3, 2.4, ink::wrong);
    page.dot(double{kept->x} * 1e4, double{kept->y} * 1e4, ink::first);
    page.text(1.5, 2.5, "given (0.00013, 0.00024)", ink::wrong, 0.0, 9.5);
    page.text(1.2, 1.72,
              "kept (" + number(double{kept->x}, 4) + ", " + number(double{kept->y}, 4) + ")",
              ink::first, 0.0, 9.5);
    page.dimension(2, 0, 3, 0, -8, "0.0001");
    page.save(to.figures + "/frame", to.preview("frame"));
}

void draw_booleans(const folders& to) {
    ox_polygon a = region({rectangle(0, 0, 5, 4), regular(1.6f, 2, 0.9f, 24)});
    ox_polygon b = region({regular(5, 3.2f, 2.4f, 48)});
    sheet page(4, 1, 140, 120);
    const auto panel = [&](int i, const char* words) {
        page.panel(i, words, -0.3, -0.3, 7.7, 5.9);
    };
    panel(0, "a and b");
    page.fill(a, pale(ink::first));
    page.fill(b, pale(ink::second), 0.6);
    page.outline(a, ink::first);
    page.outline(b, ink::second);
    page.text(3.4, 0.7, "a", ink::first, 0.5, 12, true);
    page.text(6, 3.4, "b", ink::second, 0.5, 12, true);
    const auto after = [&](int i, const char* words,
                           void (ox_polygon::*change)(const ox_polygon&)) {
        panel(i, words);
        ox_polygon result = a;
        (result.*change)(b);
        show(page, result, ink::result);
    };
    after(1, "a.unites(b)", &ox_polygon::unites);
    after(2, "a.substracts(b)", &ox_polygon::substracts);
    after(3, "a.intersects(b)", &ox_polygon::intersects);
    page.save(to.gallery + "/polygon_booleans", to.preview("polygon_booleans"));
}

void draw_offset(const folders& to) {
    const ox_polygon shape = region(
        {flat({0, 0, 8, 0, 8, 3, 5, 3, 5, 6, 2.5f, 7.5f, 0, 6}), rectangle(1.5f, 1.5f, 3.5f, 4)});
    const struct {
        const char* words;
        int join;
    } joins[] = {{"join_square", ox_polygon::join_square},
                 {"join_round", ox_polygon::join_round},
                 {"join_miter", ox_polygon::join_miter}};
    sheet page(3, 1, 180, 170);
    for (int i = 0; i < 3; ++i) {
        page.panel(i, joins[i].words, -1.6, -1.6, 9.6, 9.2);
        for (const float distance : {1.2f, 0.8f, 0.4f, 0.0f, -0.4f, -0.8f}) {
            ox_polygon moved = shape;
            moved.offset(distance, joins[i].join);
            const bool given = distance == 0.0f;
            if (given) {
                page.fill(moved, pale(ink::first), 0.5);
            }
            page.outline(moved,
                         given          ? ink::line
                         : distance > 0 ? ink::second
                                        : ink::first,
                         given ? 2.0 : 1.0);
        }
    }
    page.save(to.gallery + "/offsets", to.preview("offsets"));
}

void draw_normalisation(const folders& to) {
    contour star;
    for (int i = 0; i < 7; ++i) {
        star.push_right(regular(4, 4, 3.7f, 7, 1.5708f)[i * 3 % 7]);
    }
    sheet page(3, 1, 170, 160);
    page.panel(0, "a contour that crosses itself", 0, 0, 8, 8);
    page.run(star, ink::line);
    ox_polygon result = region({star});
    page.panel(1, std::to_string(result.get_contour_sizes().size()) + " contours that do not", 0, 0,
               8, 8);
    show(page, result, ink::result);
    for (const ox_3dvector& v : result.get_contour_vertices()) {
        page.dot(double{v.x}, double{v.y}, ink::result, 2.0);
    }
    page.panel(2, "its triangles", 0, 0, 8, 8);
    const auto& v = result.get_tesselation_vertices();
    const auto& t = result.get_tesselation_triangles();
    for (int i = 0; i + 2 < t.size(); i += 3) {
        const contour triangle =
            ox::ox_make_list({v[static_cast<int>(t[i])], v[static_cast<int>(t[i + 1])],
                              v[static_cast<int>(t[i + 2])]});
        page.fill_triangle(triangle[0], triangle[1], triangle[2],
                           pale(i / 3 % 2 == 0 ? ink::result : ink::first));
        page.path(triangle, true, ink::line, 0.7);
    }
    page.save(to.gallery + "/normalisation", to.preview("normalisation"));
}

void draw_triangulation(const folders& to) {
    ox_polygon plate = region({flat({0, 0, 12, 0, 12, 5, 9, 8, 0, 8}), regular(3, 4, 1.6f, 20),
                               rectangle(6, 1.5f, 8, 3.5f), regular(8, 5.5f, 1.1f, 6),
                               rectangle(9.5f, 1.5f, 11, 4)});
    sheet page(2, 1, 260, 180);
    page.panel(0, "five contours", -0.3, -0.3, 12.3, 8.3);
    show(page, plate, ink::first);
    const auto& v = plate.get_tesselation_vertices();
    const auto& t = plate.get_tesselation_triangles();
    page.panel(1, std::to_string(t.size() / 3) + " triangles, the place of a label", -0.3, -0.3,
               12.3, 8.3);
    page.fill(plate, pale(ink::result));
    for (int i = 0; i + 2 < t.size(); i += 3) {
        page.path(ox::ox_make_list({v[static_cast<int>(t[i])], v[static_cast<int>(t[i + 1])],
                                    v[static_cast<int>(t[i + 2])]}),
                  true, ink::result, 0.7);
    }
    const ox_3dvector center = plate.get_best_center();
    page.dot(double{center.x}, double{center.y}, ink::wrong, 4);
    page.save(to.gallery + "/triangulation", to.preview("triangulation"));
}

void draw_distributions(const folders& to) {
    ox_polygon lawn = region({regular(5, 4, 3.8f, 5, 0.3f), regular(5, 4, 1.3f, 24)});
    sheet page(3, 1, 170, 150);
    const auto panel = [&](int i, const char* words) {
        page.panel(i, words, 0.8, 0, 9.2, 8);
        show(page, lawn, ink::faint);
    };
    panel(0, "regular_distribution(0.5)");
    for (const ox_3dvector& p : lawn.regular_distribution(0.5f)) {
        page.dot(double{p.x}, double{p.y}, ink::first, 1.5);
    }
    panel(1, "random_distribution(400, 1)");
    for (const ox_3dvector& p : lawn.random_distribution(400, 1)) {
        page.dot(double{p.x}, double{p.y}, ink::second, 1.5);
    }
    panel(2, "fill_regular_grid, margin 0.3");
    bool cells[20 * 20];
    lawn.fill_regular_grid(cells, {0, 0, 0}, {0.5f, 0, 0}, {0, 0.5f, 0}, 20, 20, 0.3f);
    for (int i = 0; i < 400; ++i) {
        if (cells[i]) {
            const double x = 0.5 * (i % 20), y = 0.5 * (i / 20);
            page.box(x + 0.05, y + 0.05, x + 0.45, y + 0.45, ink::result);
        }
    }
    page.save(to.gallery + "/distributions", to.preview("distributions"));
}

} // namespace

void draw_polygon_ideas(const folders& to) {
    draw_contours(to);
    draw_direction(to);
    draw_frame(to);
    draw_booleans(to);
    draw_offset(to);
    draw_normalisation(to);
    draw_triangulation(to);
    draw_distributions(to);
}

} // namespace gallery
