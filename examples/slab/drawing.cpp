#include <examples/slab/drawing.h>

#include <examples/slab/legend.h>
#include <examples/slab/plan_view.h>

#include <examples/support/flat_drawing.h>
#include <examples/support/offscreen_context.h>

#include <GL/gl.h>

#include <cstdio>

namespace slab {

namespace {

using ox_examples::colour;
using ox_examples::pixel_point;

/// Pixels, and samples per pixel.
constexpr double plan_width = 900;
constexpr double plan_height = 720;
constexpr double title_height = 70;
constexpr double letter_height = 16;
constexpr int samples = 4;

const colour ink = {0.13f, 0.13f, 0.15f};
const colour idle = {0.55f, 0.55f, 0.58f};
const colour paper = {1, 1, 1};

/// Puts the picture of the shares where it belongs in the plan.
void draw_map(const share_map& map, const plan_view& view) {
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, map.width, map.height, 0, GL_RGBA,
                 GL_UNSIGNED_INT_8_8_8_8_REV, map.pixels.data());
    glEnable(GL_TEXTURE_2D);
    glColor4f(1, 1, 1, share_strength);
    glBegin(GL_QUADS);
    const int corners[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    for (const auto& corner : corners) {
        // Pixels are squares around the points that they stand for.
        const double along = map.left + (corner[0] * map.width - 0.5) * map.step;
        const double across = map.bottom + (corner[1] * map.height - 0.5) * map.step;
        const pixel_point p = view.place({along * map.along.x + across * map.across.x,
                                          along * map.along.y + across * map.across.y});
        glTexCoord2i(corner[0], corner[1]);
        glVertex2d(p.x, p.y);
    }
    glEnd();
    glDisable(GL_TEXTURE_2D);
    glDeleteTextures(1, &texture);
}

void draw_outlines(const description& d, const plan_view& view) {
    ox_examples::set_colour(ink);
    ox_examples::draw_loop(view.place(d.outline.points), 2);
    for (const contour& hole : d.holes) {
        ox_examples::draw_loop(view.place(hole.points), 2);
        ox_examples::draw_line(view.place({hole.points[0], hole.points[hole.points.size() / 2]}),
                               1);
    }
}

/// Beams that carry nothing in this direction stay in the background.
void draw_beams(const description& d, const span_loads& loads, const plan_view& view) {
    for (const bool carrying : {false, true}) {
        ox_examples::set_colour(carrying ? ink : idle);
        for (std::size_t i = 0; i < d.beams.size(); ++i) {
            if ((loads.loads[i] > 0) == carrying) {
                ox_examples::draw_line(view.place({d.beams[i].from, d.beams[i].to}),
                                       carrying ? 5 : 3);
            }
        }
    }
    for (std::size_t i = 0; i < d.beams.size(); ++i) {
        draw_badge(static_cast<int>(i) + 1, view.place(middle_of(d.beams[i])),
                   loads.loads[i] > 0 ? ink : idle);
    }
}

/// A double arrow along the span around `centre`.
void draw_span_arrow(const plan_point& along, const pixel_point& centre) {
    constexpr double half_length = 22;
    constexpr double head = 8;
    for (const double side : {-1.0, 1.0}) {
        const double dx = side * along.x;
        const double dy = -side * along.y; // rows of pixels run down
        const pixel_point tip = {centre.x + half_length * dx, centre.y + half_length * dy};
        const pixel_point foot = {tip.x - head * dx, tip.y - head * dy};
        ox_examples::draw_line({centre, tip}, 2);
        ox_examples::draw_line({{foot.x - head / 2 * dy, foot.y + head / 2 * dx},
                                tip,
                                {foot.x + head / 2 * dy, foot.y - head / 2 * dx}},
                               2);
    }
}

void draw_title(const description& d, const span& s, const share_map& map, double left) {
    char text[120];
    std::snprintf(text, sizeof text, "%.40s: %.0f %% of %g kN/m2", s.name.c_str(), 100 * s.share,
                  d.weight);
    ox_examples::set_colour(ink);
    draw_span_arrow(map.along, {left + 70, title_height / 2 + 8});
    ox_examples::draw_text(text, {left + 115, title_height / 2 + 16}, letter_height);
}

} // namespace

ox_examples::image draw_shares(const description& d, const sharing& shares) {
    const double width = plan_width * static_cast<double>(shares.spans.size());
    const double height = title_height + plan_height + legend_height(d, width);
    ox_examples::offscreen_context context(static_cast<int>(width), static_cast<int>(height),
                                           samples);
    glClearColor(paper.red, paper.green, paper.blue, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    ox_examples::begin_flat_drawing(context.get_width(), context.get_height());
    for (std::size_t i = 0; i < shares.spans.size(); ++i) {
        const double left = plan_width * static_cast<double>(i);
        const plan_view view(d.outline.points, {left, title_height}, plan_width, plan_height);
        draw_title(d, d.spans[i], shares.spans[i].map, left);
        draw_map(shares.spans[i].map, view);
        draw_outlines(d, view);
        draw_beams(d, shares.spans[i], view);
    }
    draw_legend(d, shares, title_height + plan_height, width);
    return context.read_pixels();
}

} // namespace slab
