#include <examples/curves/drawing.h>

#include <examples/curves/diagram.h>
#include <examples/curves/tracing.h>

#include <examples/support/offscreen_context.h>

#include <GL/gl.h>

namespace curves {

namespace {

using ox_examples::colour;
using ox_examples::pixel_point;

/// Pixels, and samples per pixel.
constexpr int picture_width = 1400;
constexpr int picture_height = 900;
constexpr int samples = 4;
constexpr double legend_height = 60;
constexpr double letter_height = 17;

/// Steps along a curve: about two pixels each.
constexpr int nb_steps = 600;

const colour point_colour = {0.25f, 0.25f, 0.28f};
const colour polygon_colour = {0.70f, 0.70f, 0.73f};

struct legend_entry {
    const char* text;
    colour line;
};

const legend_entry bezier_entry = {"Bezier", {0.80f, 0.20f, 0.18f}};
const legend_entry bspline_entry = {"B-spline", {0.13f, 0.55f, 0.28f}};
const legend_entry spline_entry = {"damped spline", {0.15f, 0.35f, 0.80f}};
const legend_entry points_entry = {"points", polygon_colour};

void draw_points(const std::vector<pixel_point>& places) {
    ox_examples::set_colour(polygon_colour);
    ox_examples::draw_line(places, 1.5);
    ox_examples::set_colour(point_colour);
    for (const pixel_point& p : places) {
        ox_examples::fill_disc(p, 6);
    }
}

void draw_curve(const std::vector<pixel_point>& places, const legend_entry& entry) {
    ox_examples::set_colour(entry.line);
    ox_examples::draw_line(places, 3.5);
}

/// A row of samples with their names, above the diagram.
void draw_legend() {
    double left = 110;
    for (const legend_entry& entry : {points_entry, bezier_entry, bspline_entry, spline_entry}) {
        const double middle = legend_height / 2 + 10;
        const bool is_curve = entry.text != points_entry.text;
        ox_examples::set_colour(entry.line);
        ox_examples::draw_line({{left, middle}, {left + 50, middle}}, is_curve ? 4 : 1.5);
        if (!is_curve) {
            ox_examples::set_colour(point_colour);
            ox_examples::fill_disc({left + 25, middle}, 6);
        }
        ox_examples::set_colour(point_colour);
        ox_examples::draw_text(entry.text, {left + 65, middle + letter_height / 2}, letter_height);
        left += 130 + ox_examples::text_width(entry.text, letter_height);
    }
}

} // namespace

ox_examples::image draw_curves(const description& d) {
    const traced_curves traced = trace(d.points, nb_steps);
    std::vector<plan_point> all = d.points;
    for (const auto* curve : {&traced.bezier, &traced.bspline, &traced.spline}) {
        all.insert(all.end(), curve->begin(), curve->end());
    }
    const diagram axes(all, {0, legend_height}, picture_width, picture_height - legend_height);

    ox_examples::offscreen_context context(picture_width, picture_height, samples);
    glClearColor(1, 1, 1, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    ox_examples::begin_flat_drawing(picture_width, picture_height);
    axes.draw_axes();
    draw_legend();
    draw_curve(axes.place(traced.bezier), bezier_entry);
    draw_curve(axes.place(traced.bspline), bspline_entry);
    draw_curve(axes.place(traced.spline), spline_entry);
    draw_points(axes.place(d.points));
    return context.read_pixels();
}

} // namespace curves
