// Three curves: near their points by Bezier and B-spline, through them by a cubic spline.
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_cubic_spline.h>

#include <cstdio>

namespace {

/// The points weighted: what a curve is at one parameter.
ox::ox_2dvector weighted(const ox::ox_list<ox::ox_2dvector>& points, const float* weights) {
    ox::ox_2dvector sum(0, 0);
    for (int i = 0; i < points.size(); ++i) {
        sum += points[i] * weights[i];
    }
    return sum;
}

} // namespace

int main() {
    const ox::ox_list<ox::ox_2dvector> points =
        ox::ox_make_list<ox::ox_2dvector>({{0, 0}, {1, 2}, {2, 2}, {3, 0}});

    ox::ox_bezier bezier(points.size());
    const int degree = 3, intervals = points.size() + degree;
    ox::ox_bspline bspline(degree, intervals); // its weights sum to 1 from 3/7 to 4/7
    ox::ox_cubic_spline spline(points);

    std::printf("       Bezier         B-spline       spline\n");
    for (int i = 0; i <= 4; ++i) {
        const float t = static_cast<float>(i) / 4.0f;
        const ox::ox_2dvector a = weighted(points, bezier.compute(t));
        const ox::ox_2dvector b = weighted(points, bspline.compute((3.0f + 0.999f * t) / 7.0f));
        const float x = 3.0f * t;
        std::printf("t %.2f (%.3f, %.3f) (%.3f, %.3f) (%.3f, %.3f)\n", static_cast<double>(t),
                    static_cast<double>(a.x), static_cast<double>(a.y), static_cast<double>(b.x),
                    static_cast<double>(b.y), static_cast<double>(x),
                    static_cast<double>(spline.compute(x)));
    }
}
