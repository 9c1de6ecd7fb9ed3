#ifndef OX_TESTS_REFERENCE_MESH_WELDING_H
#define OX_TESTS_REFERENCE_MESH_WELDING_H

#include <memory>
#include <vector>

#include <ox/geometry/ox_3dvector.h>

namespace reference {

/// A cell of the plain octree: every node owns its children, leaves list welded vertices.
struct octree_node {
    std::unique_ptr<octree_node> children[8];
    ox::ox_3dvector origin;
    float edge = 1.f;
    std::vector<unsigned int> welded;
};

/// An indexed triangle mesh in standard containers.
struct plain_mesh {
    std::vector<ox::ox_3dvector> vertices;
    std::vector<unsigned int> triangles;
};

/// Welds a mesh by scanning the leaf of each corner. False, and nothing changes, when the root
/// would have to be doubled more than 100 times.
bool optimize(plain_mesh& mesh, float position_tolerance, float normal_tolerance);

/// Welds a stream of finite vertices by scanning the leaf of each.
class vertex_optimizer {
public:
    vertex_optimizer(float position_tolerance, float normal_tolerance);
    void add(const ox::ox_3dvector& p, const ox::ox_3dvector& n);

    std::vector<ox::ox_3dvector> vertices;
    std::vector<ox::ox_3dvector> normals;
    std::vector<unsigned int> mapping;

private:
    float position_tolerance;
    float normal_tolerance;
    float leaf_size;
    std::unique_ptr<octree_node> root;
};

} // namespace reference

#endif
