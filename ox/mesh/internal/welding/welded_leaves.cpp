#include <ox/mesh/internal/welding/welded_leaves.h>

#include <ox/internal/hashing.h>

namespace ox::internal {

namespace {

/// The first edge below `leaf_size` on the way down from `root_edge`.
float leaf_edge_below(float leaf_size, float root_edge) {
    float edge = root_edge;
    while (edge >= leaf_size) {
        edge *= 0.5f;
    }
    return edge;
}

leaf_grid grid_below(const octree_cell& root, float leaf_size) {
    return leaf_grid(root, leaf_edge_below(leaf_size, root.edge));
}

} // namespace

welded_leaves::welded_leaves(float largest_leaf_size)
    : leaf_size(largest_leaf_size), grid(grid_below(octree.get_root(), leaf_size)),
      is_grid(grid.is_exact()) {}

welded_leaves::welded_leaves(const vertex_octree& finished_octree, float largest_leaf_size,
                             double crowding_edge)
    : octree(finished_octree), leaf_size(largest_leaf_size),
      grid(grid_below(octree.get_root(), leaf_size)), is_grid(grid.is_exact()), is_finished(true),
      has_keys(grid.leaf_edge() < crowding_edge) {}

std::uint64_t welded_leaves::key_of(std::uint32_t number, const ox_3dvector& position) const {
    if (!has_keys) {
        return 0;
    }
    return is_grid ? grid.hash_of_leaf(position) : key_of_number(leaf_numbers[number]);
}

bool welded_leaves::grow_over(const ox_3dvector& p, const ox_list<ox_3dvector>& welded) {
    if (!octree.can_contain(p)) {
        return false;
    }
    while (!octree.contains(p)) {
        if (is_grid) {
            prepare_growth(octree.get_root().grown_towards(p), welded);
        }
        octree.grow_towards(p);
    }
    if (is_grid && !grid.covers(p)) {
        number_leaves(welded);
    }
    return true;
}

/// Keeps the leaves of the welded vertices known while `root` becomes the root.
void welded_leaves::prepare_growth(const octree_cell& root, const ox_list<ox_3dvector>& welded) {
    const leaf_grid grown = grid_below(root, leaf_size);
    if (root.edge < leaf_size) {
        abandoned_count = static_cast<std::uint32_t>(welded.size());
    }
    if (grown.is_exact()) {
        grid = grown;
    } else {
        number_leaves(welded);
    }
}

/// Every welded vertex walks to the leaf that it was in since it was added.
void welded_leaves::number_leaves(const ox_list<ox_3dvector>& welded) {
    std::vector<std::uint32_t> numbers;
    for (const ox_3dvector& position : welded) {
        const bool is_reachable = numbers.size() >= abandoned_count && octree.contains(position);
        numbers.push_back(is_reachable ? octree.leaf_below_size(position, leaf_size) : no_leaf);
    }
    leaf_numbers.swap(numbers);
    is_grid = false;
}

welded_leaves::leaf welded_leaves::keyed_leaf_of(const ox_3dvector& p) {
    if (is_grid) {
        return {0, grid.hash_of_leaf(p)};
    }
    const std::uint32_t number = octree.leaf_below_size(p, leaf_size);
    return {number, has_keys ? key_of_number(number) : 0};
}

std::uint64_t welded_leaves::key_of_number(std::uint32_t number) {
    return spread(number);
}

} // namespace ox::internal
