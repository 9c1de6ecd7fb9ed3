#include "mesh_support.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>
#include <ox/mesh/ox_triangle_set.h>
#include <ox/mesh/ox_vertex_optimizer.h>
#include <tests/support/generator.h>

/// Both welders against the plain versions, which scan the leaves of a plain octree.

namespace {

using mesh_support::contents_of;
using mesh_support::plain_mesh;
using mesh_support::same_bits;
using mesh_support::set_of;
using ox::ox_3dvector;
using support::generator;

/// Draws coordinates of one kind: a scale, clusters, negative or not.
struct coordinate_source {
    double scale;
    double cluster_width; // 0 for none
    double lowest, highest;

    float draw(generator& random) const {
        if (cluster_width > 0.0 && random.one_in(2)) {
            const double center = random.between(-2, 2);
            return static_cast<float>(scale *
                                      (center + random.real(-cluster_width, cluster_width)));
        }
        return static_cast<float>(scale * random.real(lowest, highest));
    }
};

const coordinate_source sources[] = {
    {1.0, 0.0, 0.0, 1.0},         // inside the first root
    {8.0, 0.0, -1.0, 1.0},        // around the origin
    {1.0, 0.02, -3.0, 3.0},       // clusters on cell boundaries
    {1.0, 1e-6, -3.0, -1.0},      // tight clusters, negative
    {7e6, 1e-7, 0.9, 1.0},        // far from the origin, one cell
    {1e30, 1e-7, -1.0, 1.0},      // huge
    {1e-30, 0.1, -1.0, 1.0},      // tiny
    {1e-42, 0.1, -1.0, 1.0},      // denormal
    {3e7, 1e-7, -1.0, 1.0},       // where roots' origins are rounded
    {8388608.0, 1e-6, -1.0, 1.0}, // where halves of a unit begin to be rounded
    {16777216.0, 1e-6, 0.0, 1.0}, // where whole units begin to be rounded
};
constexpr int nb_sources = 11;

/// A tolerance that makes some neighbours weld and others not.
float draw_tolerance(generator& random, double scale) {
    const double parts[] = {0.0, 1e-7, 1e-3, 0.01, 0.1, 1.0};
    return static_cast<float>(scale * parts[random.between(0, 5)]);
}

float draw_normal_tolerance(generator& random) {
    const float tolerances[] = {0.f, 0.01f, 0.5f, 2.f, 10.f};
    return tolerances[random.between(0, 4)];
}

ox_3dvector draw_vertex(generator& random, const coordinate_source& source) {
    const float x = source.draw(random);
    const float y = source.draw(random);
    const float z = source.draw(random);
    return ox_3dvector(x, y, z);
}

/// One of few normals; now and then a broken one, which meets none but makes the octree grow.
ox_3dvector draw_normal(generator& random) {
    const float x = static_cast<float>(random.between(-1, 1)) * 0.25f;
    const float y = random.one_in(9) ? std::numeric_limits<float>::quiet_NaN() : 0.f;
    return ox_3dvector(x, y, 1.f);
}

/// A vertex as far from `p` on each axis as the tolerance, or a rounding less or more, or not at
/// all; 0 becomes -0 at times.
ox_3dvector draw_near(generator& random, const ox_3dvector& p, float tolerance) {
    ox_3dvector near = p;
    for (unsigned int axis = 0; axis < 3; ++axis) {
        const float shifted = p.at(axis) + tolerance * static_cast<float>(random.between(-2, 2));
        const float beyond = static_cast<float>(random.between(-1, 1)) * 1e38f;
        near[axis] = random.one_in(3) ? std::nextafter(shifted, beyond) : shifted;
    }
    return random.one_in(5) ? near * -1.f : near;
}

/// Random vertices; some repeat an earlier one, lie near its tolerance or on a line with it.
std::vector<ox_3dvector> draw_vertices(generator& random, const coordinate_source& source,
                                       int count, float tolerance) {
    std::vector<ox_3dvector> vertices;
    for (int i = 0; i < count; ++i) {
        ox_3dvector vertex = draw_vertex(random, source);
        if (i > 0 && random.one_in(3)) {
            const ox_3dvector& earlier =
                vertices[static_cast<std::size_t>(random.between(0, i - 1))];
            const int kind = random.between(0, 2);
            vertex = kind == 0   ? earlier
                     : kind == 1 ? draw_near(random, earlier, tolerance)
                                 : earlier * 0.5f;
        }
        vertices.push_back(vertex);
    }
    return vertices;
}

plain_mesh draw_mesh(generator& random, const coordinate_source& source, float tolerance) {
    plain_mesh mesh;
    const int nb_vertices = random.between(1, 60);
    mesh.vertices = draw_vertices(random, source, nb_vertices, tolerance);
    const int nb_corners = 3 * random.between(0, 60);
    for (int i = 0; i < nb_corners; ++i) {
        mesh.triangles.push_back(static_cast<unsigned int>(random.between(0, nb_vertices - 1)));
    }
    return mesh;
}

TEST(WeldingDifferential, SetsEqualThePlainVersion) {
    generator random(611);
    for (int round = 0; round < 6000; ++round) {
        const coordinate_source& source = sources[round % nb_sources];
        const float position_tolerance = draw_tolerance(random, source.scale);
        plain_mesh mesh = draw_mesh(random, source, position_tolerance);
        const float normal_tolerance = draw_normal_tolerance(random);
        ox::ox_triangle_set set = set_of(mesh);
        set.optimize(position_tolerance, normal_tolerance);
        reference::optimize(mesh, position_tolerance, normal_tolerance);
        ASSERT_TRUE(same_bits(contents_of(set).vertices, mesh.vertices)) << "round " << round;
        ASSERT_EQ(contents_of(set).triangles, mesh.triangles) << "round " << round;
    }
}

TEST(WeldingDifferential, StreamsEqualThePlainVersion) {
    generator random(612);
    for (int round = 0; round < 6000; ++round) {
        const coordinate_source& source = sources[round % nb_sources];
        const float position_tolerance = draw_tolerance(random, source.scale);
        const float normal_tolerance = draw_normal_tolerance(random);
        ox::ox_vertex_optimizer optimizer(position_tolerance, normal_tolerance);
        reference::vertex_optimizer plain(position_tolerance, normal_tolerance);
        for (int call = 0; call < 4; ++call) {
            const int count = random.between(0, 30);
            const auto vertices = draw_vertices(random, source, count, position_tolerance);
            const ox_3dvector normal = draw_normal(random);
            optimizer.add_vertices(mesh_support::list_of(vertices), normal);
            for (const ox_3dvector& vertex : vertices) {
                plain.add(vertex, normal);
            }
        }
        const auto vertices = mesh_support::vector_of(optimizer.get_optimized_vertices());
        const auto normals = mesh_support::vector_of(optimizer.get_optimized_normals());
        ASSERT_EQ(mesh_support::vector_of(optimizer.get_mapping()), plain.mapping) << round;
        ASSERT_TRUE(same_bits(vertices, plain.vertices)) << round;
        ASSERT_TRUE(same_bits(normals, plain.normals)) << round;
    }
}

TEST(WeldingDifferential, LargeFieldsEqualThePlainVersion) {
    for (const float offset : {0.f, -40.f, 3000.f}) {
        plain_mesh mesh = mesh_support::height_field(60);
        for (ox_3dvector& vertex : mesh.vertices) {
            vertex += ox_3dvector(offset, -offset, 0.f);
        }
        ox::ox_triangle_set set = set_of(mesh);
        set.optimize(1.2f, 0.5f);
        reference::optimize(mesh, 1.2f, 0.5f);
        EXPECT_TRUE(same_bits(contents_of(set).vertices, mesh.vertices)) << offset;
        EXPECT_EQ(contents_of(set).triangles, mesh.triangles) << offset;
    }
}

/// Thousands of welded vertices in few search cells, and several in most of them.
TEST(WeldingDifferential, CrowdedFieldsEqualThePlainVersion) {
    generator random(614);
    for (const float tolerance : {0.02f, 0.2f, 0.6f, 3.f, 40.f}) {
        plain_mesh mesh = mesh_support::height_field(90);
        ox::ox_vertex_optimizer optimizer(tolerance, 0.5f);
        reference::vertex_optimizer plain(tolerance, 0.5f);
        for (ox_3dvector& vertex : mesh.vertices) {
            vertex += draw_vertex(random, {0.3, 0.0, -1.0, 1.0});
            plain.add(vertex, ox_3dvector());
        }
        optimizer.add_vertices(mesh_support::list_of(mesh.vertices));
        EXPECT_EQ(mesh_support::vector_of(optimizer.get_mapping()), plain.mapping) << tolerance;
        ox::ox_triangle_set set = set_of(mesh);
        set.optimize(tolerance, 0.5f);
        reference::optimize(mesh, tolerance, 0.5f);
        EXPECT_TRUE(same_bits(contents_of(set).vertices, mesh.vertices)) << tolerance;
        EXPECT_EQ(contents_of(set).triangles, mesh.triangles) << tolerance;
    }
}

} // namespace
