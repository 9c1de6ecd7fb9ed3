#include <examples/curves/tracing.h>

#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>

namespace curves {

namespace {

constexpr int degree = 3;

/// The point that the library's weights make of the control points.
plan_point weighted_sum(const std::vector<plan_point>& points, const float* weights) {
    plan_point sum;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double weight = double{weights[i]};
        sum.x += weight * points[i].x;
        sum.y += weight * points[i].y;
    }
    return sum;
}

ox::ox_cubic_spline spline_through(const std::vector<plan_point>& points) {
    ox::ox_list<ox::ox_2dvector> samples;
    for (const plan_point& p : points) {
        samples.push_right({static_cast<float>(p.x), static_cast<float>(p.y)});
    }
    return ox::ox_cubic_spline(samples);
}

} // namespace

traced_curves trace(const std::vector<plan_point>& points, int nb_steps) {
    const int nb_points = static_cast<int>(points.size());
    const int nb_knot_intervals = nb_points + degree;
    ox::ox_bezier bezier(nb_points);
    ox::ox_bspline bspline(degree, nb_knot_intervals);
    ox::ox_cubic_spline spline = spline_through(points);

    const double first_knot = double(degree) / nb_knot_intervals;
    const double last_knot = 1 - first_knot;
    traced_curves result;
    for (int i = 0; i <= nb_steps; ++i) {
        const double t = double(i) / nb_steps;
        const double u = first_knot + t * (last_knot - first_knot);
        const double x = points.front().x + t * (points.back().x - points.front().x);
        result.bezier.push_back(weighted_sum(points, bezier.compute(static_cast<float>(t))));
        result.bspline.push_back(weighted_sum(points, bspline.compute(static_cast<float>(u))));
        result.spline.push_back({x, double{spline.compute(static_cast<float>(x))}});
    }
    return result;
}

} // namespace curves
