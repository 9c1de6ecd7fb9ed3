#include <tests/reliability/misuse/values.h>

#include <memory>

#include <ox/solid/ox_csg.h>
#include <ox/solid/ox_solid.h>
#include <tests/support/random_shapes.h>

namespace misuse {

namespace {

using ox::ox_3dvector;
using ox::ox_csg;
using ox::ox_polygon;
using ox::ox_solid;

/// Everything that can be asked, of a solid in whatever state.
void ask(ox_solid& solid) {
    EXPECT_EQ(solid.get_tesselation_triangles().size() % 3, 0);
    solid.get_tesselation_vertices();
    solid.get_bounding_box();
    solid.get_vertices();
    solid.get_contours();
    solid.get_contour_sizes();
    solid.check_manifold();
    solid.get_volume();
    solid.get_surface_area();
    for (const float tolerance : floats) {
        EXPECT_EQ(solid.get_open_edges(tolerance).size() % 2, 0);
        solid.optimize_vertices(tolerance);
    }
    for (const int slot : ints) {
        EXPECT_GE(solid.get_chrono(slot), 0.0);
    }
}

TEST_F(Misuse, OfSolidsWithContradictoryLists) {
    for (const int size : ints) {
        for (const unsigned int index : {0u, 3u, 4u, 4294967295u}) {
            ox_solid solid;
            solid.set_vertices(support::rectangle(0, 0, 4, 4));
            solid.set_contours(ox::ox_make_list({0u, 1u, 2u, index}));
            solid.set_contour_sizes(ox::ox_make_list({size, -size / 2, 4}));
            ask(solid);
            solid.set_vertices(ox::ox_list<ox_3dvector>(-7));
            solid.set_contours(ox::ox_list<unsigned int>((int_limits::min)()));
            ask(solid);
        }
    }
}

TEST_F(Misuse, OfSolidsWithThemselvesAndTheirParts) {
    ox_solid solid = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(2, 2, 2));
    assign_to_itself(solid);
    solid.swap(solid);
    solid.add_face(*solid.get_faces()[0]);
    solid.extrusion(*solid.get_faces()[0], solid.get_vertices()[0]);
    solid.set_vertices(solid.get_vertices());
    solid.set_contours(solid.get_contours());
    solid.set_contour_sizes(solid.get_contour_sizes());
    solid.unites(solid);
    solid.intersects(solid);
    ask(solid);
    solid.substracts(solid);
    ask(solid);
    ox_solid moved(std::move(solid));
    solid.unites(moved);
    ask(solid);
    solid.clear();
    solid.set_verbose(false);
    solid.set_profiling(true);
    solid.draw_opengl();
    solid.draw_opengl_contour();
}

/// What takes a plane.
void cut(ox_solid& solid, const ox_3dvector& v) {
    for (ox_polygon* piece : solid.intersect_by_plane(v, v)) {
        delete piece;
    }
    const std::unique_ptr<ox_polygon> outline(solid.project_on_plane(v, v));
    ASSERT_NE(outline, nullptr);
    solid.clip(v, v);
}

TEST_F(Misuse, OfSolidsWithExtremeArguments) {
    ox_polygon square = support::rectangle_polygon(0, 0, 4, 4);
    ox_polygon empty;
    for (const ox_3dvector& v : vectors()) {
        ox_solid solid = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(2, 2, 2));
        ox_solid other;
        other.brick(v, v, v, v);
        other.brick(v, v.x, v.y, v.z);
        other.unites(solid);
        other.extrusion(empty, v);
        other.extrusion(square, v);
        other.add_face(empty);
        solid.substracts(other);
        cut(other, v);
        cut(solid, v);
        ask(other);
    }
    EXPECT_EQ(ox_solid::intersect_by_plane(ox_3dvector(), ox_3dvector(),
                                           ox::ox_make_list<ox_polygon*>({nullptr, nullptr}))
                  .size(),
              0);
    EXPECT_EQ(ox_solid::get_instanced(), 0);
}

/// Computes and takes everything out, whatever came of it.
void take_out(ox_csg& csg) {
    const bool is_computed = csg.compute();
    EXPECT_EQ(is_computed, csg.get_nb_problems() == 0);
    EXPECT_EQ(csg.get_solid().get_open_edges(0.0f).size(), 0);
    csg.get_triangles();
    csg.get_origins();
    for (const int index : ints) {
        csg.get_problem(index);
    }
}

TEST_F(Misuse, OfCombinations) {
    const ox_solid brick = support::brick_between(ox_3dvector(0, 0, 0), ox_3dvector(2, 2, 2));
    for (const ox_3dvector& v : vectors()) {
        ox_csg csg(v.x);
        ox_solid other;
        other.brick(v, v, v, v);
        csg.intersects(ox_solid());
        csg.unites(brick);
        csg.substracts(other);
        csg.clips(v, v);
        take_out(csg);
        assign_to_itself(csg);
        csg.unites(csg.get_solid());
        csg.set_progress_manager(nullptr, static_cast<double>(v.x), static_cast<double>(v.y));
        ox_csg moved(std::move(csg));
        take_out(moved);
        csg.unites(brick);
        EXPECT_EQ(csg.get_nb_operands(), 1);
        csg.clear();
        take_out(csg);
    }
}

} // namespace

} // namespace misuse
