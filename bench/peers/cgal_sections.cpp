#include <bench/peers/cgal.h>

namespace {

constexpr char slicer_name[] = "CGAL slicer, tree built before";

} // namespace

#ifdef OX_BENCH_HAS_CGAL

#include <cmath>

#include <bench/peers/cgal_mesh.h>

#include <CGAL/AABB_halfedge_graph_segment_primitive.h>
#include <CGAL/AABB_traits.h>
#include <CGAL/AABB_tree.h>
#include <CGAL/Polygon_mesh_processing/corefinement.h>
#include <CGAL/Polygon_mesh_slicer.h>

namespace peers {
namespace {

using primitive = CGAL::AABB_halfedge_graph_segment_primitive<cgal_mesh>;
using tree_type = CGAL::AABB_tree<CGAL::AABB_traits<cgal_kernel, primitive>>;
using polyline = std::vector<cgal_kernel::Point_3>;

struct sliced_body {
    sliced_body(const triangle_mesh& body, const std::vector<triangle_mesh>& tools)
        : mesh(to_cgal(body)) {
        cgal_mesh joined;
        for (const triangle_mesh& tool : tools) {
            joined += to_cgal(tool);
        }
        CGAL::Polygon_mesh_processing::corefine_and_compute_difference(mesh, joined, mesh);
        tree.insert(edges(mesh).first, edges(mesh).second, mesh);
        tree.build();
    }

    cgal_mesh mesh;
    tree_type tree;
};

struct slicing {
    std::shared_ptr<const sliced_body> body;
    std::vector<polyline> pieces;
};

double length(const polyline& closed) {
    double sum = 0.0;
    for (std::size_t i = 1; i < closed.size(); ++i) {
        sum += std::sqrt(CGAL::squared_distance(closed[i - 1], closed[i]));
    }
    return sum;
}

std::vector<bench::fact> facts_of(const slicing& done) {
    double perimeter = 0.0;
    for (const polyline& piece : done.pieces) {
        perimeter += length(piece);
    }
    return {{"pieces", static_cast<double>(done.pieces.size()), 0.0},
            {"perimeter", perimeter, 1e-4}};
}

} // namespace

bench::contestant cgal_sections(const triangle_mesh& body, const std::vector<triangle_mesh>& tools,
                                const std::vector<double>& heights) {
    const auto kept = std::make_shared<std::shared_ptr<const sliced_body>>();
    return bench::make_contestant(
        slicer_name,
        [=] {
            if (*kept == nullptr) {
                *kept = std::make_shared<const sliced_body>(body, tools);
            }
            return slicing{*kept, {}};
        },
        [=](slicing& s) {
            CGAL::Polygon_mesh_slicer<cgal_mesh, cgal_kernel> slicer(s.body->mesh, s.body->tree);
            for (const double height : heights) {
                slicer(cgal_kernel::Plane_3(0, 0, 1, -height), std::back_inserter(s.pieces));
            }
        },
        facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant cgal_sections(const triangle_mesh&, const std::vector<triangle_mesh>&,
                                const std::vector<double>&) {
    return bench::absent(slicer_name);
}

} // namespace peers

#endif
