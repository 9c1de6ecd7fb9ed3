#include <ox/mesh/internal/welding/vertex_octree.h>

#include <cmath>
#include <new>

#include <ox/mesh/internal/tolerances.h>

namespace ox::internal {

namespace {

constexpr unsigned int axis_bits[3] = {1u, 2u, 4u};

} // namespace

octree_cell octree_cell::grown_towards(const ox_3dvector& p) const {
    octree_cell grown{origin, edge * 2.0f};
    for (unsigned int axis = 0; axis < 3; ++axis) {
        if (p.at(axis) < origin.at(axis)) {
            grown.origin[axis] = origin.at(axis) - edge;
        }
    }
    return grown;
}

unsigned int octree_cell::octant_when_grown_towards(const ox_3dvector& p) const {
    return (p.x < origin.x ? axis_bits[0] : 0u) + //
           (p.y < origin.y ? axis_bits[1] : 0u) + //
           (p.z < origin.z ? axis_bits[2] : 0u);
}

unsigned int octree_cell::octant_of(const ox_3dvector& p) const {
    const float half = edge * 0.5f;
    return (p.x >= origin.x + half ? axis_bits[0] : 0u) +
           (p.y >= origin.y + half ? axis_bits[1] : 0u) +
           (p.z >= origin.z + half ? axis_bits[2] : 0u);
}

octree_cell octree_cell::child(unsigned int octant) const {
    const float half = edge * 0.5f;
    octree_cell cell{origin, half};
    for (unsigned int axis = 0; axis < 3; ++axis) {
        if ((octant & axis_bits[axis]) != 0) {
            cell.origin[axis] += half;
        }
    }
    return cell;
}

vertex_octree::vertex_octree() {
    root = add_node({ox_3dvector(), first_root_edge});
}

bool vertex_octree::can_contain(const ox_3dvector& p) const {
    octree_cell cell = get_root();
    while (!cell.contains(p) && std::isfinite(cell.edge)) {
        cell = cell.grown_towards(p);
    }
    return std::isfinite(cell.edge);
}

void vertex_octree::grow_towards(const ox_3dvector& p) {
    const unsigned int octant = get_root().octant_when_grown_towards(p);
    const std::uint32_t grown = add_node(get_root().grown_towards(p));
    nodes[grown].children[octant] = root;
    root = grown;
}

std::uint32_t vertex_octree::leaf_below_size(const ox_3dvector& p, float leaf_size) {
    std::uint32_t reached = root;
    while (nodes[reached].cell.edge >= leaf_size) {
        reached = child_towards(reached, p);
    }
    return reached;
}

std::uint32_t vertex_octree::add_node(const octree_cell& cell) {
    if (nodes.size() >= no_node) {
        throw std::bad_alloc();
    }
    node added{cell, {}};
    added.children.fill(no_node);
    nodes.push_back(added);
    return static_cast<std::uint32_t>(nodes.size() - 1);
}

std::uint32_t vertex_octree::child_towards(std::uint32_t parent, const ox_3dvector& p) {
    const unsigned int octant = nodes[parent].cell.octant_of(p);
    std::uint32_t child = nodes[parent].children[octant];
    if (child == no_node) {
        child = add_node(nodes[parent].cell.child(octant));
        nodes[parent].children[octant] = child;
    }
    return child;
}

} // namespace ox::internal
