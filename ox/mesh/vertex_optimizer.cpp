#include <ox/mesh/ox_vertex_optimizer.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>

#include <ox/mesh/internal/large_array.h>
#include <ox/mesh/internal/tolerances.h>
#include <ox/mesh/internal/welding/vertex_welder.h>
#include <ox/mesh/internal/welding/welded_leaves.h>

namespace ox {

using namespace internal;

namespace {

float leaf_size_for(float position_tolerance) {
    const float wanted = leaf_size_in_tolerances * position_tolerance;
    return wanted > min_leaf_size ? wanted : min_leaf_size;
}

} // namespace

class ox_vertex_optimizer_state {
public:
    ox_vertex_optimizer_state(float position_tolerance, float normal_tolerance)
        : welder(position_tolerance, normal_tolerance,
                 welded_leaves(leaf_size_for(position_tolerance))) {
        welder.keep_normals();
    }

    vertex_welder welder;
    ox_list<unsigned int> mapping;
};

namespace {

/// Raises the capacity of a list so that `count` more elements fit, by half at least: adding a few
/// at a time stays linear.
void make_room(ox_list<unsigned int>& list, int count) {
    const int size = list.size();
    const int capacity = list.get_capacity();
    const int largest = (std::numeric_limits<int>::max)();
    if (count > largest - size) {
        throw std::bad_array_new_length();
    }
    if (size + count > capacity) {
        list.set_size(
            std::max(size + count, capacity + std::min(capacity / 2, largest - capacity)));
        list.set_size(size);
        prefer_large_pages(list.get_data() + size,
                           sizeof(unsigned int) * static_cast<std::size_t>(count));
    }
}

} // namespace

ox_vertex_optimizer::ox_vertex_optimizer(float position_tolerance, float normal_tolerance)
    : state(std::make_shared<ox_vertex_optimizer_state>(position_tolerance, normal_tolerance)) {}

ox_vertex_optimizer::ox_vertex_optimizer(const ox_vertex_optimizer& other) = default;

ox_vertex_optimizer& ox_vertex_optimizer::operator=(const ox_vertex_optimizer& other) = default;

ox_vertex_optimizer::~ox_vertex_optimizer() = default;

void ox_vertex_optimizer::add_vertices(const ox_list<ox_3dvector>& vertices) {
    add_vertices(vertices, ox_3dvector());
}

void ox_vertex_optimizer::add_vertices(const ox_list<ox_3dvector>& vertices,
                                       const ox_3dvector& normal) {
    // Both arguments may lie in the lists that grow below.
    const int nb_vertices = std::max(vertices.size(), 0);
    const ox_3dvector n = normal;
    vertex_welder& welder = state->welder;
    ox_list<unsigned int>& mapping = state->mapping;
    make_room(mapping, nb_vertices);
    welder.expect(static_cast<std::size_t>(nb_vertices));
    vertex_welder::candidate block[welding_block];
    for (int first = 0; first < nb_vertices; first += static_cast<int>(welding_block)) {
        const int count = std::min(static_cast<int>(welding_block), nb_vertices - first);
        for (int i = 0; i < count; ++i) {
            const ox_3dvector& p = vertices.at(first + i);
            block[i] = {p, n, welder.cell_of(p)};
        }
        const int count_before = mapping.size();
        welder.weld(block, static_cast<std::size_t>(count), mapping.get_data() + count_before);
        mapping.set_size(count_before + count);
    }
}

const ox_list<unsigned int>& ox_vertex_optimizer::get_mapping() const {
    return state->mapping;
}

const ox_list<ox_3dvector>& ox_vertex_optimizer::get_optimized_vertices() const {
    return state->welder.get_positions();
}

const ox_list<ox_3dvector>& ox_vertex_optimizer::get_optimized_normals() const {
    return state->welder.get_normals();
}

} // namespace ox
