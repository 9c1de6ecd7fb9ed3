#include <bench/peers/cgal.h>

namespace {

constexpr char subdivision_name[] = "CGAL PTQ, mask of middles";

} // namespace

#ifdef OX_BENCH_HAS_CGAL

#include <CGAL/Simple_cartesian.h>
#include <CGAL/subdivision_method_3.h>

#include <bench/peers/cgal_mesh.h>

namespace peers {
namespace {

using float_kernel = CGAL::Simple_cartesian<float>;
using float_mesh = CGAL::Surface_mesh<float_kernel::Point_3>;
using descriptors = boost::graph_traits<float_mesh>;

/// Leaves the old points where they are and puts the new ones in the middle of their sides.
struct middle_mask {
    float_mesh& mesh;

    void edge_node(descriptors::halfedge_descriptor side, float_kernel::Point_3& point) const {
        point = CGAL::midpoint(mesh.point(mesh.source(side)), mesh.point(mesh.target(side)));
    }
    void vertex_node(descriptors::vertex_descriptor vertex, float_kernel::Point_3& point) const {
        point = mesh.point(vertex);
    }
    void border_node(descriptors::halfedge_descriptor side, float_kernel::Point_3& edge_point,
                     float_kernel::Point_3& vertex_point) const {
        edge_node(side, edge_point);
        vertex_node(mesh.target(side), vertex_point);
    }
};

std::vector<bench::fact> facts_of(const float_mesh& mesh) {
    return {{"vertices", static_cast<double>(mesh.number_of_vertices()), 0.0},
            {"triangles", static_cast<double>(mesh.number_of_faces()), 0.0}};
}

} // namespace

bench::contestant cgal_subdivision(std::shared_ptr<const triangle_mesh> mesh) {
    const auto kept = std::make_shared<float_mesh>();
    return bench::make_contestant(
        subdivision_name,
        [=] {
            if (kept->is_empty()) {
                *kept = to_cgal<float_mesh>(*mesh);
            }
            return float_mesh(*kept);
        },
        [](float_mesh& m) {
            CGAL::Subdivision_method_3::PTQ(m, middle_mask{m},
                                            CGAL::parameters::number_of_iterations(1));
        },
        facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant cgal_subdivision(std::shared_ptr<const triangle_mesh>) {
    return bench::absent(subdivision_name);
}

} // namespace peers

#endif
