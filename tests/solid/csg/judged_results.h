#ifndef OX_TESTS_SOLID_CSG_JUDGED_RESULTS_H
#define OX_TESTS_SOLID_CSG_JUDGED_RESULTS_H

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ox/solid/ox_csg.h>
#include <ox/solid/ox_solid.h>
#include <tests/support/all_cases.h>
#include <tests/support/measures.h>

namespace csg_test {

/// What an operand does to what stands so far.
enum class operation { unites, substracts, intersects };

inline void apply(ox::ox_csg& csg, operation with, const ox::ox_solid& operand) {
    switch (with) {
    case operation::unites:
        csg.unites(operand);
        break;
    case operation::substracts:
        csg.substracts(operand);
        break;
    case operation::intersects:
        csg.intersects(operand);
        break;
    }
}

/// The result of `a`, then `b` by `with`, of a computation that must succeed.
inline ox::ox_solid combine(const ox::ox_solid& a, operation with, const ox::ox_solid& b,
                            float tolerance = 0.001f) {
    ox::ox_csg csg(tolerance);
    csg.unites(a);
    apply(csg, with, b);
    EXPECT_TRUE(csg.compute());
    return csg.get_solid();
}

/// All of these united in one pass.
inline ox::ox_solid unite_all(const std::vector<ox::ox_solid>& parts) {
    ox::ox_csg csg;
    for (const ox::ox_solid& part : parts) {
        csg.unites(part);
    }
    EXPECT_TRUE(csg.compute());
    return csg.get_solid();
}

/// True if every directed edge of indices of the primary storage has exactly as many opposites.
inline bool is_closed_by_indices(const ox::ox_solid& solid) {
    std::map<std::pair<unsigned int, unsigned int>, int> balance;
    int first = 0;
    for (const int signed_size : solid.get_contour_sizes()) {
        const int size = std::abs(signed_size);
        for (int i = 0; i < size; ++i) {
            const unsigned int from = solid.get_contours()[first + i];
            const unsigned int to = solid.get_contours()[first + (i + 1) % size];
            if (from < to) {
                ++balance[{from, to}];
            } else {
                --balance[{to, from}];
            }
        }
        first += size;
    }
    return std::all_of(balance.begin(), balance.end(),
                       [](const auto& entry) { return entry.second == 0; });
}

/// True if the triangles make a closed mesh by indices.
inline bool is_closed_by_indices(const ox::ox_triangle_set& triangles) {
    std::map<std::pair<unsigned int, unsigned int>, int> balance;
    for (unsigned int t = 0; t < triangles.get_nb_triangles(); ++t) {
        const unsigned int* corners = triangles.get_triangles() + std::size_t{3} * t;
        for (int i = 0; i < 3; ++i) {
            const unsigned int from = corners[i];
            const unsigned int to = corners[(i + 1) % 3];
            balance[{std::min(from, to), std::max(from, to)}] += from < to ? 1 : -1;
        }
    }
    return std::all_of(balance.begin(), balance.end(),
                       [](const auto& entry) { return entry.second == 0; });
}

/// The triangles as the faces of a solid.
inline ox::ox_solid to_solid(const ox::ox_triangle_set& triangles) {
    ox::ox_list<ox::ox_3dvector> vertices;
    for (unsigned int v = 0; v < triangles.get_nb_vertices(); ++v) {
        vertices.push_right(triangles.get_vertices()[v]);
    }
    ox::ox_list<unsigned int> contours;
    ox::ox_list<int> sizes;
    for (std::size_t i = 0; i < std::size_t{3} * triangles.get_nb_triangles(); ++i) {
        contours.push_right(triangles.get_triangles()[i]);
        if (i % 3 == 0) {
            sizes.push_right(3);
        }
    }
    ox::ox_solid solid;
    solid.set_vertices(vertices);
    solid.set_contours(contours);
    solid.set_contour_sizes(sizes);
    return solid;
}

/// Closed as promised: by indices and by points.
inline bool is_closed(const ox::ox_solid& solid) {
    return is_closed_by_indices(solid) && solid.get_open_edges(0.0f).size() == 0;
}

/// How far the volume of a result may be from the exact one when all faces are planar within a
/// tenth of the tolerance: a tenth of the tolerance over the surface of the operands, and the
/// tolerance where different faces nearly coincide (given as an area).
inline double volume_bound(double surface_area, double coincident_area, double tolerance = 0.001) {
    return surface_area * tolerance / 10.0 + coincident_area * tolerance;
}

} // namespace csg_test

#endif
