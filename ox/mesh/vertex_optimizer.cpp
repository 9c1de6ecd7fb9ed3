#include <ox/mesh/ox_vertex_optimizer.h>

#include <ox/mesh/internal/tolerances.h>
#include <ox/mesh/internal/vertex_octree.h>
#include <ox/mesh/internal/vertex_welder.h>

namespace ox {

namespace {

float leaf_size_for(float position_tolerance) {
    const float wanted = leaf_size_in_tolerances * position_tolerance;
    return wanted > min_leaf_size ? wanted : min_leaf_size;
}

} // namespace

class ox_vertex_optimizer_state {
public:
    ox_vertex_optimizer_state(float position_tolerance, float normal_tolerance)
        : leaf_size(leaf_size_for(position_tolerance)),
          welder(position_tolerance, normal_tolerance) {}

    void add(const ox_3dvector& p, const ox_3dvector& n) { mapping.push_right(weld(p, n)); }

    float leaf_size;
    oxp_vertex_octree octree;
    oxp_vertex_welder welder;
    ox_list<unsigned int> mapping;

private:
    unsigned int weld(const ox_3dvector& p, const ox_3dvector& n) {
        if (!octree.contains(p) && !octree.can_contain(p)) {
            return welder.add_alone(p, n);
        }
        while (!octree.contains(p)) {
            octree.grow_towards(p);
        }
        return welder.weld(octree.leaf_below_size(p, leaf_size), p, n);
    }
};

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
    const int nb_vertices = vertices.size();
    const ox_3dvector n = normal;
    for (int i = 0; i < nb_vertices; ++i) {
        const ox_3dvector p = vertices.at(i);
        state->add(p, n);
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
