#include <examples/curves/diagram.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace curves {

namespace {

using ox_examples::colour;
using ox_examples::pixel_point;

/// Pixels.
constexpr double left_margin = 110;
constexpr double right_margin = 50;
constexpr double top_margin = 30;
constexpr double bottom_margin = 80;
constexpr double letter_height = 15;

const colour ink = {0.2f, 0.2f, 0.22f};
const colour grid = {0.88f, 0.89f, 0.91f};

/// Values closer together than this get a scale of this length: there is nothing to tell apart.
constexpr double shortest_scale = 0.01;

std::string number_text(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

} // namespace

int scale_marks::count() const {
    return static_cast<int>(std::lround((last - first) / step)) + 1;
}

scale_marks marks_for(double low, double high, int nb_wanted) {
    const double raw = std::max(high - low, shortest_scale) / nb_wanted;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    const double digit = raw / power;
    scale_marks marks;
    marks.step = power * (digit <= 1 ? 1 : digit <= 2 ? 2 : digit <= 5 ? 5 : 10);
    marks.first = marks.step * std::floor(low / marks.step);
    marks.last = marks.step * std::ceil(high / marks.step);
    if (marks.count() < 2) {
        marks.last = marks.first + marks.step;
    }
    return marks;
}

diagram::diagram(const std::vector<plan_point>& points, const pixel_point& top_left, double width,
                 double height)
    : low{top_left.x + left_margin, top_left.y + height - bottom_margin},
      high{top_left.x + width - right_margin, top_left.y + top_margin} {
    plan_point least = points[0];
    plan_point most = points[0];
    for (const plan_point& p : points) {
        least = {std::min(least.x, p.x), std::min(least.y, p.y)};
        most = {std::max(most.x, p.x), std::max(most.y, p.y)};
    }
    x_marks = marks_for(least.x, most.x, 12);
    y_marks = marks_for(least.y, most.y, 8);
}

pixel_point diagram::place(const plan_point& p) const {
    const double u = (p.x - x_marks.first) / (x_marks.last - x_marks.first);
    const double v = (p.y - y_marks.first) / (y_marks.last - y_marks.first);
    return {low.x + u * (high.x - low.x), low.y + v * (high.y - low.y)};
}

std::vector<pixel_point> diagram::place(const std::vector<plan_point>& points) const {
    std::vector<pixel_point> result;
    for (const plan_point& p : points) {
        result.push_back(place(p));
    }
    return result;
}

void diagram::draw_mark(const plan_point& from, const plan_point& to, bool is_axis) const {
    ox_examples::set_colour(is_axis ? ink : grid);
    ox_examples::draw_line(place({from, to}), is_axis ? 2 : 1);
}

void diagram::draw_axes() const {
    for (int i = 0; i < x_marks.count(); ++i) {
        const double x = x_marks.mark(i);
        draw_mark({x, y_marks.first}, {x, y_marks.last}, false);
        const std::string text = number_text(x);
        const pixel_point foot = place({x, y_marks.first});
        ox_examples::set_colour(ink);
        ox_examples::draw_text(
            text,
            {foot.x - ox_examples::text_width(text, letter_height) / 2, foot.y + 2 * letter_height},
            letter_height);
    }
    for (int i = 0; i < y_marks.count(); ++i) {
        const double y = y_marks.mark(i);
        draw_mark({x_marks.first, y}, {x_marks.last, y}, false);
        const std::string text = number_text(y);
        const pixel_point foot = place({x_marks.first, y});
        ox_examples::set_colour(ink);
        ox_examples::draw_text(
            text,
            {foot.x - letter_height - ox_examples::text_width(text, letter_height),
             foot.y + letter_height / 2},
            letter_height);
    }
    draw_mark({x_marks.first, y_marks.first}, {x_marks.last, y_marks.first}, true);
    draw_mark({x_marks.first, y_marks.first}, {x_marks.first, y_marks.last}, true);
}

} // namespace curves
