#include <tests/reliability/failures/scenario.h>

#include <ox/core/ox_log.h>
#include <ox/display/ox_debug.h>
#include <ox/display/ox_opengl_shapes.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_color.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/geometry/ox_matrix.h>
#include <ox/ox_functions.h>

namespace failures {

namespace {

using ox::ox_3dvector;
using ox::ox_list;

ox_list<float> matrix_of_order_three() {
    return ox::ox_make_list({2.0f, 1.0f, 0.0f, 1.0f, 3.0f, 1.0f, 0.0f, 1.0f, 4.0f});
}

ox::ox_cubic_spline spline(float height) {
    ox_list<ox::ox_2dvector> points;
    for (int i = 0; i < 6; ++i) {
        points.push_right(
            ox::ox_2dvector(static_cast<float>(i), height * static_cast<float>(i % 2)));
    }
    return ox::ox_cubic_spline(points);
}

void add_curves(std::vector<scenario>& all) {
    all.push_back(of("BezierIsEvaluated", [] { return told(*ox::ox_bezier(8).compute(0.25f)); }));
    all.push_back(
        of("BsplineIsEvaluated", [] { return told(*ox::ox_bspline(3, 20).compute(0.5f)); }));
    all.push_back(on(
        "CubicSplineIsAssigned", [] { return spline(1.0f); },
        [](ox::ox_cubic_spline& object) {
            object = spline(2.0f);
            return std::string();
        },
        [](ox::ox_cubic_spline& object) { return told(object.compute(1.3f)); }));
}

ox::ox_opengl_shapes shapes() {
    ox::ox_opengl_shapes made;
    made.add_point(ox_3dvector(1.0f, 0.0f, 0.0f), ox::ox_color(1.0f), 3);
    return made;
}

/// Shapes tell nothing but what they draw; the tests of the display watch that.
template <typename Act>
scenario on_shapes(const std::string& name, Act act) {
    return on(name, shapes, act, [](ox::ox_opengl_shapes&) { return std::string(); });
}

ox::ox_debug node() {
    ox::ox_debug made;
    made.title = "a title that is too long to lie within the string object itself";
    made.shapes = shapes();
    return made;
}

} // namespace

std::vector<scenario> geometry_scenarios() {
    std::vector<scenario> all;
    all.push_back(of("SystemIsSolved", [] {
        return told(ox_solve_system(matrix_of_order_three(), ox::ox_make_list({1.0f, 2.0f, 3.0f})));
    }));
    all.push_back(
        of("MatrixIsInverted", [] { return told(ox_reverse_matrix(matrix_of_order_three())); }));
    all.push_back(of("MatrixIsLogged", [] {
        ox_log_set(true);
        ox::ox_matrix().log();
        ox_log_set(false);
        return std::string();
    }));
    all.push_back(of("BoxTellsItsCorners", [] {
        ox::ox_box box;
        box.enlarge(ox_3dvector(1.0f, 2.0f, 3.0f));
        return told(box.get_vertices());
    }));
    add_curves(all);
    return all;
}

std::vector<scenario> display_scenarios() {
    std::vector<scenario> all;
    all.push_back(on_shapes("ShapesGainAPoint", [](ox::ox_opengl_shapes& object) {
        object.add_point(ox_3dvector(), ox::ox_color(0.5f), 5);
        return std::string();
    }));
    all.push_back(on_shapes("ShapesGainALine", [](ox::ox_opengl_shapes& object) {
        object.add_line(ox_3dvector(), ox_3dvector(1.0f, 1.0f, 1.0f), ox::ox_color(0.5f), 2);
        return std::string();
    }));
    all.push_back(on_shapes("ShapesAreCopied", [](ox::ox_opengl_shapes& object) {
        const ox::ox_opengl_shapes copy(object);
        object = copy;
        return std::string();
    }));
    all.push_back(on(
        "DebugNodeIsCopied", node,
        [](ox::ox_debug& object) {
            const ox::ox_debug copy(object);
            object = copy;
            return std::string();
        },
        [](ox::ox_debug& object) { return told(object.title, object.children.size()); }));
    return all;
}

} // namespace failures
