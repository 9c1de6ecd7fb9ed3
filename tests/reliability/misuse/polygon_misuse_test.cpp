#include <tests/reliability/misuse/values.h>

#include <ox/polygon/ox_polygon_pieces.h>
#include <ox/polygon/ox_polygon_projection.h>
#include <tests/support/random_shapes.h>

namespace misuse {

namespace {

using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_polygon_pieces;
using ox::ox_polygon_projection;

/// Everything that can be asked, of a polygon in whatever state.
void ask(ox_polygon& polygon) {
    EXPECT_GE(polygon.get_contour_vertices().size(), 0);
    EXPECT_EQ(polygon.get_contour_sizes().size(), polygon.get_contour_parents().size());
    EXPECT_EQ(polygon.get_contour_sizes().size(), polygon.get_contour_orientations().size());
    EXPECT_EQ(polygon.get_tesselation_triangles().size() % 3, 0);
    polygon.get_tesselation_vertices();
    polygon.get_bounding_box();
    polygon.get_perimeter();
    polygon.get_best_center();
    polygon.get_normal();
    polygon.get_point();
    polygon.count_outer_contours();
    EXPECT_FALSE(polygon.get_area() < 0.0f);
    EXPECT_LE(polygon.split_to_convex_polygons().size(), 1);
    const ox_polygon_pieces pieces(polygon, polygon.split_to_polygons());
    for (const int contour : ints) {
        polygon.is_convex(contour);
    }
}

TEST_F(Misuse, OfPolygonsWithExtremeContoursAndPlanes) {
    for (const ox::ox_list<ox_3dvector>& contour : contours()) {
        for (const ox_3dvector& v : vectors()) {
            ox_polygon polygon(v, v);
            polygon.add_contour(contour);
            ask(polygon);
            ox_polygon moved;
            moved.add_contour(contour);
            moved.set_normal(v);
            moved.set_point(v);
            ask(moved);
        }
        for (const float tolerance : floats) {
            ox::ox_list<ox_3dvector> copy = contour;
            ox_polygon::optimize_contour(copy, tolerance);
            ox_polygon::optimize_contour(copy, ox_3dvector(tolerance, 0.0f, 1.0f), tolerance);
        }
        ox_polygon::is_clockwise(contour, ox_3dvector());
    }
}

TEST_F(Misuse, OfPolygonsWithThemselves) {
    for (const ox::ox_list<ox_3dvector>& contour : contours()) {
        ox_polygon polygon;
        polygon.add_contour(contour);
        polygon.add_contour(polygon.get_contour_vertices());
        assign_to_itself(polygon);
        polygon.swap(polygon);
        polygon.unites(polygon);
        polygon.intersects(polygon);
        polygon.set_normal(polygon.get_normal());
        polygon.set_point(polygon.get_point());
        polygon.reverse();
        ask(polygon);
        polygon.substracts(polygon);
        ask(polygon);
        polygon.clear();
        ask(polygon);
        polygon.draw_opengl();
        polygon.draw_opengl_contour(true);
    }
    EXPECT_EQ(ox_polygon::get_instanced(), 0);
    EXPECT_EQ(ox_polygon::get_compute_contour_time(), 0.0);
}

/// What takes a plane, a point or a matrix.
void place(ox_polygon& polygon, const ox_3dvector& v) {
    polygon.contains(v);
    polygon.intersect_by_plane(v, v);
    ox_3dvector hit = v;
    polygon.intersect_by_ray(hit, hit, hit, hit.x);
    const ox_polygon_pieces pieces(polygon, polygon.cut_by_plane(v, v, true));
    ox::ox_box box;
    polygon.may_intersect(box);
    box.enlarge(v);
    polygon.may_intersect(box);
    bool grid[4] = {};
    EXPECT_LE(polygon.fill_regular_grid(grid, v, v, ox_3dvector(v.y, v.z, v.x), 2, 2, v.x), 4);
    EXPECT_EQ(polygon.fill_regular_grid(nullptr, v, v, v, (int_limits::max)(), 1, v.x), 0);
    ox_polygon::compute_triangle_area(v, v, ox_3dvector(v.y, v.x, v.z));
    ox::ox_matrix matrix;
    matrix.scaling(v.x, v.y, v.z);
    ox_polygon scaled = polygon;
    scaled.matrix_transform(matrix);
    scaled.get_area();
}

TEST_F(Misuse, OfPolygonsWithExtremeArguments) {
    for (const ox_3dvector& v : vectors()) {
        ox_polygon polygon = support::rectangle_polygon(0, 0, 4, 4);
        place(polygon, v);
        ox_polygon empty;
        place(empty, v);
    }
    for (const float value : floats) {
        for (const int n : ints) {
            ox_polygon polygon = support::rectangle_polygon(0, 0, 4, 4);
            call([&] { polygon.offset(value, n); });
            call([&] { polygon.regular_distribution(value); });
            call([&] { polygon.random_distribution(n, n); });
            polygon.optimize_contours(value);
        }
    }
}

TEST_F(Misuse, OfProjections) {
    ox_polygon square = support::rectangle_polygon(0, 0, 4, 4);
    ox_polygon empty;
    for (ox_polygon* polygon : {&square, &empty, static_cast<ox_polygon*>(nullptr)}) {
        for (const ox_3dvector& v : vectors()) {
            ox_polygon_projection frame(polygon, v.x);
            assign_to_itself(frame);
            EXPECT_EQ(frame.get_polygon(), polygon);
            ox::ox_2dvector q = frame.world_to_polygon(v);
            float distance = 0.0f;
            frame.raytrace(q, frame.world_vector_to_polygon(v), q, q, distance);
            frame.contains(q);
            frame.polygon_to_world(q);
            frame.polygon_vector_to_world(frame.get_size());
            frame.world_to_polygon(frame.get_origin());
            frame.world_vector_to_polygon(frame.get_dx());
            frame.world_vector_to_polygon(frame.get_dy());
            frame.world_vector_to_polygon(frame.get_normal());
        }
    }
}

} // namespace

} // namespace misuse
