#include <examples/slab/legend.h>
#include <examples/support/utf8.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace slab {

namespace {

using ox_examples::colour;
using ox_examples::pixel_point;

/// Pixels.
constexpr double column_width = 570;
constexpr double row_height = 38;
constexpr double margin = 45;
constexpr double badge_radius = 14;
constexpr double badge_letters = 11;
constexpr double swatch_size = 20;
constexpr double swatch_pitch = 26;
constexpr double letter_height = 14;

/// Longer names are cut: they would run into their loads.
constexpr std::size_t longest_name = 18;

const colour ink = {0.13f, 0.13f, 0.15f};
const colour paper = {1, 1, 1};
const colour frame = {0.55f, 0.55f, 0.58f};

constexpr unsigned int white = 0xFFFFFFFFu;

int count_columns(double width) {
    return static_cast<int>(width / column_width);
}

/// How many rows the beams and the sum take.
int count_rows(const description& d, double width) {
    const int nb_columns = count_columns(width);
    return (static_cast<int>(d.beams.size()) + 1 + nb_columns - 1) / nb_columns;
}

/// The colour in which a beam's share is painted, found beside the beam; white when it has none.
unsigned int colour_of(const beam& b, const share_map& map) {
    constexpr double beside = 3; // pixels
    const double reach = beside * map.step;
    for (const double place : {0.5, 0.25, 0.75, 0.1, 0.9}) {
        for (const double side : {-reach, reach}) {
            const plan_point p = {b.from.x + place * (b.to.x - b.from.x) + side * map.along.x,
                                  b.from.y + place * (b.to.y - b.from.y) + side * map.along.y};
            const unsigned int found = map.colour_at(p);
            if (found != white && found != 0) {
                return found;
            }
        }
    }
    return white;
}

colour unpacked(unsigned int rgba, float alpha) {
    const auto part = [rgba](int shift) {
        return static_cast<float>((rgba >> shift) & 0xFFu) / 255.f;
    };
    return {part(0), part(8), part(16), alpha};
}

void draw_swatch(unsigned int rgba, const pixel_point& top_left) {
    ox_examples::set_colour(unpacked(rgba, share_strength));
    ox_examples::fill_rectangle(top_left, swatch_size, swatch_size);
    ox_examples::set_colour(frame);
    ox_examples::draw_loop({top_left,
                            {top_left.x + swatch_size, top_left.y},
                            {top_left.x + swatch_size, top_left.y + swatch_size},
                            {top_left.x, top_left.y + swatch_size}},
                           1);
}

void draw_entry(const std::string& name, double load, const pixel_point& start) {
    char text[80];
    std::snprintf(text, sizeof text, " %9.2f kN", load);
    const std::string shown = ox_examples::first_characters(name, longest_name);
    ox_examples::set_colour(ink);
    ox_examples::draw_text(ox_examples::padded(shown, longest_name) + text,
                           {start.x, start.y + letter_height / 2}, letter_height);
}

} // namespace

plan_point middle_of(const beam& b) {
    return {(b.from.x + b.to.x) / 2, (b.from.y + b.to.y) / 2};
}

void draw_badge(int number, const pixel_point& centre, const colour& badge_ink) {
    const std::string text = std::to_string(number);
    ox_examples::set_colour(paper);
    ox_examples::fill_disc(centre, badge_radius);
    ox_examples::set_colour(badge_ink);
    ox_examples::draw_ring(centre, badge_radius, 2);
    ox_examples::draw_text(
        text,
        {centre.x - ox_examples::text_width(text, badge_letters) / 2, centre.y + badge_letters / 2},
        badge_letters);
}

double legend_height(const description& d, double width) {
    return count_rows(d, width) * row_height + margin;
}

void draw_legend(const description& d, const sharing& shares, double top, double width) {
    const int nb_rows = count_rows(d, width);
    const auto place = [&](int entry) {
        return pixel_point{margin + entry / nb_rows * column_width,
                           top + (entry % nb_rows + 0.5) * row_height};
    };
    const double text_start = 2 * badge_radius + 20 + 2 * swatch_pitch;
    for (std::size_t i = 0; i < d.beams.size(); ++i) {
        const pixel_point p = place(static_cast<int>(i));
        draw_badge(static_cast<int>(i) + 1, {p.x + badge_radius, p.y}, ink);
        double left = p.x + 2 * badge_radius + 10;
        for (const span_loads& s : shares.spans) {
            const unsigned int share = s.loads[i] > 0 ? colour_of(d.beams[i], s.map) : white;
            draw_swatch(share, {left, p.y - swatch_size / 2});
            left += swatch_pitch;
        }
        draw_entry(d.beams[i].name, shares.loads[i], {p.x + text_start, p.y});
    }
    const pixel_point p = place(static_cast<int>(d.beams.size()));
    draw_entry("sum", shares.total(), {p.x + text_start, p.y});
}

} // namespace slab
