#include <examples/gallery/sheet.h>

#include <cairo-svg.h>
#include <cairo.h>

#include <cmath>
#include <stdexcept>

namespace gallery {

namespace {

constexpr double margin = 14.0;  ///< points around and between panels
constexpr double caption = 24.0; ///< points under a panel
constexpr double pi = 3.14159265358979;

void require(cairo_status_t status, const std::string& path) {
    if (status != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(path + ": " + cairo_status_to_string(status));
    }
}

} // namespace

ox::ox_color pale(const ox::ox_color& c) {
    return ox::ox_color(0.78f + 0.22f * c.r, 0.78f + 0.22f * c.g, 0.78f + 0.22f * c.b);
}

sheet::sheet(int columns_, int rows, double panel_width_, double panel_height_)
    : columns(columns_), panel_width(panel_width_), panel_height(panel_height_),
      width(columns_ * (panel_width_ + margin) + margin),
      height(rows * (panel_height_ + caption + margin) + margin) {
    const cairo_rectangle_t extent = {0, 0, width, height};
    surface = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extent);
    cr = cairo_create(surface);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_paint(cr);
    cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
}

sheet::~sheet() {
    cairo_destroy(cr);
    cairo_surface_destroy(surface);
}

void sheet::set(const ox::ox_color& c, double opacity) {
    cairo_set_source_rgba(cr, double{c.r}, double{c.g}, double{c.b}, opacity);
}

void sheet::panel(int number, const std::string& words, double x0, double y0, double x1,
                  double y1) {
    const double corner_x = margin + (number % columns) * (panel_width + margin);
    const double corner_y = margin + (number / columns) * (panel_height + caption + margin);
    scale = std::fmin(panel_width / (x1 - x0), panel_height / (y1 - y0));
    left = corner_x + (panel_width - scale * (x1 - x0)) / 2;
    bottom = corner_y + panel_height - (panel_height - scale * (y1 - y0)) / 2;
    x_min = x0;
    y_min = y0;
    text(x0 + (x1 - x0) / 2, y0 - units(bottom > 0 ? corner_y + panel_height + 17 - bottom : 0),
         words, ink::line, 0.5, 12.0);
}

void sheet::trace(ox::ox_polygon& region) {
    cairo_new_path(cr);
    int vertex = 0;
    for (const unsigned int size : region.get_contour_sizes()) {
        for (unsigned int i = 0; i < size; ++i, ++vertex) {
            const ox::ox_3dvector& v = region.get_contour_vertices()[vertex];
            (i == 0 ? cairo_move_to : cairo_line_to)(cr, px(double{v.x}), py(double{v.y}));
        }
        cairo_close_path(cr);
    }
}

void sheet::fill(ox::ox_polygon& region, const ox::ox_color& color, double opacity) {
    trace(region);
    set(color, opacity);
    cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill(cr);
}

void sheet::outline(ox::ox_polygon& region, const ox::ox_color& color, double line_width) {
    trace(region);
    set(color);
    cairo_set_line_width(cr, line_width);
    cairo_stroke(cr);
}

void sheet::fill_triangle(const ox::ox_3dvector& a, const ox::ox_3dvector& b,
                          const ox::ox_3dvector& c, const ox::ox_color& color) {
    cairo_new_path(cr);
    for (const ox::ox_3dvector* v : {&a, &b, &c}) {
        cairo_line_to(cr, px(double{v->x}), py(double{v->y}));
    }
    set(color);
    cairo_fill(cr);
}

void sheet::box(double x0, double y0, double x1, double y1, const ox::ox_color& color) {
    set(color);
    cairo_rectangle(cr, px(x0), py(y1), scale * (x1 - x0), scale * (y1 - y0));
    cairo_fill(cr);
}

void sheet::path(const ox::ox_list<ox::ox_3dvector>& points, bool closed, const ox::ox_color& color,
                 double line_width, bool dashed) {
    cairo_new_path(cr);
    for (const ox::ox_3dvector& v : points) {
        cairo_line_to(cr, px(double{v.x}), py(double{v.y}));
    }
    if (closed) {
        cairo_close_path(cr);
    }
    const double dash[] = {4.0, 3.0};
    cairo_set_dash(cr, dash, dashed ? 2 : 0, 0);
    set(color);
    cairo_set_line_width(cr, line_width);
    cairo_stroke(cr);
    cairo_set_dash(cr, dash, 0, 0);
}

void sheet::line(double x0, double y0, double x1, double y1, const ox::ox_color& color,
                 double line_width, bool dashed) {
    path(ox::ox_make_list<ox::ox_3dvector>({{static_cast<float>(x0), static_cast<float>(y0), 0},
                                            {static_cast<float>(x1), static_cast<float>(y1), 0}}),
         false, color, line_width, dashed);
}

