#include <tests/reliability/failures/scenario.h>

#include <cstdio>
#include <cstring>

#include <ox/mesh/ox_mesh.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>

namespace failures {

namespace {

using ox::ox_3dvector;
using ox::ox_list;
using ox::ox_mesh;
using ox::ox_triangle_set;
using ox::ox_vertex_optimizer;

const char* const raw_path = "failing_memory.raw";
const char* const stl_path = "failing_memory.stl";

/// Two triangles of a square, each with corners of its own.
ox_triangle_set square() {
    ox_triangle_set set(6, 2);
    const float corners[6][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 0}, {1, 1}, {0, 1}};
    for (unsigned int i = 0; i < 6; ++i) {
        set.get_vertices()[i] = ox_3dvector(corners[i][0], corners[i][1], 0.0f);
        set.get_triangles()[i] = i;
    }
    return set;
}

std::string contents_of(ox_triangle_set& set) {
    std::string contents = told(set.get_nb_vertices(), set.get_nb_triangles());
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        contents += told(set.get_vertices()[i]);
    }
    for (unsigned int i = 0; i < 3 * set.get_nb_triangles(); ++i) {
        contents += told(set.get_triangles()[i]);
    }
    return contents;
}

void write_stl() {
    unsigned char bytes[84 + 50] = {};
    bytes[80] = 1;
    if (std::FILE* const file = std::fopen(stl_path, "wb")) {
        std::fwrite(bytes, 1, sizeof bytes, file);
        std::fclose(file);
    }
}

void write_raw() {
    ox_triangle_set set(4, 1);
    std::memset(set.get_triangles(), 0, 3 * sizeof(unsigned int));
    set.write_binary_raw(raw_path);
}

template <typename Act>
scenario on_square(const std::string& name, Act act) {
    return on(name, square, act, contents_of);
}

void add_sets(std::vector<scenario>& all) {
    all.push_back(on_square("TriangleSetIsAllocated", [](ox_triangle_set& set) {
        set.allocate(9, 0);
        return std::string();
    }));
    all.push_back(on_square("TriangleSetIsWelded", [](ox_triangle_set& set) {
        set.optimize(0.001f, 10.0f);
        return std::string();
    }));
    all.push_back(on_square("TriangleSetIsRefined", [](ox_triangle_set& set) {
        set.subdivide();
        return std::string();
    }));
    all.push_back(on_square("RawFileIsRead", [](ox_triangle_set& set) {
                      write_raw();
                      return told(set.read_binary_raw(raw_path));
                  }).or_refuses("0 "));
    all.push_back(on_square("RawFileIsWritten", [](ox_triangle_set& set) {
                      return told(set.write_binary_raw(raw_path));
                  }).or_refuses("0 "));
    all.push_back(on_square("StlFileIsRead", [](ox_triangle_set& set) {
                      write_stl();
                      return told(set.read_binary_stl(stl_path));
                  }).or_refuses("0 "));
}

ox_list<ox_3dvector> corners(float at) {
    return ox::ox_make_list({ox_3dvector(at, 0.0f, 0.0f), ox_3dvector(at, 1.0f, 0.0f),
                             ox_3dvector(at, 1.0f, 1.0f), ox_3dvector(at, 0.0f, 0.0f)});
}

std::string welded(ox_vertex_optimizer& optimizer) {
    return told(optimizer.get_mapping(), optimizer.get_optimized_vertices(),
                optimizer.get_optimized_normals());
}

/// A tetrahedron with its half-edges.
ox_mesh tetrahedron() {
    ox_mesh mesh;
    mesh.set_vertices(corners(0.0f));
    mesh.set_triangles(ox::ox_make_list({0u, 1u, 2u, 0u, 3u, 1u, 1u, 3u, 2u, 2u, 3u, 0u}));
    mesh.build_half_edges();
    return mesh;
}

std::string half_edges(ox_mesh& mesh) {
    return told(mesh.get_vertices(), mesh.get_triangles(), mesh.get_half_edges().size(),
                mesh.is_closed());
}

template <typename Act>
scenario on_tetrahedron(const std::string& name, Act act) {
    return on(name, tetrahedron, act, half_edges);
}

} // namespace

std::vector<scenario> mesh_scenarios() {
    std::vector<scenario> all;
    add_sets(all);
    all.push_back(on(
        "VertexOptimizerIsMade", [] { return ox_vertex_optimizer(0.001f, 0.1f); },
        [](ox_vertex_optimizer& optimizer) {
            optimizer = ox_vertex_optimizer(0.01f, 0.1f);
            return std::string();
        },
        welded));
    all.push_back(on(
                      "VertexOptimizerGainsVertices",
                      [] { return ox_vertex_optimizer(0.001f, 0.1f); },
                      [](ox_vertex_optimizer& optimizer) {
                          optimizer.add_vertices(corners(1.0f), ox_3dvector(1.0f, 0.0f, 0.0f));
                          return std::string();
                      },
                      welded)
                      .with(promise::some_of_it));
    all.push_back(on_tetrahedron("MeshIsGivenItsVertices", [](ox_mesh& mesh) {
        mesh.set_vertices(corners(2.0f));
        return std::string();
    }));
    all.push_back(on_tetrahedron("MeshIsGivenItsTriangles", [](ox_mesh& mesh) {
        mesh.set_triangles(ox::ox_make_list({0u, 1u, 2u}));
        return std::string();
    }));
    all.push_back(on_tetrahedron("MeshBuildsItsHalfEdges", [](ox_mesh& mesh) {
        mesh.build_half_edges();
        return std::string();
    }));
    return all;
}

} // namespace failures
