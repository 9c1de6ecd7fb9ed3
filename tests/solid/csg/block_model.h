#ifndef OX_TESTS_SOLID_CSG_BLOCK_MODEL_H
#define OX_TESTS_SOLID_CSG_BLOCK_MODEL_H

#include <array>
#include <utility>
#include <vector>

#include <ox/solid/ox_solid.h>
#include <tests/support/random_shapes.h>

namespace csg_test {

/// A box between whole coordinates, `low` below `high` on each axis.
struct whole_box {
    std::array<int, 3> low;
    std::array<int, 3> high;
};

/// The box as a brick that begins at `origin` and whose edges run along the axes of `frame`.
inline ox::ox_solid to_brick(const whole_box& box, const support::frame& frame,
                             const ox::ox_3dvector& origin) {
    const auto at = [&](const std::array<int, 3>& p) {
        return frame.x * static_cast<float>(p[0]) + frame.y * static_cast<float>(p[1]) +
               frame.z * static_cast<float>(p[2]);
    };
    ox::ox_solid brick;
    brick.brick(origin + at(box.low), frame.x * static_cast<float>(box.high[0] - box.low[0]),
                frame.y * static_cast<float>(box.high[1] - box.low[1]),
                frame.z * static_cast<float>(box.high[2] - box.low[2]));
    return brick;
}

/// The box as an axis-aligned brick.
inline ox::ox_solid to_brick(const whole_box& box) {
    const auto at = [](const std::array<int, 3>& p) {
        return ox::ox_3dvector(static_cast<float>(p[0]), static_cast<float>(p[1]),
                               static_cast<float>(p[2]));
    };
    return support::brick_between(at(box.low), at(box.high));
}

/// What booleans of whole boxes leave, kept as unit cubes: a judge that shares nothing with the
/// library. Its faces are the connected squares of one plane that face one way.
class block_model {
public:
    /// Empty, with room for boxes from 0 to `size` along each axis.
    explicit block_model(int size) : side(size), cubes(count_cubes(size), false) {}

    void unites(const whole_box& box) {
        visit_cubes([&](std::size_t i, bool in_box) { cubes[i] = cubes[i] || in_box; }, box);
    }
    void substracts(const whole_box& box) {
        visit_cubes([&](std::size_t i, bool in_box) { cubes[i] = cubes[i] && !in_box; }, box);
    }
    void intersects(const whole_box& box) {
        visit_cubes([&](std::size_t i, bool in_box) { cubes[i] = cubes[i] && in_box; }, box);
    }

    int get_volume() const {
        int volume = 0;
        for (const bool is_full : cubes) {
            volume += is_full ? 1 : 0;
        }
        return volume;
    }

    /// The number of unit squares between a full and an empty cube.
    int get_area() const {
        int area = 0;
        for_each_plane([&](int axis, int level, int side_of_plane) {
            for (const bool is_boundary : squares_of(axis, level, side_of_plane)) {
                area += is_boundary ? 1 : 0;
            }
        });
        return area;
    }

    /// The number of faces when all squares of a plane that touch along an edge are one.
    int count_faces() const {
        int faces = 0;
        for_each_plane([&](int axis, int level, int side_of_plane) {
            faces += count_regions(squares_of(axis, level, side_of_plane));
        });
        return faces;
    }

private:
    static std::size_t count_cubes(int side) {
        return static_cast<std::size_t>(side) * static_cast<std::size_t>(side) *
               static_cast<std::size_t>(side);
    }

    std::size_t index_of(const std::array<int, 3>& p) const {
        return static_cast<std::size_t>((p[0] * side + p[1]) * side + p[2]);
    }

    template <typename Visitor>
    void visit_cubes(Visitor visit, const whole_box& box) {
        for (int x = 0; x < side; ++x) {
            for (int y = 0; y < side; ++y) {
                for (int z = 0; z < side; ++z) {
                    const bool in_box = x >= box.low[0] && x < box.high[0] && y >= box.low[1] &&
                                        y < box.high[1] && z >= box.low[2] && z < box.high[2];
                    visit(index_of({x, y, z}), in_box);
                }
            }
        }
    }

    /// True for a full cube within the model.
    bool is_full(const std::array<int, 3>& p) const {
        for (const int coordinate : p) {
            if (coordinate < 0 || coordinate >= side) {
                return false;
            }
        }
        return cubes[index_of(p)];
    }

    template <typename Visitor>
    void for_each_plane(Visitor visit) const {
        for (int axis = 0; axis < 3; ++axis) {
            for (int level = 0; level <= side; ++level) {
                visit(axis, level, 0);
                visit(axis, level, 1);
            }
        }
    }

    /// The squares of a plane with a full cube on one side of it (0: below) and none on the other.
    std::vector<bool> squares_of(int axis, int level, int side_of_plane) const {
        std::vector<bool> squares;
        for (int u = 0; u < side; ++u) {
            for (int v = 0; v < side; ++v) {
                std::array<int, 3> below{};
                below[static_cast<std::size_t>(axis)] = level - 1;
                below[static_cast<std::size_t>((axis + 1) % 3)] = u;
                below[static_cast<std::size_t>((axis + 2) % 3)] = v;
                std::array<int, 3> above = below;
                ++above[static_cast<std::size_t>(axis)];
                const bool full_below = is_full(below);
                const bool full_above = is_full(above);
                squares.push_back(side_of_plane == 0 ? full_below && !full_above
                                                     : full_above && !full_below);
            }
        }
        return squares;
    }

    int count_regions(std::vector<bool> squares) const {
        int regions = 0;
        for (int square = 0; square < side * side; ++square) {
            if (squares[static_cast<std::size_t>(square)]) {
                ++regions;
                erase_region(squares, square);
            }
        }
        return regions;
    }

    void erase_region(std::vector<bool>& squares, int first) const {
        std::vector<int> waiting = {first};
        while (!waiting.empty()) {
            const int square = waiting.back();
            waiting.pop_back();
            if (!squares[static_cast<std::size_t>(square)]) {
                continue;
            }
            squares[static_cast<std::size_t>(square)] = false;
            const int u = square / side;
            const int v = square % side;
            const std::array<std::pair<int, int>, 4> neighbours = {
                {{u - 1, v}, {u + 1, v}, {u, v - 1}, {u, v + 1}}};
            for (const auto& [nu, nv] : neighbours) {
                if (nu >= 0 && nu < side && nv >= 0 && nv < side) {
                    waiting.push_back(nu * side + nv);
                }
            }
        }
    }

    int side;
    std::vector<bool> cubes;
};

} // namespace csg_test

#endif
