#include <bench/peers/meshoptimizer.h>
#include <ox/mesh/ox_vertex_optimizer.h>

#include "field.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_triangle_set;

contest against_exact_remap(const contestant& ours, const ox_triangle_set& soup) {
    contest rules;
    rules.ours = ours;
    rules.peers = {peers::meshoptimizer_weld(soup)};
    rules.goal = 1.0;
    rules.stretch = 0.7;
    return rules;
}

contest weld_set(long triangles, bool shuffled) {
    const ox_triangle_set soup = triangle_soup(triangles, shuffled);
    return against_exact_remap(
        make_contestant(
            "ox_triangle_set", [=] { return clone(soup); },
            [](ox_triangle_set& set) { set.optimize(position_tolerance, any_normal); },
            [](const ox_triangle_set& set) {
                return std::vector<fact>{
                    {"vertices", static_cast<double>(set.get_nb_vertices()), 0.0}};
            }),
        soup);
}

contest weld_stream(long triangles, bool shuffled) {
    const ox_triangle_set soup = triangle_soup(triangles, shuffled);
    const auto vertices = std::make_shared<const ox::ox_list<ox::ox_3dvector>>(vertex_list(soup));
    return against_exact_remap(
        make_contestant(
            "ox_vertex_optimizer",
            [] { return ox::ox_vertex_optimizer(position_tolerance, any_normal); },
            [=](ox::ox_vertex_optimizer& optimizer) { optimizer.add_vertices(*vertices); },
            [](const ox::ox_vertex_optimizer& optimizer) {
                return std::vector<fact>{
                    {"vertices", static_cast<double>(optimizer.get_optimized_vertices().size()),
                     0.0}};
            }),
        soup);
}

} // namespace

std::vector<workload> welding_workloads() {
    const std::vector<long> sizes = {10000, 100000, 1000000};
    const std::vector<long> quick_sizes = {10000, 50000, 250000};
    return {workload{"set welded", "triangles", sizes, quick_sizes,
                     [](long n) { return weld_set(n, false); }}
                .judged_from(1000000),
            workload{"set welded, triangles shuffled", "triangles", sizes, quick_sizes,
                     [](long n) { return weld_set(n, true); }}
                .judged_from(1000000),
            workload{"stream welded", "triangles", sizes, quick_sizes,
                     [](long n) { return weld_stream(n, false); }}
                .judged_from(1000000),
            workload{"stream welded, triangles shuffled", "triangles", sizes, quick_sizes,
                     [](long n) { return weld_stream(n, true); }}
                .judged_from(1000000)};
}

} // namespace bench
