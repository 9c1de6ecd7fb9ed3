#include "field.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace bench {
namespace {

using ox::ox_3dvector;
using ox::ox_triangle_set;

ox_3dvector hill(unsigned int i, unsigned int j) {
    return ox_3dvector(static_cast<float>(i), static_cast<float>(j),
                       static_cast<float>(4.0 * std::sin(0.05 * i) * std::cos(0.04 * j)));
}

// The order of the triangles, the same on every machine.
std::vector<unsigned int> order_of(unsigned int count, bool shuffled) {
    std::vector<unsigned int> order(count);
    std::iota(order.begin(), order.end(), 0u);
    if (shuffled) {
        std::mt19937 dice(20);
        for (unsigned int i = count - 1; i > 0; --i) {
            std::swap(order[i], order[dice() % (i + 1)]);
        }
    }
    return order;
}

} // namespace

ox_triangle_set triangle_soup(long nb_triangles, bool shuffled) {
    const unsigned int n =
        static_cast<unsigned int>(std::lround(std::sqrt(static_cast<double>(nb_triangles) / 2.0)));
    constexpr unsigned int corners[2][3] = {{0, 1, 3}, {0, 3, 2}};
    ox_triangle_set soup(6 * n * n, 2 * n * n);
    ox_3dvector* vertex = soup.get_vertices();
    for (const unsigned int triangle : order_of(2 * n * n, shuffled)) {
        const unsigned int i = triangle / 2 % n;
        const unsigned int j = triangle / 2 / n;
        for (const unsigned int corner : corners[triangle % 2]) {
            *vertex++ = hill(i + (corner & 1u), j + (corner >> 1));
        }
    }
    std::iota(soup.get_triangles(), soup.get_triangles() + 6 * n * n, 0u);
    return soup;
}

ox_triangle_set welded_field(long nb_triangles) {
    ox_triangle_set field = triangle_soup(nb_triangles);
    field.optimize(position_tolerance, any_normal);
    return field;
}

ox_triangle_set clone(const ox_triangle_set& set) {
    ox_triangle_set copy(set.get_nb_vertices(), set.get_nb_triangles());
    std::copy(set.get_vertices(), set.get_vertices() + set.get_nb_vertices(), copy.get_vertices());
    std::copy(set.get_triangles(), set.get_triangles() + 3 * set.get_nb_triangles(),
              copy.get_triangles());
    return copy;
}

std::shared_ptr<const peers::triangle_mesh> to_mesh(const ox_triangle_set& set) {
    const auto mesh = std::make_shared<peers::triangle_mesh>();
    for (unsigned int i = 0; i < set.get_nb_vertices(); ++i) {
        const ox_3dvector& v = set.get_vertices()[i];
        mesh->points.push_back(
            {static_cast<double>(v.x), static_cast<double>(v.y), static_cast<double>(v.z)});
    }
    for (unsigned int i = 0; i < set.get_nb_triangles(); ++i) {
        const unsigned int* const t = set.get_triangles() + 3 * i;
        mesh->triangles.push_back({t[0], t[1], t[2]});
    }
    return mesh;
}

ox::ox_list<ox_3dvector> vertex_list(const ox_triangle_set& set) {
    ox::ox_list<ox_3dvector> list(static_cast<int>(set.get_nb_vertices()));
    std::copy(set.get_vertices(), set.get_vertices() + set.get_nb_vertices(), list.get_data());
    return list;
}

ox::ox_list<unsigned int> index_list(const ox_triangle_set& set) {
    ox::ox_list<unsigned int> list(static_cast<int>(3 * set.get_nb_triangles()));
    std::copy(set.get_triangles(), set.get_triangles() + list.size(), list.get_data());
    return list;
}

} // namespace bench
