#include <bench/peers/cgal.h>
#include <bench/peers/openmesh.h>
#include <ox/mesh/ox_mesh.h>

#include "field.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_triangle_set;

contest subdivide(long triangles) {
    const ox_triangle_set field = welded_field(triangles);
    contest rules;
    rules.ours = make_contestant(
        "ox_triangle_set", [=] { return clone(field); },
        [](ox_triangle_set& set) { set.subdivide(); },
        [](const ox_triangle_set& set) {
            return std::vector<fact>{
                {"vertices", static_cast<double>(set.get_nb_vertices()), 0.0},
                {"triangles", static_cast<double>(set.get_nb_triangles()), 0.0}};
        });
    rules.peers = {peers::cgal_subdivision(to_mesh(field))};
    rules.goal = 0.7;
    return rules;
}

std::vector<fact> mesh_facts(const ox::ox_mesh& mesh) {
    double border = 0.0;
    for (const ox::ox_mesh::ox_half_edge* side : mesh.get_half_edges()) {
        border += side->opposite == nullptr ? 1.0 : 0.0;
    }
    return {{"triangles", mesh.get_half_edges().size() / 3.0, 0.0}, {"border sides", border, 0.0}};
}

contest build_half_edges(long triangles) {
    const ox_triangle_set field = welded_field(triangles);
    const auto vertices = std::make_shared<const ox::ox_list<ox::ox_3dvector>>(vertex_list(field));
    const auto indices = std::make_shared<const ox::ox_list<unsigned int>>(index_list(field));
    const auto same = to_mesh(field);
    contest rules;
    rules.ours = make_contestant(
        "ox_mesh", [] { return ox::ox_mesh(); },
        [=](ox::ox_mesh& mesh) {
            mesh.set_vertices(*vertices);
            mesh.set_triangles(*indices);
            mesh.build_half_edges();
        },
        mesh_facts);
    rules.peers = {peers::cgal_half_edges(same), peers::openmesh_half_edges(same)};
    rules.goal = 0.5;
    return rules;
}

} // namespace

std::vector<workload> refining_workloads() {
    const std::vector<long> sizes = {5000, 50000, 500000};
    const std::vector<long> quick_sizes = {5000, 25000, 125000};
    return {workload{"subdivision", "triangles", sizes, quick_sizes, subdivide}.judged_from(500000),
            workload{"half-edges", "triangles", sizes, quick_sizes, build_half_edges}.judged_from(
                500000)};
}

} // namespace bench