void sheet::arrow(double x0, double y0, double x1, double y1, const ox::ox_color& color,
                  double line_width) {
    const double angle = std::atan2(y1 - y0, x1 - x0);
    const double head = units(8.0);
    line(x0, y0, x1 - 0.7 * head * std::cos(angle), y1 - 0.7 * head * std::sin(angle), color,
         line_width);
    cairo_new_path(cr);
    for (const double turn : {0.0, 0.38, -0.38}) {
        const double reach = turn == 0.0 ? 0.0 : head;
        cairo_line_to(cr, px(x1 - reach * std::cos(angle + turn)),
                      py(y1 - reach * std::sin(angle + turn)));
    }
    set(color);
    cairo_fill(cr);
}

void sheet::run(const ox::ox_list<ox::ox_3dvector>& contour, const ox::ox_color& color) {
    path(contour, true, color);
    for (int i = 0; i < contour.size(); ++i) {
        const ox::ox_3dvector& a = contour[i];
        const ox::ox_3dvector& b = contour[(i + 1) % contour.size()];
        const ox::ox_3dvector m = (a + b) * 0.5f;
        ox::ox_3dvector d = b - a;
        d.normalize();
        const double back = units(4.0);
        arrow(double{m.x} - back * double{d.x}, double{m.y} - back * double{d.y},
              double{m.x} + back * double{d.x}, double{m.y} + back * double{d.y}, color);
    }
}

void sheet::dot(double x, double y, const ox::ox_color& color, double radius) {
    set(color);
    cairo_new_path(cr);
    cairo_arc(cr, px(x), py(y), radius, 0, 2 * pi);
    cairo_fill(cr);
}

void sheet::circle(double x, double y, double radius, const ox::ox_color& color, bool dashed) {
    const double dash[] = {4.0, 3.0};
    cairo_set_dash(cr, dash, dashed ? 2 : 0, 0);
    set(color);
    cairo_set_line_width(cr, 1.2);
    cairo_new_path(cr);
    cairo_arc(cr, px(x), py(y), radius * scale, 0, 2 * pi);
    cairo_stroke(cr);
    cairo_set_dash(cr, dash, 0, 0);
}

void sheet::text(double x, double y, const std::string& words, const ox::ox_color& color,
                 double align, double size, bool strong) {
    cairo_select_font_face(cr, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                           strong ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cr, size);
    cairo_text_extents_t extents;
    cairo_text_extents(cr, words.c_str(), &extents);
    set(color);
    cairo_move_to(cr, px(x) - align * extents.x_advance, py(y) + 0.36 * size);
    cairo_show_text(cr, words.c_str());
}

void sheet::dimension(double x0, double y0, double x1, double y1, double offset,
                      const std::string& words) {
    const double angle = std::atan2(y1 - y0, x1 - x0);
    const double nx = -std::sin(angle) * units(offset), ny = std::cos(angle) * units(offset);
    const double tx = (std::cos(angle) + -std::sin(angle)) * units(3.5);
    const double ty = (std::sin(angle) + std::cos(angle)) * units(3.5);
    line(x0 + nx, y0 + ny, x1 + nx, y1 + ny, ink::line, 0.7);
    for (const auto& end : {std::pair<double, double>{x0, y0}, {x1, y1}}) {
        line(end.first + nx - tx, end.second + ny - ty, end.first + nx + tx, end.second + ny + ty,
             ink::line, 0.9);
    }
    const double away = units(offset < 0 ? -8.0 : 8.0);
    const double mx = (x0 + x1) / 2 + nx - std::sin(angle) * away;
    const double my = (y0 + y1) / 2 + ny + std::cos(angle) * away;
    cairo_save(cr);
    cairo_translate(cr, px(mx), py(my));
    cairo_rotate(cr, std::fabs(angle) > pi / 2 + 0.01 ? pi - angle : -angle);
    cairo_translate(cr, -px(mx), -py(my));
    text(mx, my, words, ink::line, 0.5, 9.5);
    cairo_restore(cr);
}

void sheet::scale_bar(double x, double y, double length, const std::string& words) {
    line(x, y, x + length, y, ink::line, 1.6);
    for (const double end : {x, x + length}) {
        line(end, y - units(3), end, y + units(3), ink::line, 1.2);
    }
    text(x + length + units(5), y, words, ink::line, 0.0, 9.5);
}

void sheet::save(const std::string& stem, const std::string& preview) const {
    const std::string path = stem + ".svg";
    cairo_surface_t* svg = cairo_svg_surface_create(path.c_str(), width, height);
    cairo_t* to = cairo_create(svg);
    cairo_set_source_surface(to, surface, 0, 0);
    cairo_paint(to);
    require(cairo_status(to), path);
    cairo_destroy(to);
    cairo_surface_finish(svg);
    require(cairo_surface_status(svg), path);
    cairo_surface_destroy(svg);
    if (preview.empty()) {
        return;
    }
    const int factor = 2;
    cairo_surface_t* png =
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, int(width * factor), int(height * factor));
    to = cairo_create(png);
    cairo_scale(to, factor, factor);
    cairo_set_source_surface(to, surface, 0, 0);
    cairo_paint(to);
    cairo_destroy(to);
    require(cairo_surface_write_to_png(png, (preview + ".png").c_str()), preview);
    cairo_surface_destroy(png);
}

} // namespace gallery
