#ifndef OX_MESH_OX_VERTEX_OPTIMIZER_H
#define OX_MESH_OX_VERTEX_OPTIMIZER_H

#include <memory>

#include <ox/core/ox_export.h>
#include <ox/core/ox_list.h>
#include <ox/geometry/ox_3dvector.h>

namespace ox {

class ox_vertex_optimizer_state;

/// Welds a stream of vertices, optionally with normals, into a list of distinct vertices and a
/// mapping from every vertex given to its welded one.
///
/// A vertex joins the first welded vertex, in order of appearance, that is at most the position
/// tolerance away on every axis, whose normal differs by at most the normal tolerance in sum over
/// the axes, and that lies in the same leaf of an octree. Differences are rounded to floats. The
/// leaves are halvings of power-of-two cells anchored at the origin, with an edge below ten
/// position tolerances, or below 1 model unit where that is more; two vertices on either side of a
/// leaf's boundary stay apart.
///
/// Invariant: one entry of the mapping for each vertex given, in order, over all calls; the
/// positions and normals are of equal number. Nothing is ever taken back.
///
/// Degenerate input:
/// - a vertex with a NaN or infinite coordinate, or one so far out that the octree would need an
///   edge of 2^128: a welded vertex of its own, which no later vertex joins;
/// - a NaN in a normal: that vertex joins none, and none joins it;
/// - a negative or NaN tolerance: nothing is welded;
/// - the optimizer's own lists as input: their contents at the call count.
///
/// Ownership: copies share one state; what is added through one is seen through the other. The
/// state goes with its last owner.
///
/// \code
///   ox::ox_vertex_optimizer optimizer(0.001f, 0.1f);
///   optimizer.add_vertices(corners, face_normal);
///   const ox::ox_list<unsigned int>& indices = optimizer.get_mapping();
/// \endcode
class OX_EXPORT ox_vertex_optimizer {
public:
    /// An optimizer without vertices. `position_tolerance` is in model units,
    /// `normal_tolerance` in the unit of the normals.
    ox_vertex_optimizer(float position_tolerance, float normal_tolerance);

    /// An optimizer that shares the state of `other`. O(1).
    ox_vertex_optimizer(const ox_vertex_optimizer& other);

    /// Lets go of the state and shares that of `other`. O(1).
    ox_vertex_optimizer& operator=(const ox_vertex_optimizer& other);

    /// Lets go of the state.
    virtual ~ox_vertex_optimizer();

    /// Adds each vertex in order with the normal (0, 0, 0). O(n) on average.
    void add_vertices(const ox_list<ox_3dvector>& vertices);

    /// Adds each vertex in order with the same `normal`. O(n) on average; vertices of many
    /// different normals within the position tolerance of one place are compared with each other.
    void add_vertices(const ox_list<ox_3dvector>& vertices, const ox_3dvector& normal);

    /// The index of the welded vertex of each vertex given. References to this and the two lists
    /// below live as long as the state, pointers into them until the next insertion.
    const ox_list<unsigned int>& get_mapping() const;

    /// The welded positions, in order of first appearance.
    const ox_list<ox_3dvector>& get_optimized_vertices() const;

    /// The normal of the vertex that made each welded position.
    const ox_list<ox_3dvector>& get_optimized_normals() const;

private:
    std::shared_ptr<ox_vertex_optimizer_state> state;
};

} // namespace ox

#endif
