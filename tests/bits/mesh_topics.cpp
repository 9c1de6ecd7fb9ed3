#include <cstdio>
#include <string>

#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <tests/bits/result_digest.h>
#include <tests/support/generator.h>

namespace bits {
namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_triangle_set;
using support::generator;

/// Far out, the welders' cells have rounded corners.
constexpr float scales[] = {1.f, 40.f, 3000.f, 3e7f, 1e30f, 1e-30f};

/// Multiples of 1/8 of the scale: vertices coincide, and lie on the boundaries of cells.
ox_3dvector random_vertex(generator& random, float scale) {
    const int x = random.between(-8, 8);
    const int y = random.between(-8, 8);
    const int z = random.between(-8, 8);
    const float step = scale / 8.f;
    return ox_3dvector(static_cast<float>(x) * step, static_cast<float>(y) * step,
                       static_cast<float>(z) * step);
}

/// Half of the vertices lie next to another one.
ox_3dvector random_vertex_or_near(generator& random, float scale, const ox_3dvector& other) {
    if (random.one_in(2)) {
        return random_vertex(random, scale);
    }
    const double shift = random.real(-0.02, 0.02);
    return other + ox_3dvector(static_cast<float>(shift) * scale, 0.f, 0.f);
}

ox_triangle_set random_set(generator& random, float scale) {
    const int nb_vertices = random.between(3, 60);
    const int nb_triangles = random.between(0, 60);
    ox_triangle_set set(static_cast<unsigned int>(nb_vertices),
                        static_cast<unsigned int>(nb_triangles));
    ox_3dvector* const vertices = set.get_vertices();
    for (int i = 0; i < nb_vertices; ++i) {
        vertices[i] = random_vertex_or_near(random, scale, vertices[i / 2]);
    }
    for (int i = 0; i < 3 * nb_triangles; ++i) {
        set.get_triangles()[i] = static_cast<unsigned int>(random.between(0, nb_vertices - 1));
    }
    return set;
}

void add_set(result_digest& digest, const ox_triangle_set& set) {
    digest.add(set.get_nb_vertices());
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        digest.add(set.get_vertices()[i]);
    }
    digest.add(set.get_nb_triangles());
    for (unsigned int i = 0; i < 3 * set.get_nb_triangles(); ++i) {
        digest.add(set.get_triangles()[i]);
    }
}

void run_set_welding(result_digest& digest) {
    generator random(301);
    for (int i = 0; i < 3000; ++i) {
        const float scale = scales[i % 6];
        ox_triangle_set set = random_set(random, scale);
        const float normal_tolerance = random.one_in(2) ? 0.5f : 10.f;
        set.optimize(0.01f * scale, normal_tolerance);
        add_set(digest, set);
    }
}

void run_stream_welding(result_digest& digest) {
    generator random(302);
    for (int i = 0; i < 1500; ++i) {
        const float scale = scales[i % 6];
        ox::ox_vertex_optimizer optimizer(0.01f * scale, 0.5f);
        for (int call = 0; call < 4; ++call) {
            ox_list<ox_3dvector> vertices;
            vertices.push_right(random_vertex(random, scale));
            for (int k = 1; k < 30; ++k) {
                vertices.push_right(random_vertex_or_near(random, scale, vertices.at(k / 2)));
            }
            optimizer.add_vertices(vertices, random_vertex(random, 1.f));
        }
        digest.add(optimizer.get_mapping());
        digest.add(optimizer.get_optimized_vertices());
        digest.add(optimizer.get_optimized_normals());
    }
}

void run_subdivision(result_digest& digest) {
    generator random(303);
    for (int i = 0; i < 1000; ++i) {
        ox_triangle_set set = random_set(random, scales[i % 6]);
        set.subdivide();
        set.subdivide();
        add_set(digest, set);
    }
}

void run_half_edges(result_digest& digest) {
    generator random(304);
    for (int i = 0; i < 2000; ++i) {
        ox_list<unsigned int> triangles;
        const int nb_corners = random.between(0, 100);
        for (int k = 0; k < nb_corners; ++k) {
            triangles.push_right(static_cast<unsigned int>(random.between(0, 12)));
        }
        ox::ox_mesh mesh;
        mesh.set_vertices(ox_list<ox_3dvector>(12)); // one index is beyond them
        mesh.set_triangles(triangles);
        mesh.build_half_edges();
        digest.add(mesh.is_closed());
        for (const ox::ox_mesh::ox_half_edge* side : mesh.get_half_edges()) {
            digest.add(side->triangle);
            digest.add(side->opposite != nullptr ? side->opposite->triangle + 1 : 0u);
            digest.add(side->opposite != nullptr ? side->opposite->start : 0u);
        }
    }
}

void run_raw_files(result_digest& digest) {
    generator random(305);
    const std::string path = "ox_result_hash.raw";
    for (int i = 0; i < 50; ++i) {
        ox_triangle_set set = random_set(random, scales[i % 6]);
        digest.add(set.write_binary_raw(path.c_str()));
        ox_triangle_set found;
        digest.add(found.read_binary_raw(path.c_str()));
        add_set(digest, found);
    }
    std::remove(path.c_str());
}

} // namespace

const topic mesh_topics[5] = {
    {"set_welding", run_set_welding}, {"stream_welding", run_stream_welding},
    {"subdivision", run_subdivision}, {"half_edges", run_half_edges},
    {"raw_files", run_raw_files},
};

} // namespace bits
