#include <bench/peers/cgal.h>

#include "sphere.h"
#include "workloads.h"

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_polygon;
using ox::ox_solid;

const ox_3dvector up(0.0f, 0.0f, 1.0f);

// The grid rounds every section to 0.0001.
constexpr double rounding = 1e-3;

// Heights all over the sphere, none through a vertex of the icosahedron.
std::vector<double> section_heights() {
    std::vector<double> heights;
    for (int i = 0; i < 20; ++i) {
        heights.push_back(sphere_radius * (0.0951 * i - 0.9037));
    }
    return heights;
}

struct sections {
    std::shared_ptr<ox_solid> solid;
    std::vector<std::unique_ptr<ox_polygon>> pieces;
};

void cut_section(sections& s, double height) {
    const ox_3dvector point(0.0f, 0.0f, static_cast<float>(height));
    for (ox_polygon* piece : s.solid->intersect_by_plane(point, up)) {
        s.pieces.emplace_back(piece);
    }
}

void cut_sections(sections& s) {
    for (const double height : section_heights()) {
        cut_section(s, height);
    }
}

// The faces are made before the clock starts, as the slicer's tree is built before.
std::shared_ptr<ox_solid> sectioned_solid(const peers::triangle_mesh& mesh) {
    sections first{std::make_shared<ox_solid>(to_solid(mesh)), {}};
    cut_section(first, 0.123);
    return first.solid;
}

std::vector<fact> section_facts(sections& s) {
    double perimeter = 0.0;
    for (const std::unique_ptr<ox_polygon>& piece : s.pieces) {
        perimeter += static_cast<double>(piece->get_perimeter());
    }
    return {{"pieces", static_cast<double>(s.pieces.size()), 0.0},
            {"perimeter", perimeter, rounding}};
}

contest section_sphere(long faces) {
    const peers::triangle_mesh mesh = sphere_mesh(faces, {0.0, 0.0, 0.0});
    const std::shared_ptr<ox_solid> sphere = sectioned_solid(mesh);
    contest rules;
    rules.ours = make_contestant(
        "ox_solid",
        [=] {
            return sections{sphere, {}};
        },
        cut_sections, section_facts);
    rules.peers = {peers::cgal_sections(mesh, {}, section_heights())};
    rules.goal = 1.0;
    return rules;
}

} // namespace

workload sphere_sections() {
    return workload{"sphere, 20 horizontal sections",
                    "faces",
                    {1280, 5120, 20480},
                    {320, 1280, 5120},
                    section_sphere}
        .growing_at_most(0.7);
}

} // namespace bench
