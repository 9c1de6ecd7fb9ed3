#ifndef OX_EXAMPLES_GALLERY_SHEET_H
#define OX_EXAMPLES_GALLERY_SHEET_H

#include <ox/geometry/ox_color.h>
#include <ox/polygon/ox_polygon.h>

#include <string>

struct _cairo;
struct _cairo_surface;

namespace gallery {

/// The colours of plans and diagrams, each with one meaning.
namespace ink {
const ox::ox_color line(0.15f, 0.20f, 0.24f);   ///< outlines and text
const ox::ox_color faint(0.62f, 0.66f, 0.70f);  ///< what is only hinted at
const ox::ox_color first(0.18f, 0.44f, 0.70f);  ///< the first of two things
const ox::ox_color second(0.85f, 0.51f, 0.17f); ///< the second
const ox::ox_color result(0.29f, 0.62f, 0.37f); ///< what came out
const ox::ox_color wrong(0.78f, 0.22f, 0.18f);  ///< what went wrong, or is open
} // namespace ink

/// The colour mixed with white, for areas.
ox::ox_color pale(const ox::ox_color& color);

/// A page of panels side by side, each with a caption under it and coordinates of its own (x to the
/// right, y up). Written as SVG and PNG alike.
class sheet {
public:
    /// A page of panels of `panel_width` by `panel_height` points.
    sheet(int columns, int rows, double panel_width, double panel_height);
    ~sheet();
    sheet(const sheet&) = delete;
    sheet& operator=(const sheet&) = delete;

    /// Goes on in panel `number`, counted in rows, in which the given rectangle of the model fits.
    void panel(int number, const std::string& caption, double x0, double y0, double x1, double y1);

    /// How many model units are as long as `points` points of the page.
    double units(double points) const { return points / scale; }

    void fill(ox::ox_polygon& region, const ox::ox_color& color, double opacity = 1.0);
    void outline(ox::ox_polygon& region, const ox::ox_color& color, double width = 1.4);
    void fill_triangle(const ox::ox_3dvector& a, const ox::ox_3dvector& b, const ox::ox_3dvector& c,
                       const ox::ox_color& color);
    void box(double x0, double y0, double x1, double y1, const ox::ox_color& color);
    void path(const ox::ox_list<ox::ox_3dvector>& points, bool closed, const ox::ox_color& color,
              double width = 1.4, bool dashed = false);
    void line(double x0, double y0, double x1, double y1, const ox::ox_color& color,
              double width = 1.0, bool dashed = false);
    /// A line with an arrow's head at its end.
    void arrow(double x0, double y0, double x1, double y1, const ox::ox_color& color,
               double width = 1.4);
    /// Arrow's heads along a contour, in its direction.
    void run(const ox::ox_list<ox::ox_3dvector>& contour, const ox::ox_color& color);
    void dot(double x, double y, const ox::ox_color& color, double radius = 2.6);
    void circle(double x, double y, double radius, const ox::ox_color& color, bool dashed = false);
    /// A text about a point: `align` 0 begins there, 0.5 is centred, 1 ends there.
    void text(double x, double y, const std::string& words, const ox::ox_color& color = ink::line,
              double align = 0.5, double size = 11.0, bool strong = false);
    /// A dimension line beside the way from one point to the other, `offset` points to its left.
    void dimension(double x0, double y0, double x1, double y1, double offset,
                   const std::string& words);
    /// A bar of `length` model units at a point, labelled.
    void scale_bar(double x, double y, double length, const std::string& words);

    /// Writes `stem`.svg, and `preview`.png at twice the size where that is not empty.
    void save(const std::string& stem, const std::string& preview) const;

private:
    void set(const ox::ox_color& color, double opacity = 1.0);
    void trace(ox::ox_polygon& region);
    double px(double x) const { return left + (x - x_min) * scale; }
    double py(double y) const { return bottom - (y - y_min) * scale; }

    int columns;
    double panel_width, panel_height, width, height;
    _cairo_surface* surface;
    _cairo* cr;
    double left = 0, bottom = 0, scale = 1, x_min = 0, y_min = 0;
};

} // namespace gallery

#endif
