#include <examples/support/flat_drawing.h>

#include <examples/support/stroke_font.h>
#include <examples/support/utf8.h>

#include <GL/gl.h>

#include <cmath>
#include <string_view>

namespace ox_examples {

namespace {

constexpr int nb_circle_corners = 48;

pixel_point on_circle(const pixel_point& centre, double radius, int corner) {
    const double angle = 2 * 3.14159265358979 * corner / nb_circle_corners;
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

void put_vertices(const std::vector<pixel_point>& points) {
    for (const pixel_point& p : points) {
        glVertex2d(p.x, p.y);
    }
}

} // namespace

void begin_flat_drawing(int width, int height) {
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0, width, height, 0, -1, 1);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glDisable(GL_LIGHTING);
    glDisable(GL_DEPTH_TEST);
    glEnable(GL_MULTISAMPLE);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void set_colour(const colour& c) {
    glColor4f(c.red, c.green, c.blue, c.alpha);
}

void draw_line(const std::vector<pixel_point>& points, double width) {
    glLineWidth(static_cast<float>(width));
    glBegin(GL_LINE_STRIP);
    put_vertices(points);
    glEnd();
}

void draw_loop(const std::vector<pixel_point>& points, double width) {
    glLineWidth(static_cast<float>(width));
    glBegin(GL_LINE_LOOP);
    put_vertices(points);
    glEnd();
}

void fill_rectangle(const pixel_point& top_left, double width, double height) {
    glRectd(top_left.x, top_left.y, top_left.x + width, top_left.y + height);
}

void fill_disc(const pixel_point& centre, double radius) {
    glBegin(GL_TRIANGLE_FAN);
    for (int i = 0; i < nb_circle_corners; ++i) {
        const pixel_point p = on_circle(centre, radius, i);
        glVertex2d(p.x, p.y);
    }
    glEnd();
}

void draw_ring(const pixel_point& centre, double radius, double width) {
    glBegin(GL_TRIANGLE_STRIP);
    for (int i = 0; i <= nb_circle_corners; ++i) {
        const pixel_point inner = on_circle(centre, radius - width / 2, i);
        const pixel_point outer = on_circle(centre, radius + width / 2, i);
        glVertex2d(inner.x, inner.y);
        glVertex2d(outer.x, outer.y);
    }
    glEnd();
}

void draw_text(const std::string& text, const pixel_point& start, double height) {
    const double unit = height / stroke_font_cap_height;
    double left = start.x;
    for (std::string_view rest = text; !rest.empty();) {
        const std::string character = first_characters(rest, 1);
        rest.remove_prefix(character.size());
        for (const stroke& line : strokes_of(character[0])) {
            std::vector<pixel_point> points;
            for (const stroke_point& p : line) {
                points.push_back({left + p.x * unit, start.y - p.y * unit});
            }
            draw_line(points, height / 8);
        }
        left += stroke_font_advance * unit;
    }
}

double text_width(const std::string& text, double height) {
    const double nb_units = stroke_font_advance * static_cast<double>(count_characters(text)) -
                            (text.empty() ? 0 : stroke_font_gap);
    return nb_units * height / stroke_font_cap_height;
}

void draw_tag(const std::string& text, const pixel_point& centre, double height, const colour& ink,
              const colour& paper) {
    const double width = text_width(text, height);
    const double margin = 0.45 * height;
    set_colour(paper);
    fill_rectangle({centre.x - width / 2 - margin, centre.y - height / 2 - margin},
                   width + 2 * margin, height + 2 * margin);
    set_colour(ink);
    draw_text(text, {centre.x - width / 2, centre.y + height / 2}, height);
}

} // namespace ox_examples
