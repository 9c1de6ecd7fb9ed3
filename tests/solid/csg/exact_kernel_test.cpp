// An independent judge with exact constructions: the volumes of random booleans are those of CGAL's
// corefinement of the same triangles. Built only where CGAL is installed.

#include <CGAL/Exact_predicates_exact_constructions_kernel.h>
#include <CGAL/Polygon_mesh_processing/corefinement.h>
#include <CGAL/Polygon_mesh_processing/measure.h>
#include <CGAL/Surface_mesh.h>

#include <gtest/gtest.h>

#include <tests/solid/csg/judged_results.h>
#include <tests/solid/csg/shapes.h>

namespace {

namespace PMP = CGAL::Polygon_mesh_processing;
using kernel = CGAL::Exact_predicates_exact_constructions_kernel;
using exact_mesh = CGAL::Surface_mesh<kernel::Point_3>;

using csg_test::operation;
using ox::ox_csg;
using ox::ox_solid;

/// The solid in triangles with shared vertices, which both sides get: planes of more than three
/// rounded points are no planes to an exact kernel.
ox::ox_triangle_set triangles_of(const ox_solid& solid) {
    ox_csg csg;
    csg.unites(solid);
    EXPECT_TRUE(csg.compute());
    return csg.get_triangles();
}

exact_mesh to_exact(const ox::ox_triangle_set& triangles) {
    exact_mesh mesh;
    std::vector<exact_mesh::Vertex_index> vertices;
    for (unsigned int v = 0; v < triangles.get_nb_vertices(); ++v) {
        const ox::ox_3dvector& p = triangles.get_vertices()[v];
        vertices.push_back(mesh.add_vertex(kernel::Point_3(
            static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z))));
    }
    for (std::size_t t = 0; t < triangles.get_nb_triangles(); ++t) {
        const unsigned int* corners = triangles.get_triangles() + 3 * t;
        EXPECT_NE(mesh.add_face(vertices[corners[0]], vertices[corners[1]], vertices[corners[2]]),
                  exact_mesh::null_face());
    }
    return mesh;
}

double volume_of(const exact_mesh& mesh) {
    return mesh.number_of_faces() == 0 ? 0.0 : CGAL::to_double(PMP::volume(mesh));
}

/// The exact volumes of union, difference and intersection; false where the judge gives up because
/// its result would be no manifold.
bool judge(const ox_solid& a, const ox_solid& b, double (&volumes)[3]) {
    exact_mesh results[3];
    for (int i = 0; i < 3; ++i) {
        exact_mesh first = to_exact(triangles_of(a));
        exact_mesh second = to_exact(triangles_of(b));
        const bool is_done =
            i == 0   ? PMP::corefine_and_compute_union(first, second, results[i])
            : i == 1 ? PMP::corefine_and_compute_difference(first, second, results[i])
                     : PMP::corefine_and_compute_intersection(first, second, results[i]);
        if (!is_done) {
            return false;
        }
        volumes[i] = volume_of(results[i]);
    }
    return true;
}

/// True if the judge had an answer.
bool expect_exact_volumes(const ox_solid& a, const ox_solid& b, double coincident_area) {
    double volumes[3] = {};
    if (!judge(a, b, volumes)) {
        return false;
    }
    const double bound =
        csg_test::volume_bound(a.get_surface_area() + b.get_surface_area(), coincident_area);
    const operation operations[] = {operation::unites, operation::substracts,
                                    operation::intersects};
    for (int i = 0; i < 3; ++i) {
        EXPECT_NEAR(csg_test::combine(a, operations[i], b).get_volume(), volumes[i], bound) << i;
    }
    return true;
}

TEST(CsgExactKernel, VolumesInGeneralPositionAreThoseOfTheExactKernel) {
    support::generator random(101);
    int judged = 0;
    const int pairs = support::all_or(700, 40);
    for (int i = 0; i < pairs; ++i) {
        SCOPED_TRACE(i);
        const ox_solid a = csg_test::random_solid(random);
        const ox_solid b = csg_test::random_solid(random);
        judged += expect_exact_volumes(a, b, 0.0) ? 1 : 0;
    }
    EXPECT_GT(judged, pairs * 9 / 10);
}

TEST(CsgExactKernel, VolumesAtShallowAnglesAreThoseOfTheExactKernel) {
    support::generator random(102);
    int judged = 0;
    const int pairs = support::all_or(700, 40);
    for (int i = 0; i < pairs; ++i) {
        SCOPED_TRACE(i);
        const support::frame frame = support::random_frame(random);
        const double degrees = 0.01 * std::pow(1100.0, random.real(0.0, 1.0));
        const support::frame other = csg_test::tilted(frame, random.real(0.0, 1.0), degrees);
        const ox_solid a = support::random_brick(random, ox::ox_3dvector(), frame);
        const ox::ox_3dvector place = support::random_point(random, 0.5);
        const ox_solid b = support::random_brick(random, place, other);
        judged += expect_exact_volumes(a, b, std::min(a.get_surface_area(), b.get_surface_area()))
                      ? 1
                      : 0;
    }
    EXPECT_GT(judged, pairs * 9 / 10);
}

} // namespace
