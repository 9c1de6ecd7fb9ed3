#include <bench/peers/cgal.h>

namespace {

constexpr char soup_name[] = "CGAL polygon_soup_to_polygon_mesh";

} // namespace

#ifdef OX_BENCH_HAS_CGAL

#include <CGAL/Polygon_mesh_processing/polygon_soup_to_polygon_mesh.h>

#include <bench/peers/cgal_mesh.h>

namespace peers {
namespace {

struct soup {
    std::vector<cgal_kernel::Point_3> points;
    std::vector<std::array<std::size_t, 3>> triangles;
    cgal_mesh mesh;
};

soup make_soup(const triangle_mesh& mesh) {
    soup made;
    for (const std::array<double, 3>& p : mesh.points) {
        made.points.emplace_back(p[0], p[1], p[2]);
    }
    made.triangles = mesh.triangles;
    return made;
}

std::vector<bench::fact> facts_of(const soup& done) {
    double border = 0.0;
    for (const cgal_mesh::Halfedge_index side : done.mesh.halfedges()) {
        border += done.mesh.is_border(side) ? 1.0 : 0.0;
    }
    return {{"triangles", static_cast<double>(done.mesh.number_of_faces()), 0.0},
            {"border sides", border, 0.0}};
}

} // namespace

bench::contestant cgal_half_edges(std::shared_ptr<const triangle_mesh> mesh) {
    return bench::make_contestant(
        soup_name, [=] { return make_soup(*mesh); },
        [](soup& s) {
            CGAL::Polygon_mesh_processing::polygon_soup_to_polygon_mesh(s.points, s.triangles,
                                                                        s.mesh);
        },
        facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant cgal_half_edges(std::shared_ptr<const triangle_mesh>) {
    return bench::absent(soup_name);
}

} // namespace peers

#endif
