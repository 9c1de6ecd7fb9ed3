#ifndef TESTS_SOLID_CSG_EXACT_ARRANGEMENT_SHAPES_H
#define TESTS_SOLID_CSG_EXACT_ARRANGEMENT_SHAPES_H

#include <array>
#include <cstdint>
#include <map>
#include <random>
#include <tuple>
#include <vector>

#include <ox/solid/internal/csg/arrangement.h>

#include <tests/reference/plain_dice.h>

namespace arrangement_shapes {

using ox::internal::csg::arrangement_input;
using ox::internal::csg::grid_point;
using ox::internal::csg::operation;

/// A closed chain of triangles by their corners.
using shape = std::vector<std::array<grid_point, 3>>;

/// Builds an input: equal points get one index.
class input_builder {
public:
    void add(operation applied, const shape& triangles) {
        const int operand = static_cast<int>(built.operations.size());
        built.operations.push_back(applied);
        for (const std::array<grid_point, 3>& t : triangles) {
            built.triangles.push_back({{index(t[0]), index(t[1]), index(t[2])}, operand});
        }
    }

    const arrangement_input& input() const { return built; }

private:
    int index(const grid_point& p) {
        const auto [place, is_new] =
            indices.try_emplace({p.x, p.y, p.z}, static_cast<int>(built.points.size()));
        if (is_new) {
            built.points.push_back(p);
        }
        return place->second;
    }

    arrangement_input built;
    std::map<std::tuple<std::int64_t, std::int64_t, std::int64_t>, int> indices;
};

/// The other way round.
inline shape turned_inside_out(shape triangles) {
    for (std::array<grid_point, 3>& t : triangles) {
        std::swap(t[1], t[2]);
    }
    return triangles;
}

/// A hexahedron from its corners: bit 0 of an index is x, bit 1 y, bit 2 z. The bits of
/// `diagonals` choose how each of its faces is divided.
inline shape hexahedron(const std::array<grid_point, 8>& c, unsigned int diagonals) {
    static constexpr std::array<std::array<std::size_t, 4>, 6> faces = {
        {{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4}, {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}}};
    shape triangles;
    for (std::size_t i = 0; i < faces.size(); ++i) {
        const std::array<std::size_t, 4>& f = faces[i];
        const std::size_t turn = (diagonals >> i) & 1u;
        triangles.push_back({c[f[turn]], c[f[turn + 1]], c[f[turn + 2]]});
        triangles.push_back({c[f[turn]], c[f[turn + 2]], c[f[(turn + 3) % 4]]});
    }
    return triangles;
}

/// A brick between two corners; inside out where an odd number of extents is negative.
inline shape brick(const grid_point& low, const grid_point& high, unsigned int diagonals = 0) {
    std::array<grid_point, 8> corners{};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = {(i & 1u) != 0 ? high.x : low.x, (i & 2u) != 0 ? high.y : low.y,
                      (i & 4u) != 0 ? high.z : low.z};
    }
    return hexahedron(corners, diagonals);
}

/// The tetrahedron of four points, outward where d sees a, b, c clockwise.
inline shape tetrahedron(const grid_point& a, const grid_point& b, const grid_point& c,
                         const grid_point& d) {
    return {{a, c, b}, {a, b, d}, {b, c, d}, {c, a, d}};
}

/// A point of a grid of `size` values a side, `unit` apart.
inline grid_point random_point(std::mt19937& engine, int size, std::int64_t unit) {
    const auto draw = [&] { return unit * reference::plain_dice(engine, 0, size - 1); };
    const std::int64_t x = draw();
    const std::int64_t y = draw();
    return {x, y, draw()};
}

/// A brick, a tetrahedron, a crumpled hexahedron, or several of them in one; any may be inside out,
/// flat, or cross itself.
inline shape random_shape(std::mt19937& engine, int size, std::int64_t unit) {
    const auto point = [&] { return random_point(engine, size, unit); };
    const int kind = reference::plain_dice(engine, 0, 9);
    if (kind < 4) {
        const grid_point low = point();
        const grid_point high = point();
        return brick(low, high, static_cast<unsigned int>(engine()));
    }
    if (kind < 8) {
        const grid_point a = point();
        const grid_point b = point();
        const grid_point c = point();
        return tetrahedron(a, b, c, point());
    }
    if (kind == 8) {
        std::array<grid_point, 8> corners{};
        for (grid_point& corner : corners) {
            corner = point();
        }
        return hexahedron(corners, static_cast<unsigned int>(engine()));
    }
    shape both = random_shape(engine, size, unit);
    const shape second = random_shape(engine, size, unit);
    both.insert(both.end(), second.begin(), second.end());
    return both;
}

} // namespace arrangement_shapes

#endif
