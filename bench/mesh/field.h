#ifndef OX_BENCH_MESH_FIELD_H
#define OX_BENCH_MESH_FIELD_H

#include <memory>

#include <bench/peers/triangle_mesh.h>
#include <ox/mesh/ox_triangle_set.h>

namespace bench {

/// A field of hills of about `nb_triangles` triangles that own their vertices, as read from STL:
/// row after row, or in random order.
ox::ox_triangle_set triangle_soup(long nb_triangles, bool shuffled = false);

/// The field with one vertex for each place.
ox::ox_triangle_set welded_field(long nb_triangles);

/// Another set with the same contents and arrays of its own.
ox::ox_triangle_set clone(const ox::ox_triangle_set& set);

/// The same contents for the peers.
std::shared_ptr<const peers::triangle_mesh> to_mesh(const ox::ox_triangle_set& set);

ox::ox_list<ox::ox_3dvector> vertex_list(const ox::ox_triangle_set& set);
ox::ox_list<unsigned int> index_list(const ox::ox_triangle_set& set);

/// Positions closer than this are one; the field's own are 1 apart.
constexpr float position_tolerance = 1e-4f;

/// Allows every difference of normals.
constexpr float any_normal = 10.0f;

} // namespace bench

#endif
