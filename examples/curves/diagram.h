#ifndef OX_EXAMPLES_CURVES_DIAGRAM_H
#define OX_EXAMPLES_CURVES_DIAGRAM_H

#include <examples/support/flat_drawing.h>
#include <examples/support/plan_point.h>

#include <vector>

namespace curves {

using ox_examples::plan_point;

/// Round numbers along an axis: multiples of 1, 2 or 5 times a power of ten.
struct scale_marks {
    double first = 0; ///< at or below the values
    double last = 0;  ///< at or above the values
    double step = 1;

    int count() const;
    double mark(int i) const { return first + i * step; }
};

/// Up to about `nb_wanted` marks that enclose the values from `low` to `high`.
scale_marks marks_for(double low, double high, int nb_wanted);

/// Axes with marks, numbers and a grid around `points`, and the place of every point between them.
class diagram {
public:
    /// A diagram that takes a rectangle of a picture, room for the numbers included.
    diagram(const std::vector<plan_point>& points, const ox_examples::pixel_point& top_left,
            double width, double height);

    ox_examples::pixel_point place(const plan_point& p) const;

    std::vector<ox_examples::pixel_point> place(const std::vector<plan_point>& points) const;

    /// The grid, the two axes and the numbers.
    void draw_axes() const;

private:
    void draw_mark(const plan_point& from, const plan_point& to, bool is_axis) const;

    ox_examples::pixel_point low;  ///< where the axes begin
    ox_examples::pixel_point high; ///< where they end
    scale_marks x_marks;
    scale_marks y_marks;
};

} // namespace curves

#endif
