#ifndef OX_EXAMPLES_SUPPORT_FLAT_DRAWING_H
#define OX_EXAMPLES_SUPPORT_FLAT_DRAWING_H

#include <string>
#include <vector>

namespace ox_examples {

/// A colour with components from 0 to 1.
struct colour {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;
};

/// A place in a picture in pixels, (0, 0) being the top left corner and y running down.
struct pixel_point {
    double x = 0;
    double y = 0;
};

/// Makes the current OpenGL context draw flat, in pixels, over what has been drawn: no light, no
/// depth, transparent colours mixed in. The functions below expect this state and use the colour
/// that was set last.
void begin_flat_drawing(int width, int height);

void set_colour(const colour& c);

/// A line through the points, `width` pixels wide.
void draw_line(const std::vector<pixel_point>& points, double width);

/// The same, with the last point joined to the first one.
void draw_loop(const std::vector<pixel_point>& points, double width);

void fill_rectangle(const pixel_point& top_left, double width, double height);

void fill_disc(const pixel_point& centre, double radius);

void draw_ring(const pixel_point& centre, double radius, double width);

/// Writes text from `start`, the left end of its base line, in capitals of `height` pixels. All
/// characters are equally wide; one beyond ASCII is a box.
void draw_text(const std::string& text, const pixel_point& start, double height);

/// The width in pixels of such a text.
double text_width(const std::string& text, double height);

/// A text in the middle of a filled box around `centre`.
void draw_tag(const std::string& text, const pixel_point& centre, double height, const colour& ink,
              const colour& paper);

} // namespace ox_examples

#endif
