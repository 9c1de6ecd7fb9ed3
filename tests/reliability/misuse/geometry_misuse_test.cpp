#include <tests/reliability/misuse/values.h>

#include <sstream>

#include <ox/display/ox_camera.h>
#include <ox/display/ox_debug.h>
#include <ox/display/ox_snap.h>
#include <ox/geometry/ox_2dvector.h>
#include <ox/geometry/ox_bezier.h>
#include <ox/geometry/ox_box.h>
#include <ox/geometry/ox_bspline.h>
#include <ox/geometry/ox_color.h>
#include <ox/geometry/ox_cubic_spline.h>
#include <ox/geometry/ox_matrix.h>
#include <ox/geometry/ox_polar.h>

namespace misuse {

namespace {

using ox::ox_2dvector;
using ox::ox_3dvector;
using ox::ox_color;
using ox::ox_matrix;

TEST_F(Misuse, OfVectors) {
    std::ostringstream out;
    for (const ox_3dvector& v : vectors()) {
        ox_3dvector own = v;
        own.build_axis(own, own);
        own = v;
        own.is_on_edge(own, own, v.x);
        own.project_on_edge(own, own, v.x);
        own.get_angles(own.x, own.y);
        const ox::ox_polar polar(v);
        out << v << polar << polar.to_3dvector();
        ox_2dvector p(v.x, v.y);
        ox_2dvector::intersection(p, p, p, p, p);
        out << p;
    }
    EXPECT_FALSE(out.str().empty());
}

TEST_F(Misuse, OfMatrices) {
    ox_matrix empty(static_cast<const float*>(nullptr));
    empty.load_from_float(nullptr);
    empty.load_from_double(nullptr);
    EXPECT_TRUE(empty == ox_matrix(static_cast<const double*>(nullptr)));
    for (const ox_3dvector& v : vectors()) {
        ox_matrix m;
        m.rotation(v, v, v.x);
        m.rotate(v, v, v.x);
        m.scaling(v.x, v.y, v.z);
        m.scale(v.x, v.y, v.z);
        m.translation(v);
        m.translate(v);
        m.axis_transformation(v, v, v, v);
        m.axis_transform(v, v, v, v);
        m.inv_axis_transformation(v, v, v, v);
        m.inv_axis_transform(v, v, v, v);
        m *= m;
        m.reverse(m);
        m.transform_point(v);
        m.transform_vector(v);
        m.log();
        std::ostringstream out;
        out << m;
        EXPECT_FALSE(m == m && m != m);
    }
    for (const int axis : ints) {
        ox_matrix m;
        m.rotation(axis, float_limits::infinity());
        m.rotate(axis, float_limits::quiet_NaN());
        m.load_identity();
    }
}

TEST_F(Misuse, OfBoxes) {
    for (const ox_3dvector& v : vectors()) {
        ox::ox_box box;
        box.intersects(box);
        box.enlarge(v);
        box.enlarge(box);
        box.contains(v);
        box.intersects(box);
        box.plane_status(v, v);
        EXPECT_LE(box.get_vertices().size(), 8);
        std::ostringstream out;
        out << box;
    }
}

TEST_F(Misuse, OfColors) {
    EXPECT_TRUE(ox_color(static_cast<const float*>(nullptr)) ==
                ox_color(static_cast<const unsigned char*>(nullptr)));
    for (const std::string& text : texts()) {
        EXPECT_FALSE(ox_color(text).decode_string(text));
    }
    for (const float value : floats) {
        ox_color color(value);
        color *= color;
        color += color;
        color *= value;
        color /= value;
        color.decode_rgba(color.encode_rgba() | color.encode_bgra());
        EXPECT_EQ(ox_color(value).encode_string().size(), 7u);
        std::ostringstream out;
        out << ox_color::heat(value) << ox_color::pseudo(value);
    }
}

TEST_F(Misuse, OfCurves) {
    for (const int n : ints) {
        call([n] {
            ox::ox_bezier bezier(n);
            assign_to_itself(bezier);
            for (const float t : floats) {
                bezier.compute(t);
            }
        });
        for (const int m : ints) {
            call([n, m] {
                ox::ox_bspline spline(n, m);
                assign_to_itself(spline);
                for (const float t : floats) {
                    spline.compute(t, nullptr);
                }
            });
        }
    }
    for (const float value : floats) {
        ox::ox_cubic_spline spline(ox::ox_make_list(
            {ox_2dvector(value, value), ox_2dvector(0.0f, value), ox_2dvector(value, 1.0f)}));
        assign_to_itself(spline);
        spline.compute(value);
    }
    ox::ox_cubic_spline(ox::ox_list<ox_2dvector>(-2)).compute(1.0f);
    EXPECT_FALSE(ox::ox_cubic_spline::unitary_test()); // as it says
}

TEST_F(Misuse, OfCameras) {
    for (const ox_3dvector& v : vectors()) {
        for (const int n : {0, -1, (int_limits::min)(), (int_limits::max)()}) {
            ox::ox_camera camera(v, v, v, v.x, n, n);
            camera.set_position(v);
            camera.set_target(v);
            camera.set_upaxis(v);
            camera.set_angle(v.x);
            camera.set_width(n);
            camera.set_height(n);
            float x = v.x;
            float y = v.x;
            camera.get_projection(camera.get_position(), x, y);
            camera.get_ray_direction(v.x, v.y);
            camera.go_toward(camera.get_target(), v.x);
            camera.do_travelling(v.x, v.y);
            camera.turn_around_position(v.x, v.y);
            camera.turn_around_target(v.x, v.y);
            EXPECT_GT(camera.get_precompute_date(), 0u);
        }
    }
}

TEST_F(Misuse, OfShapesSnapsAndDebugNodes) {
    ox::ox_opengl_shapes shapes;
    shapes.draw_opengl();
    ox::ox_debug node;
    node.children.push_right(nullptr);
    assign_to_itself(node);
    for (const ox_3dvector& v : vectors()) {
        for (const int n : ints) {
            shapes.add_point(v, ox_color(v.x), n);
            shapes.add_line(v, v, ox_color(v.x), n);
            shapes.add_line(v, v, ox_color(v.x), ox_color(v.y), n);
            ox::ox_snap snap(v, v.x, n, v);
            assign_to_itself(snap);
            snap.check_plane(snap.position, snap.direction);
            snap.check_plane(v, v);
        }
    }
    assign_to_itself(shapes);
    shapes.swap(shapes);
    node.shapes = shapes;
    shapes.clear();
    EXPECT_EQ(node.children.size(), 1);
}

} // namespace

} // namespace misuse
