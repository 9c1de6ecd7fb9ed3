#include "parts.h"

#include <memory>

#include <ox/solid/ox_csg.h>

namespace bench {
namespace {

using ox::ox_csg;
using ox::ox_solid;

/// Volumes agree within the tolerance of 0.001 over the surface; the thinnest part is 0.2.
constexpr double rounding = 1e-3;

/// Parts, which nothing changes, and what is made of them.
struct combination {
    std::shared_ptr<const parts> of;
    ox_solid result;
};

std::vector<fact> facts_of(combination& made) {
    return {{"volume", made.result.get_volume(), rounding}};
}

contestant make_combining(const char* name, const parts& of, void (*combine)(combination&)) {
    const auto shared = std::make_shared<const parts>(of);
    return make_contestant(
        name,
        [shared] {
            return combination{shared, {}};
        },
        combine, facts_of);
}

void combine_in_one_pass(combination& made) {
    ox_csg csg;
    csg.unites(made.of->body);
    for (const ox_solid& part : made.of->added) {
        csg.unites(part);
    }
    for (const ox_solid& part : made.of->removed) {
        csg.substracts(part);
    }
    csg.compute();
    made.result = csg.get_solid();
}

void combine_one_after_another(combination& made) {
    made.result = made.of->body;
    const auto combine_with = [&made](const ox_solid& part, bool is_added) {
        ox_csg csg;
        csg.unites(made.result);
        if (is_added) {
            csg.unites(part);
        } else {
            csg.substracts(part);
        }
        csg.compute();
        made.result = csg.get_solid();
    };
    for (const ox_solid& part : made.of->added) {
        combine_with(part, true);
    }
    for (const ox_solid& part : made.of->removed) {
        combine_with(part, false);
    }
}

void combine_face_by_face(combination& made) {
    made.result = made.of->body;
    for (const ox_solid& part : made.of->added) {
        ox_solid tool = part;
        made.result.unites(tool);
    }
    ox_solid united;
    for (const ox_solid& part : made.of->removed) {
        ox_solid tool = part;
        united.unites(tool);
    }
    made.result.substracts(united);
}

} // namespace

contestant in_one_pass(const parts& of) {
    return make_combining("ox_csg", of, combine_in_one_pass);
}

contestant one_after_another(const parts& of) {
    return make_combining("ox_csg, one part after another", of, combine_one_after_another);
}

contestant face_by_face(const parts& of) {
    return make_combining("ox_solid, face by face", of, combine_face_by_face);
}

peers::triangle_mesh mesh_of(const ox_solid& solid) {
    ox_csg csg;
    csg.unites(solid);
    csg.compute();
    const ox::ox_triangle_set set = csg.get_triangles();
    peers::triangle_mesh mesh;
    for (unsigned int v = 0; v < set.get_nb_vertices(); ++v) {
        const ox::ox_3dvector& p = set.get_vertices()[v];
        mesh.points.push_back(
            {static_cast<double>(p.x), static_cast<double>(p.y), static_cast<double>(p.z)});
    }
    for (std::size_t t = 0; t < set.get_nb_triangles(); ++t) {
        const unsigned int* corners = set.get_triangles() + 3 * t;
        mesh.triangles.push_back({corners[0], corners[1], corners[2]});
    }
    return mesh;
}

std::vector<peers::triangle_mesh> meshes_of(const std::vector<ox_solid>& solids) {
    std::vector<peers::triangle_mesh> meshes;
    for (const ox_solid& solid : solids) {
        meshes.push_back(mesh_of(solid));
    }
    return meshes;
}

} // namespace bench
