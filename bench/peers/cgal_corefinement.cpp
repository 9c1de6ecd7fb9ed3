#include <bench/peers/cgal.h>

#ifdef OX_BENCH_HAS_CGAL

#include <bench/peers/cgal_mesh.h>

#include <CGAL/Polygon_mesh_processing/corefinement.h>
#include <CGAL/Polygon_mesh_processing/measure.h>

namespace peers {
namespace {

namespace PMP = CGAL::Polygon_mesh_processing;

constexpr char corefinement[] = "CGAL corefinement";

struct operands {
    cgal_mesh body;
    std::vector<cgal_mesh> tools;
};

operands make_operands(const triangle_mesh& body, const std::vector<triangle_mesh>& tools) {
    operands made;
    made.body = to_cgal(body);
    for (const triangle_mesh& tool : tools) {
        made.tools.push_back(to_cgal(tool));
    }
    return made;
}

std::vector<bench::fact> facts_of(const operands& done) {
    return {{"volume", PMP::volume(done.body), 0.0}};
}

} // namespace

bench::contestant cgal_differences(const triangle_mesh& body,
                                   const std::vector<triangle_mesh>& tools) {
    return bench::make_contestant(
        corefinement, [=] { return make_operands(body, tools); },
        [](operands& o) {
            for (cgal_mesh& tool : o.tools) {
                PMP::corefine_and_compute_difference(o.body, tool, o.body);
            }
        },
        facts_of);
}

bench::contestant cgal_joined_difference(const triangle_mesh& body,
                                         const std::vector<triangle_mesh>& tools) {
    return bench::make_contestant(
        "CGAL corefinement, tools in one mesh", [=] { return make_operands(body, tools); },
        [](operands& o) {
            cgal_mesh joined;
            for (const cgal_mesh& tool : o.tools) {
                joined += tool;
            }
            PMP::corefine_and_compute_difference(o.body, joined, o.body);
        },
        facts_of);
}

bench::contestant cgal_unions(const std::vector<triangle_mesh>& bodies) {
    return bench::make_contestant(
        corefinement, [=] { return make_operands(triangle_mesh(), bodies); },
        [](operands& o) {
            o.body = o.tools.front();
            for (std::size_t i = 1; i < o.tools.size(); ++i) {
                PMP::corefine_and_compute_union(o.body, o.tools[i], o.body);
            }
        },
        facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant cgal_differences(const triangle_mesh&, const std::vector<triangle_mesh>&) {
    return bench::absent("CGAL corefinement");
}

bench::contestant cgal_joined_difference(const triangle_mesh&, const std::vector<triangle_mesh>&) {
    return bench::absent("CGAL corefinement, tools in one mesh");
}

bench::contestant cgal_unions(const std::vector<triangle_mesh>&) {
    return bench::absent("CGAL corefinement");
}

} // namespace peers

#endif
