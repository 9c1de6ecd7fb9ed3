#include "mesh_welding.h"

#include <algorithm>
#include <cmath>

namespace reference {

namespace {

using ox::ox_3dvector;

bool inside(const octree_node& node, const ox_3dvector& p) {
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const float origin = node.origin.at(axis);
        if (!(origin <= p.at(axis) && p.at(axis) < origin + node.edge)) {
            return false;
        }
    }
    return true;
}

void grow(std::unique_ptr<octree_node>& root, const ox_3dvector& p) {
    auto grown = std::make_unique<octree_node>();
    grown->edge = root->edge * 2.f;
    int octant = 0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const bool moved = p.at(axis) < root->origin.at(axis);
        grown->origin[axis] = moved ? root->origin.at(axis) - root->edge : root->origin.at(axis);
        octant += moved ? 1 << axis : 0;
    }
    grown->children[octant] = std::move(root);
    root = std::move(grown);
}

octree_node* descend(octree_node* node, const ox_3dvector& p) {
    const float half = node->edge * 0.5f;
    int octant = 0;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        octant += p.at(axis) >= node->origin.at(axis) + half ? 1 << axis : 0;
    }
    if (node->children[octant] == nullptr) {
        node->children[octant] = std::make_unique<octree_node>();
        octree_node& child = *node->children[octant];
        child.edge = half;
        for (unsigned int axis = 0; axis < 3; ++axis) {
            child.origin[axis] = node->origin.at(axis);
            if ((octant & (1 << axis)) != 0) {
                child.origin[axis] += half;
            }
        }
    }
    return node->children[octant].get();
}

bool close(const ox_3dvector& p, const ox_3dvector& q, float tolerance) {
    return std::fabs(p.x - q.x) <= tolerance && std::fabs(p.y - q.y) <= tolerance &&
           std::fabs(p.z - q.z) <= tolerance;
}

bool agree(const ox_3dvector& n, const ox_3dvector& m, float tolerance) {
    return std::fabs(n.x - m.x) + std::fabs(n.y - m.y) + std::fabs(n.z - m.z) <= tolerance;
}

/// The index that p joins in the leaf; a new one is appended to all lists.
unsigned int weld(octree_node& leaf, const ox_3dvector& p, const ox_3dvector& n,
                  float position_tolerance, float normal_tolerance,
                  std::vector<ox_3dvector>& vertices, std::vector<ox_3dvector>& normals) {
    for (const unsigned int m : leaf.welded) {
        if (close(p, vertices[m], position_tolerance) && agree(n, normals[m], normal_tolerance)) {
            return m;
        }
    }
    const unsigned int added = static_cast<unsigned int>(vertices.size());
    leaf.welded.push_back(added);
    vertices.push_back(p);
    normals.push_back(n);
    return added;
}

} // namespace

bool optimize(plain_mesh& mesh, float position_tolerance, float normal_tolerance) {
    auto root = std::make_unique<octree_node>();
    int steps = 0;
    for (const ox_3dvector& p : mesh.vertices) {
        while (!inside(*root, p)) {
            if (++steps > 100) {
                return false;
            }
            grow(root, p);
        }
    }
    std::vector<ox_3dvector> vertices, normals;
    for (std::size_t first = 0; first + 2 < mesh.triangles.size(); first += 3) {
        const ox_3dvector a = mesh.vertices[mesh.triangles[first]];
        const ox_3dvector b = mesh.vertices[mesh.triangles[first + 1]];
        const ox_3dvector c = mesh.vertices[mesh.triangles[first + 2]];
        ox_3dvector n = ox::ox_cross(b - a, c - a);
        n.normalize();
        for (std::size_t i = first; i < first + 3; ++i) {
            const ox_3dvector p = mesh.vertices[mesh.triangles[i]];
            octree_node* leaf = root.get();
            for (int level = 0; level < 9; ++level) {
                leaf = descend(leaf, p);
            }
            mesh.triangles[i] =
                weld(*leaf, p, n, position_tolerance, normal_tolerance, vertices, normals);
        }
    }
    mesh.vertices = vertices;
    return true;
}

vertex_optimizer::vertex_optimizer(float weld_distance, float weld_normal_distance)
    : position_tolerance(weld_distance), normal_tolerance(weld_normal_distance),
      leaf_size(std::max(1.f, 10.f * weld_distance)), root(std::make_unique<octree_node>()) {}

void vertex_optimizer::add(const ox_3dvector& p, const ox_3dvector& n) {
    while (!inside(*root, p)) {
        grow(root, p);
    }
    octree_node* leaf = root.get();
    while (leaf->edge >= leaf_size) {
        leaf = descend(leaf, p);
    }
    mapping.push_back(weld(*leaf, p, n, position_tolerance, normal_tolerance, vertices, normals));
}

} // namespace reference
